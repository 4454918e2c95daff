// The formats of a selection: which, in what order, made from what, and when.
#include <QColorSpace>

#include <cmath>

#include "display/picture_geometry.h"
#include "encoders/encoded_picture.h"
#include "kit/test_main.h"
#include "picture/eps_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "picture/web_image_rep.h"
#include "types/uniform_type.h"
#include "window/commands/picture_formats.h"

using namespace norvex;

namespace {

constexpr double kFullTurn = 6.283185307179586;
const Error kDied{ErrorKind::Died, QStringLiteral("the picture process ended")};
const QByteArray kEps = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 200 100\n%%EndComments\n%%EOF\n";
const QByteArray kSvg = "<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100'/>";

QStringList identifiers(const PictureFormats& formats) {
  QStringList all;
  for (const UTType& type : formats.UTIs) all << type.identifier();
  return all;
}

QList<bool> made(const PictureFormats& formats) {
  QList<bool> all;
  for (const auto& data : formats.DataObjects) all << !data->get().isEmpty();
  return all;
}

/// A snapshot of a picture of 200 × 100 points, unturned, with the rectangle (-50, -20, 40, 30).
struct Shown {
  explicit Shown(PictureKind kind, const MemoryPicture& picture = {}) : service(picture) {
    if (kind == PictureKind::Eps)
      snapshot.imageRep = *NSEPSImageRep::imageRepWithData(service, kEps);
    else if (kind == PictureKind::Svg)
      snapshot.imageRep = *ZyWebImageRep::imageRepWithData(service, kSvg, QUrl("file:///a/b.svg"));
    else
      snapshot.imageRep = *NSPDFImageRep::imageRepWithData(service, emptyPdf({200, 100}));
    process = service.lastProcess();
    snapshot.placement = {QPointF(100, 50), 0};
    snapshot.rect = QRectF(-50, -20, 40, 30);
    snapshot.frame = QRectF(0, 0, 200, 100);
    snapshot.surroundings.service = &service;
  }
  MemoryPictureService service;
  std::shared_ptr<MemoryPictureProcess> process;
  PictureSnapshot snapshot;
};

}  // namespace

class PictureFormatsTest : public QObject {
  Q_OBJECT
 private slots:
  void anEpsPictureYieldsEpsPdfTiff() {
    Shown f(PictureKind::Eps);
    const PictureFormats formats = selectionFormats(f.snapshot);
    QCOMPARE(identifiers(formats),
             (QStringList{"com.adobe.encapsulated-postscript", "com.adobe.pdf", "public.tiff"}));
    QCOMPARE(formats.Types,
             (QStringList{"com.adobe.encapsulated-postscript", "com.adobe.pdf", "public.tiff"}));
    QCOMPARE(made(formats), (QList<bool>{true, true, true}));
    QVERIFY(formats.DataObjects[0]->get().startsWith("%!PS") &&
            formats.DataObjects[1]->get().startsWith("%PDF"));
    QVERIFY(formats.DataObjects[2]->get().startsWith("II*") ||
            formats.DataObjects[2]->get().startsWith("MM"));
  }

  void aPdfPictureYieldsPdfFirst() {
    Shown f(PictureKind::Pdf);
    const PictureFormats formats = selectionFormats(f.snapshot);
    QCOMPARE(identifiers(formats),
             (QStringList{"com.adobe.pdf", "com.adobe.encapsulated-postscript", "public.tiff"}));
    QCOMPARE(made(formats), (QList<bool>{true, true, true}));
  }

  void anSvgPictureYieldsSvgPdfEpsTiff() {
    Shown f(PictureKind::Svg);
    const PictureFormats formats = selectionFormats(f.snapshot);
    QCOMPARE(identifiers(formats), (QStringList{"public.svg-image", "com.adobe.pdf",
                                                "com.adobe.encapsulated-postscript", "public.tiff"}));
    QCOMPARE(formats.Types.first(), QString::fromLatin1(ZySVGPboardType));
    QCOMPARE(made(formats), (QList<bool>{true, true, true, true}));
  }

  void withoutAPictureThereIsNothing() {
    PictureSnapshot none;
    none.rect = QRectF(0, 0, 10, 10);
    QCOMPARE(selectionFormats(none).count(), 0);
    QCOMPARE(wholePictureFormats(none).count(), 0);
  }

  void vectorsAreOfTheRectangleAsItWasTurned() {
    Shown f(PictureKind::Eps);
    f.snapshot.placement.rotate = 0.5;
    QVERIFY(made(selectionFormats(f.snapshot)).at(1));
    const QList<ComposeRequest> asked = f.process->composeRequests();
    QCOMPARE(asked.size(), 2);
    QCOMPARE(asked[0].format, VectorFormat::Eps);
    QCOMPARE(asked[1].format, VectorFormat::Pdf);
    for (const ComposeRequest& each : asked) {
      QCOMPARE(each.rect, QRectF(-50, -20, 40, 30));
      QCOMPARE(each.rotate, 0.5);
    }
  }

