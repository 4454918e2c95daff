// The header dictionary of each kind of picture, from an opened picture and without one.
#include "picture/picture_header.h"

#include "kit/test_main.h"
#include "picture/open_picture.h"
#include "picture/process/memory_picture_service.h"
#include "types/uniform_type.h"

using namespace norvex;

namespace {

const QByteArray kEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%Title: My picture\n%%BoundingBox: 0 0 200 100\n%%EndComments\n%%EOF\n";

PictureFacts told() {
  PictureFacts facts;
  facts.title = "a title";
  return facts;
}

}  // namespace

class PictureHeaderTest : public QObject {
  Q_OBJECT
 private slots:
  void anEpsIsReadFromItsSourceOthersFromTheirFacts() {
    QCOMPARE(pictureHeader(PictureKind::Eps, kEps, told()).value(header::Title).toString(), "My picture");
    QCOMPARE(pictureHeader(PictureKind::Svg, kEps, told()).value(header::Title).toString(), "a title");
    QVERIFY(pictureHeader(PictureKind::Svg, kEps, told()).contains(header::ColorSpace));
    QCOMPARE(pictureHeader(PictureKind::Pdf, kEps, told()).value(header::EncodingNumber).toLongLong(),
             encoding::None);
  }

  void factsThatCouldNotBeHadTellNothing() {
    const Error error{ErrorKind::Died, "it died"};
    QVERIFY(pictureHeader(PictureKind::Pdf, {}, error).isEmpty());
    QVERIFY(!pictureHeader(PictureKind::Svg, {}, error).contains(header::Title));
  }

  void anOpenedPictureHasTheSameHeader() {
    MemoryPictureService service;
    const auto eps = openPicture(service, {kEps, NorvexEPSType, {}, 0});
    QVERIFY(eps);
    QCOMPARE(pictureHeader(eps->get()), pictureHeader(PictureKind::Eps, kEps, PictureFacts()));
    const auto svg = openPicture(service, {"<svg/>", UTTypeSVG().identifier(), {}, 0});
    QVERIFY(svg);
    QVERIFY(pictureHeader(svg->get()).contains(header::ColorSpace));
    const auto pdf = openPicture(service, {"%PDF-1.7\n", UTTypePDF().identifier(), {}, 0});
    QVERIFY(pdf);
    QCOMPARE(pictureHeader(pdf->get()).value(header::EncodingNumber).toLongLong(), encoding::None);
    QVERIFY(pictureHeader(static_cast<const NSImageRep*>(nullptr)).isEmpty());
  }
};

NORVEX_TEST(PictureHeaderTest)
#include "picture_header_test.moc"
