// From a type and bytes to the right representation.
#include "picture/open_picture.h"

#include <QCoreApplication>
#include <QThread>

#include <memory>
#include <thread>

#include "kit/test_main.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "picture/process/null_picture_service.h"
#include "picture/web_image_rep.h"
#include "types/uniform_type.h"

using namespace norvex;

namespace {

const QByteArray kEps = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%EndComments\n%%EOF\n";
const QByteArray kPdf = "%PDF-1.7\n";

template <typename Rep>
bool isA(const Result<std::shared_ptr<NSImageRep>>& opened) {
  return opened && dynamic_cast<Rep*>(opened->get()) != nullptr;
}

}  // namespace

class OpenPictureTest : public QObject {
  Q_OBJECT
 private slots:
  void theTypeDecidesTheRepresentation() {
    MemoryPictureService service;
    QVERIFY(isA<NSEPSImageRep>(openPicture(service, {kEps, NorvexEPSType, {}, 0})));
    QVERIFY(isA<NSEPSImageRep>(openPicture(service, {kEps, NorvexEPSIType, {}, 0})));
    QVERIFY(isA<NSPDFImageRep>(openPicture(service, {kPdf, UTTypePDF().identifier(), {}, 0})));
    QVERIFY(isA<ZyWebImageRep>(openPicture(service, {"<svg/>", UTTypeSVG().identifier(), {}, 0})));
    QVERIFY(isA<ZyWebImageRep>(openPicture(service, {"<svg/>", NorvexSVGZType, {}, 0})));
  }

  void anIllustratorFileIsPostScriptOrElsePdf() {
    MemoryPictureService service;
    QVERIFY(isA<NSEPSImageRep>(openPicture(service, {kEps, NorvexIllustratorType, {}, 0})));
    QVERIFY(isA<NSPDFImageRep>(openPicture(service, {kPdf, NorvexIllustratorType, {}, 0})));
    QCOMPARE(service.openedKinds(), QList<PictureKind>({PictureKind::Eps, PictureKind::Pdf}));
  }

  void aSubtypeIsLoadedAsItsKind() {
    UTType::exportedTypeWithIdentifier("org.example.open-test-eps", {NorvexEPSType});
    QCOMPARE(pictureKindsForType("org.example.open-test-eps"), QList<PictureKind>{PictureKind::Eps});
  }

  void otherTypesAreNotSupported() {
    MemoryPictureService service;
    for (const QString& type : {QString(), QString("public.png"), QString("org.example.unheard-of")}) {
      const auto opened = openPicture(service, {kPdf, type, {}, 0});
      QVERIFY(!opened);
      QCOMPARE(opened.error().kind, ErrorKind::Unsupported);
    }
    QCOMPARE(service.openCount(), 0);
  }

  void theLastKindsErrorIsTold() {
    NullPictureService service({ErrorKind::NoSandbox, QStringLiteral("no confinement")});
    QCOMPARE(openPicture(service, {kPdf, NorvexIllustratorType, {}, 0}).error().kind, ErrorKind::NoSandbox);
    QCOMPARE(openPicture(service, {{}, NorvexEPSType, {}, 0}).error().kind, ErrorKind::NotParsable);
  }

  void theEngineOfBytesIsKnownWithoutOpeningThem() {
    QCOMPARE(*pictureKindOf(kEps, NorvexEPSType), PictureKind::Eps);
    QCOMPARE(*pictureKindOf(kEps, NorvexIllustratorType), PictureKind::Eps);
    QCOMPARE(*pictureKindOf(kPdf, NorvexIllustratorType), PictureKind::Pdf);
    QCOMPARE(*pictureKindOf("<svg/>", NorvexSVGZType), PictureKind::Svg);
    QCOMPARE(*pictureKindOf(kPdf, UTTypeSVG().identifier()), PictureKind::Svg);
    QCOMPARE(pictureKindOf(kPdf, "public.png").error().kind, ErrorKind::Unsupported);
  }

  void whatAProgramHadDrawnIsAPictureForWhoAcceptsIt() {
    const QString stop = QStringLiteral("PostScript error: undefined in nosuch");
    MemoryPicture picture;
    picture.facts.stoppedBy = stop;
    MemoryPictureService service;
    service.setPicture(picture);
    PictureSource source{kEps, NorvexEPSType, {}, 0};
    const auto whole = openPicture(service, source);
    QVERIFY(whole);
    const auto fails = [&](const auto& result) {
      return !result && result.error().kind == ErrorKind::NotParsable && result.error().message == stop;
    };
    RenderRequest drawing;
    drawing.pixelSize = QSize(9, 9);
    QVERIFY(fails((*whole)->process()->render(drawing)));
    QVERIFY(fails((*whole)->process()->pdf({})));
    QVERIFY(fails((*whole)->process()->compose({})));
    QVERIFY(fails((*whole)->process()->examine({})));
    source.acceptPartial = true;
    const auto partial = openPicture(service, source);
    QVERIFY(partial);
    QVERIFY((*partial)->process()->render(drawing).ok());
    QVERIFY((*partial)->process()->pdf({}).ok());
    QCOMPARE((*partial)->process()->facts()->stoppedBy, stop);
  }

  void aPictureLivesInTheThreadThatOpensIt() {
    MemoryPictureService service;
    std::shared_ptr<NSImageRep> rep;
    bool livesThere = false;
    std::thread([&] {
      const auto opened = openPicture(service, {kPdf, UTTypePDF().identifier(), {}, 0});
      if (!opened) return;
      rep = *opened;
      livesThere = rep->thread() == QThread::currentThread();
      rep->moveToThread(QCoreApplication::instance()->thread());
    }).join();
    QVERIFY(rep);
    QVERIFY(livesThere);
  }

  void aCancelledOpeningFails() {
    MemoryPictureService service;
    CancelToken cancel;
    cancel.cancel();
    const auto opened = openPicture(service, {kPdf, UTTypePDF().identifier(), {}, 0}, {}, cancel);
    QVERIFY(!opened);
    QCOMPARE(opened.error().kind, ErrorKind::Cancelled);
  }

  void thePageIsTheOneThatIsAskedFor() {
    MemoryPictureService service;
    const auto opened = openPicture(service, {kPdf, UTTypePDF().identifier(), {}, 7});
    QVERIFY(!opened);
    QVERIFY2(opened.error().message.startsWith("there is no page 8"), qPrintable(opened.error().message));
  }
};

NORVEX_TEST(OpenPictureTest)
#include "open_picture_test.moc"