  /// The encoders that make files make what is copied, so that both say the same of where it comes from.
  void aPartIsCopiedAsItIsWrittenToAFile_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("rotate");
    for (const double rotate : {0.0, 0.5}) {
      const char* const angle = rotate == 0 ? "upright" : "turned";
      QTest::addRow("EPS, %s", angle) << int(PictureKind::Eps) << rotate;
      QTest::addRow("PDF, %s", angle) << int(PictureKind::Pdf) << rotate;
      QTest::addRow("SVG, %s", angle) << int(PictureKind::Svg) << rotate;
    }
  }
  void aPartIsCopiedAsItIsWrittenToAFile() {
    QFETCH(int, kind);
    QFETCH(double, rotate);
    MemoryPicture picture;
    const auto said = [](const QRectF& rect, double angle) {
      return QStringLiteral("%1 %2 %3 %4 %5")
          .arg(rect.x())
          .arg(rect.y())
          .arg(rect.width())
          .arg(rect.height())
          .arg(angle)
          .toUtf8();
    };
    picture.compose = [&](const ComposeRequest& request) {
      const QByteArray made = said(request.rect, request.rotate);
      if (request.format == VectorFormat::Eps)
        return "%!PS-Adobe-3.0 EPSF-3.0\n%%Creator: nobody\n%%Title: " + made + "\n%%EndComments\n" + made;
      return made + (request.attributes ? request.attributes->texts.value("Creator").toUtf8() : "none");
    };
    picture.svg = [&](const SvgRequest& request) {
      return "<svg " + said(request.rect.value_or(QRectF()), request.rotate) + "/>";
    };
    Shown f(PictureKind(kind), picture);
    f.snapshot.placement.rotate = rotate;
    f.snapshot.frame = QRectF(QPointF(0, 0), rotatedBoundingSize({200, 100}, rotate));
    f.snapshot.clockwise = true;
    f.snapshot.surroundings.applicationName = "Norvex";
    EncoderSurroundings surroundings = f.snapshot.surroundings;
    surroundings.region = PictureRegion{f.snapshot.rect, rotate};
    surroundings.subjectMayBeLeftOut = true;
    const PictureFormats copied = selectionFormats(f.snapshot);
    for (const PictureFormat format : {PictureFormat::Eps, PictureFormat::Pdf, PictureFormat::Svg}) {
      const qsizetype at = copied.indexOf(typeOf(format));
      if (at < 0) continue;
      PictureEncoder encoder(f.snapshot.imageRep, surroundings);
      const QByteArray written = encodedPicture(encoder, format);
      QVERIFY(written.size() > 10);
      QCOMPARE(copied.DataObjects[at]->get(), written);
    }
    const QByteArray eps =
        copied.DataObjects[copied.indexOf(*UTType::typeWithIdentifier(NorvexEPSType))]->get();
    QVERIFY2(eps.contains("%%Creator: ") && !eps.contains("nobody"), eps);
    QVERIFY(copied.DataObjects[copied.indexOf(UTTypePDF())]->get().endsWith("Norvex "));
  }

  void theCutOfASvgIsCountedFromItsCorner() {
    PictureSnapshot s;
    s.placement.rotate = 0.5;
    s.rect = QRectF(-50, -20, 40, 30);
    s.frame = QRectF(0, 0, 200, 100);
    const SvgCut cut = svgCutOf(s);  // neither is flipped
    QCOMPARE(cut.rect, QRectF(50, 30, 40, 30));
    QCOMPARE(cut.angle, 0.5);
  }

  void theCutOfAFlippedSvgIsCountedFromTheOtherSideAndTurnsTheOtherWay() {
    PictureSnapshot s;
    s.placement.rotate = 0.5;
    s.rect = QRectF(-50, -20, 40, 30);
    s.frame = QRectF(0, 10, 200, 100);
    s.clockwise = true;
    const SvgCut cut = svgCutOf(s);
    QCOMPARE(cut.rect, QRectF(50, 45, 40, 30));  // (10 + 100) / 2 − (−20 + 30)
    QCOMPARE(cut.angle, kFullTurn - 0.5);
    s.flippedCoordinate = true;  // both: they agree again
    QCOMPARE(svgCutOf(s).rect, QRectF(50, 30, 40, 30));
    QCOMPARE(svgCutOf(s).angle, 0.5);
    s.clockwise = false;
    QCOMPARE(svgCutOf(s).rect, QRectF(50, 45, 40, 30));
  }

  void anUnturnedFlippedCutIsAFullTurn() {
    PictureSnapshot s;
    s.clockwise = true;
    QCOMPARE(svgCutOf(s).angle, kFullTurn);
  }

  void theSvgIsCutAndTheVectorsKeepThePlainRectangle() {
    MemoryPicture picture;
    QList<SvgRequest> cuts;
    picture.svg = [&cuts](const SvgRequest& request) {
      cuts << request;
      return kSvg;
    };
    Shown f(PictureKind::Svg);
    f.service.setPicture(picture);
    f.snapshot.imageRep = *ZyWebImageRep::imageRepWithData(f.service, kSvg);
    f.process = f.service.lastProcess();
    f.snapshot.clockwise = true;
    f.snapshot.placement.rotate = 1;
    QCOMPARE(made(selectionFormats(f.snapshot)).count(true), 4);
    QCOMPARE(cuts.size(), 1);
    QVERIFY(!cuts[0].pretty);
    QCOMPARE(cuts[0].rect, std::optional(QRectF(50, 40, 40, 30)));
    QCOMPARE(cuts[0].rotate, kFullTurn - 1);
    for (const ComposeRequest& each : f.process->composeRequests())
      QCOMPARE(each.rect, QRectF(-50, -20, 40, 30));
  }

  void nothingIsMadeBeforeItIsAskedForAndThenOnce() {
    Shown f(PictureKind::Pdf);
    const PictureFormats formats = selectionFormats(f.snapshot);
    QCOMPARE(f.process->calls(PictureCall::Compose), 0);
    made(formats);
    made(formats);
    QCOMPARE(f.process->calls(PictureCall::Compose), 2);
  }

  void aRectangleWithoutAreaIsLeftOutAtOnce_data() {
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("no width") << QRectF(1, 1, 0, 5);
    QTest::newRow("no height") << QRectF(1, 1, 5, 0);
    QTest::newRow("not a number") << QRectF(1, std::nan(""), 5, 5);
    QTest::newRow("endless") << QRectF(1, 1, INFINITY, 5);
  }
  void aRectangleWithoutAreaIsLeftOutAtOnce() {
    QFETCH(QRectF, rect);
    for (const PictureKind kind : {PictureKind::Eps, PictureKind::Pdf, PictureKind::Svg}) {
      Shown f(kind);
      f.snapshot.rect = rect;
      QCOMPARE(selectionFormats(f.snapshot).count(), 0);
    }
  }

  void withoutItsPdfAPdfPictureHasNothing() {
    Shown f(PictureKind::Pdf);
    f.process->fail(PictureCall::Compose, kDied, 1);  // the PDF is made first
    QCOMPARE(made(selectionFormats(f.snapshot)), (QList<bool>{false, false, false}));
    QCOMPARE(f.process->calls(PictureCall::Compose), 1);  // no EPS is tried
  }

  void withoutItsPdfAnEpsPictureKeepsItsEps() {
    MemoryPicture picture;
    picture.compose = [](const ComposeRequest& request) {
      return request.format == VectorFormat::Eps ? emptyEps(request.rect.size()) : QByteArray();
    };
    Shown f(PictureKind::Eps);
    f.service.setPicture(picture);
    f.snapshot.imageRep = *NSEPSImageRep::imageRepWithData(f.service, kEps);
    QCOMPARE(made(selectionFormats(f.snapshot)), (QList<bool>{true, false, false}));
  }

  void withoutItsPdfAnSvgKeepsSvgAndTiff() {
    Shown f(PictureKind::Svg);
    f.process->fail(PictureCall::Compose, kDied);
    QCOMPARE(made(selectionFormats(f.snapshot)), (QList<bool>{true, false, false, true}));
  }

  void withoutItsCutAnSvgHasNoTiffEither() {
    Shown f(PictureKind::Svg);
    f.process->fail(PictureCall::Svg, kDied);
    QCOMPARE(made(selectionFormats(f.snapshot)), (QList<bool>{false, true, true, false}));
  }

  void aCutThatCannotBeDrawnIsDrawnFromThePdf() {
    Shown f(PictureKind::Svg);
    const PictureFormats formats = selectionFormats(f.snapshot);
    f.service.setPrepare([](MemoryPictureProcess& process) {
      if (process.bytes() == kSvg) process.fail(PictureCall::Render, kDied);
    });
    QVERIFY(!formats.DataObjects.last()->get().isEmpty());
    QCOMPARE(f.service.openedKinds().last(), PictureKind::Pdf);
  }

  void aCancelledListIsMadeNoMore() {
    Shown f(PictureKind::Eps);
    const PictureFormats formats = selectionFormats(f.snapshot);
    f.process->hold(PictureCall::Compose);
    formats.cancel.cancel();
    QCOMPARE(made(formats), (QList<bool>{false, false, false}));
  }

  void rasterFormatsFollowThePdf() {
    Shown f(PictureKind::Eps);
    PictureFormats formats = selectionFormats(f.snapshot);
    appendRasterFormats(formats, f.snapshot);
    QCOMPARE(identifiers(formats).mid(3), (QStringList{"public.png", "public.jpeg", "com.compuserve.gif"}));
    QVERIFY(formats.DataObjects[3]->get().startsWith("\x89PNG"));
    QVERIFY(formats.DataObjects[4]->get().startsWith("\xFF\xD8"));
    QVERIFY(formats.DataObjects[5]->get().startsWith("GIF89a"));
    QCOMPARE(f.service.openCount(), 2);  // the picture, and its PDF once for all of them
    PictureFormats none;
    appendRasterFormats(none, f.snapshot);
    QCOMPARE(none.count(), 0);
    QCOMPARE(translatedFormats(none, f.snapshot).count(), 0);
  }

  void wholePicturesAreHandedOnAsTheyAre() {
    Shown eps(PictureKind::Eps);
    PictureFormats formats = wholePictureFormats(eps.snapshot);
    QCOMPARE(identifiers(formats), (QStringList{"com.adobe.encapsulated-postscript"}));
    QCOMPARE(formats.DataObjects[0]->get(), kEps);
    Shown pdf(PictureKind::Pdf);
    formats = wholePictureFormats(pdf.snapshot);
    QCOMPARE(identifiers(formats), (QStringList{"com.adobe.pdf"}));
    QCOMPARE(formats.DataObjects[0]->get(), emptyPdf({200, 100}));
    Shown svg(PictureKind::Svg);
    formats = wholePictureFormats(svg.snapshot);
    QCOMPARE(identifiers(formats), (QStringList{ZySVGDocumentTypeName, "com.adobe.pdf",
                                                "com.adobe.encapsulated-postscript", "public.tiff"}));
    QCOMPARE(formats.DataObjects[0]->get(), kSvg);
    QCOMPARE(made(formats), (QList<bool>{true, true, true, true}));
  }

  void otherProgramsFindWhatIsNotOffered() {
    Shown eps(PictureKind::Eps);
    const PictureFormats selected = selectionFormats(eps.snapshot);
    QCOMPARE(identifiers(translatedFormats(selected, eps.snapshot)),
             (QStringList{"public.svg-image", "public.png"}));
    const PictureFormats whole = wholePictureFormats(eps.snapshot);
    QCOMPARE(identifiers(translatedFormats(whole, wholeOf(eps.snapshot))),
             (QStringList{"public.svg-image", "com.adobe.pdf", "public.png"}));
    Shown pdf(PictureKind::Pdf);
    QCOMPARE(identifiers(translatedFormats(wholePictureFormats(pdf.snapshot), wholeOf(pdf.snapshot))),
             (QStringList{"public.svg-image", "com.adobe.encapsulated-postscript", "public.png"}));
    Shown svg(PictureKind::Svg);
    for (const PictureFormats& offered :
         {selectionFormats(svg.snapshot), wholePictureFormats(svg.snapshot)}) {
      const PictureFormats translated = translatedFormats(offered, wholeOf(svg.snapshot));
      QCOMPARE(identifiers(translated), (QStringList{"public.png"}));
      QCOMPARE(made(translated), (QList<bool>{true}));
    }
  }

  void anEngineWithoutSvgOffersNone() {
    MemoryPicture picture;
    picture.compose = [](const ComposeRequest&) { return QByteArray("%PDF"); };
    Shown f(PictureKind::Eps, picture);
    const PictureFormats offered = selectionFormats(f.snapshot);
    QCOMPARE(made(translatedFormats(offered, f.snapshot)), (QList<bool>{false, true}));
    QCOMPARE(f.process->composeRequests().first().format, VectorFormat::Svg);
    QCOMPARE(f.process->composeRequests().first().rect, f.snapshot.rect);
  }

  void theWholeIsUprightAndCentred() {
    Shown f(PictureKind::Eps);
    f.snapshot.placement.rotate = 1;
    const PictureSnapshot whole = wholeOf(f.snapshot);
    QCOMPARE(whole.rect, QRectF(-100, -50, 200, 100));
    QCOMPARE(whole.placement.rotate, 0.0);
  }
};

NORVEX_TEST(PictureFormatsTest)
#include "picture_formats_test.moc"
