// The three image representations: what they tell, what they ask the picture process, and how they are drawn.
#include "picture/image_rep.h"

#include <QPainter>
#include <QSignalSpy>

#include "kit/test_main.h"
#include "picture/eps_image_rep.h"
#include "picture/gzip_stream.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/memory_picture_service.h"
#include "picture/process/null_picture_service.h"
#include "picture/web_image_rep.h"

using namespace norvex;

namespace {

const QByteArray kEps =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 10 20 210 120\n%%HiResBoundingBox: 10.25 20.5 209.75 119.5\n"
    "%%EndComments\n0 0 moveto\n%%EOF\n";
const QByteArray kSvg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\"/>";
const QByteArray kPdf = "%PDF-1.7\n";

QByteArray dosEps(const QByteArray& postScript) {
  QByteArray bytes("\xC5\xD0\xD3\xC6", 4);
  const auto number = [&](quint32 value) {
    for (int i = 0; i < 4; ++i) bytes += char(value >> (8 * i));
  };
  number(30);
  number(quint32(postScript.size()));
  for (int i = 0; i < 4; ++i) number(0);
  bytes += "\xFF\xFF";
  return bytes + postScript;
}

MemoryPicture svgPicture() {
  MemoryPicture memory;
  memory.facts.viewBox = QRectF(0, 0, 100, 50);
  memory.facts.title = QStringLiteral("A title");
  memory.facts.description = QStringLiteral("A description");
  memory.facts.encodingName = QStringLiteral("UTF-8");
  memory.facts.encodingNumber = 4;
  memory.facts.fixedRatioX = true;
  memory.facts.fixedRatioY = false;
  return memory;
}

}  // namespace

class ImageRepTest : public QObject {
  Q_OBJECT
 private slots:
  void anEpsInUtf16IsAPicture() {
    MemoryPictureService service;
    for (const bool little : {false, true}) {
      QByteArray bytes = little ? QByteArray("\xFF\xFE") : QByteArray("\xFE\xFF");
      for (const char c : QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 30 40\n%%EndComments\n"))
        bytes += little ? QByteArray(1, c) + QByteArray(1, '\0') : QByteArray(1, '\0') + QByteArray(1, c);
      const auto rep = NSEPSImageRep::imageRepWithData(service, bytes);
      QVERIFY2(rep.ok(), rep ? "" : qPrintable(rep.error().message));
      QCOMPARE((*rep)->boundingBox(), QRectF(0, 0, 30, 40));
    }
  }

  // ---- EPS
  void whatMayPrecedePostScriptIsPassedOver() {
    MemoryPictureService service;
    const QByteArray eps("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 30 40\n%%EndComments\n");
    for (const QByteArray& start :
         {QByteArray(3, '\0'), QByteArray("\x04"), QByteArray(" \t\r\n\v\f"), QByteArray(64, '\0')})
      QVERIFY2(NSEPSImageRep::imageRepWithData(service, start + eps), start.toHex());
    QVERIFY(!NSEPSImageRep::imageRepWithData(service, QByteArray(65, '\0') + eps));
  }
  void commentsWithABoundingBoxDoWithoutTheMark() {
    MemoryPictureService service;
    for (const QByteArray& start : {QByteArray("%%%%%%%%\n% a form's field\n%!PS-Adobe-3.0 EPSF-3.0\n"),
                                    QByteArray("\n%%Creator: one that forgets it\n")}) {
      const auto rep =
          NSEPSImageRep::imageRepWithData(service, start + "%%BoundingBox: 0 0 300 30\n0 0 9 9 rectfill\n");
      QVERIFY(rep);
      QCOMPARE((*rep)->boundingBox(), QRectF(0, 0, 300, 30));
      QVERIFY(!NSEPSImageRep::imageRepWithData(service, start + "0 0 9 9 rectfill\n"));
    }
    QVERIFY(!NSEPSImageRep::imageRepWithData(service, "a text\n%%BoundingBox: 0 0 300 30\n"));
    QVERIFY(!NSEPSImageRep::imageRepWithData(service, "%PDF-1.4\n%%BoundingBox: 0 0 300 30\n"));
  }

  void anEpsTellsItsBoxesWithoutAskingTheProcess() {
    MemoryPictureService service;
    const auto rep = NSEPSImageRep::imageRepWithData(service, kEps);
    QVERIFY(rep);
    QCOMPARE((*rep)->boundingBox(), QRectF(10, 20, 200, 100));
    QCOMPARE((*rep)->hiResBoundingBox(), QRectF(10.25, 20.5, 199.5, 99));
    QCOMPARE((*rep)->size(), QSizeF(200, 100));
    QCOMPARE((*rep)->EPSRepresentation(), kEps);
    QCOMPARE((*rep)->pictureKind(), PictureKind::Eps);
    QCOMPARE(service.openedKinds(), QList<PictureKind>{PictureKind::Eps});
    QCOMPARE(service.lastProcess()->calls(PictureCall::Facts), 0);
    QCOMPARE(service.lastProcess()->bytes(), kEps);
  }

  void aBinaryEpsKeepsItsHeaderInItsRepresentation() {
    MemoryPictureService service;
    const QByteArray binary = dosEps(kEps);
    const auto rep = NSEPSImageRep::imageRepWithData(service, binary);
    QVERIFY(rep);
    QCOMPARE((*rep)->boundingBox(), QRectF(10, 20, 200, 100));
    QCOMPARE((*rep)->EPSRepresentation(), binary);
  }

  void anEpsWithOnlyTheExactBoxGetsTheWholePointsAroundIt() {
    MemoryPictureService service;
    const auto rep = NSEPSImageRep::imageRepWithData(
        service, "%!PS-Adobe-3.0 EPSF-3.0\n%%HiResBoundingBox: 0.5 0.25 99.5 49.75\n%%EndComments\n");
    QVERIFY(rep);
    QCOMPARE((*rep)->boundingBox(), QRectF(0, 0, 100, 50));
  }

  void whatTheProgramLacksIsToldByName() {
    MemoryPictureService service;
    const auto told = [&](const QByteArray& bytes) {
      return NSEPSImageRep::imageRepWithData(service, bytes).error().message;
    };
    const QString noEps = "this is not Encapsulated PostScript: it does not begin with %!";
    QCOMPARE(told("newpath 0 0 moveto\n%%BoundingBox: 0 0 10 10\n"), noEps);
    QCOMPARE(told("\n100 100 rectstroke\n"), noEps + " and states no bounding box");
  }

  void whatIsNotEpsIsRefusedWithAReason_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("pdf") << QByteArray("%PDF-1.4\n%%BoundingBox: 0 0 10 10\n");
    QTest::newRow("text") << QByteArray("a text\n%%BoundingBox: 0 0 10 10\n");
    QTest::newRow("no box") << QByteArray("%!PS-Adobe-3.0 EPSF-3.0\n%%EndComments\n");
    QTest::newRow("flat box") << QByteArray(
        "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 5 5 5 90\n%%EndComments\n");
    QTest::newRow("binary without sections") << QByteArray("\xC5\xD0\xD3\xC6", 4) + QByteArray(27, '\0');
    QTest::newRow("blanks only") << QByteArray(100, ' ');
    QTest::newRow("cut in the mark") << QByteArray("%");
  }
  void whatIsNotEpsIsRefusedWithAReason() {
    QFETCH(QByteArray, bytes);
    MemoryPictureService service;
    const auto rep = NSEPSImageRep::imageRepWithData(service, bytes);
    QVERIFY(!rep);
    QCOMPARE(rep.error().kind, ErrorKind::NotParsable);
    QVERIFY(!rep.error().message.isEmpty());
    QCOMPARE(service.openCount(), 0);
  }

  // ---- PDF
  void aPdfShowsItsFirstPageAndCanShowAnother() {
    MemoryPicture memory;
    memory.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(10, 20, 300, 400)};
    memory.facts.pageCount = 2;
    MemoryPictureService service(memory);
    const auto first = NSPDFImageRep::imageRepWithData(service, kPdf);
    QVERIFY(first);
    QCOMPARE((*first)->bounds(), QRectF(0, 0, 200, 100));
    QCOMPARE((*first)->PDFRepresentation(), kPdf);
    QCOMPARE((*first)->pageCount(), 2);
    const auto second = (*first)->imageRepWithPage(1);
    QVERIFY(second);
    QCOMPARE((*second)->bounds(), QRectF(10, 20, 300, 400));
    QCOMPARE((*second)->page(), 1);
    QCOMPARE((*second)->process(), (*first)->process());
    QCOMPARE(service.openCount(), 1);
    QCOMPARE((*NSPDFImageRep::imageRepWithData(service, kPdf, {}, 1))->size(), QSizeF(300, 400));
  }

  void aPageThatIsNotThereIsAnError() {
    MemoryPictureService service;
    for (const int page : {-1, 1, 1000}) {
      const auto rep = NSPDFImageRep::imageRepWithData(service, kPdf, {}, page);
      QVERIFY(!rep);
      QCOMPARE(rep.error().kind, ErrorKind::Unsupported);
    }
    MemoryPicture manyPages;
    manyPages.facts.pageCount = 5000;  // one box is told
    service.setPicture(manyPages);
    QCOMPARE(NSPDFImageRep::imageRepWithData(service, kPdf, {}, 1).error().message,
             "page 2 is too far behind");
    QCOMPARE(NSPDFImageRep::imageRepWithData(service, kPdf, {}, 5000).error().message,
             "there is no page 5001, the document has 5000");
    MemoryPicture flat;
    flat.facts.pageBounds = {QRectF(0, 0, 9, 0)};
    service.setPicture(flat);
    QCOMPARE(NSPDFImageRep::imageRepWithData(service, kPdf).error().message, "page 1 has no area");
  }

  void aPdfThatCannotBeOpenedTellsWhy() {
    MemoryPictureService service;
    service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::Encrypted, QStringLiteral("a password is needed")});
    });
    const auto rep = NSPDFImageRep::imageRepWithData(service, kPdf);
    QVERIFY(!rep);
    QCOMPARE(rep.error().kind, ErrorKind::Encrypted);
    NullPictureService none;
    QCOMPARE(NSPDFImageRep::imageRepWithData(none, kPdf).error().kind, ErrorKind::Died);
    QCOMPARE(NSPDFImageRep::imageRepWithData(none, {}).error().kind, ErrorKind::NotParsable);
  }

  // ---- SVG
  void anSvgAnswersTheKeys() {
    MemoryPictureService service(svgPicture());
    const QUrl url = QUrl::fromLocalFile(QStringLiteral("/tmp/a.svg"));
    const auto rep = *ZyWebImageRep::imageRepWithData(service, kSvg, url);
    QCOMPARE(rep->valueForKey(ZyWebViewTitleKey), QVariant(QStringLiteral("A title")));
    QCOMPARE(rep->valueForKey(ZyWebViewDescKey), QVariant(QStringLiteral("A description")));
    QCOMPARE(rep->valueForKey(ZyWebViewEncodingKey), QVariant(QStringLiteral("UTF-8")));
    QCOMPARE(rep->valueForKey(ZyWebViewEncodingNumberKey), QVariant(qint64(4)));
    QCOMPARE(rep->valueForKey(ZyWebViewFixedRatioXKey), QVariant(true));
    QCOMPARE(rep->valueForKey(ZyWebViewFixedRatioYKey), QVariant(false));
    QCOMPARE(rep->valueForKey("viewBox").toRectF(), QRectF(0, 0, 100, 50));
    QCOMPARE(rep->valueForKey("fileURL").toUrl(), url);
    QCOMPARE(rep->valueForKey(ZyWebViewFileURLKey).toUrl(), url);
    QVERIFY(!rep->valueForKey(ZyWebViewPDFImageRepKey).isValid());
    QVERIFY(!rep->valueForKey("unheard of").isValid());
    QVERIFY(rep->isFlipped());
    QVERIFY(!rep->colorSpace());
    QCOMPARE(rep->bounds(), QRectF(0, 0, 200, 100));
  }

  void anSvgWithoutFactsAnswersNothing() {
    MemoryPictureService service;
    const auto rep = *ZyWebImageRep::imageRepWithData(service, kSvg);
    for (const char* key :
         {ZyWebViewTitleKey, ZyWebViewDescKey, ZyWebViewEncodingKey, ZyWebViewEncodingNumberKey,
          ZyWebViewFixedRatioXKey, ZyWebViewFixedRatioYKey, ZyWebViewFileURLKey, "viewBox", "fileURL"})
      QVERIFY2(!rep->valueForKey(key).isValid(), key);
  }

  void theRepresentationsOfAnSvgComeFromTheProcess() {
    MemoryPicture memory = svgPicture();
    QList<SvgRequest> asked;
    memory.svg = [&](const SvgRequest& request) {
      asked << request;
      return QByteArray(request.pretty ? "pretty" : request.rect ? "cut" : "inflated");
    };
    MemoryPictureService service(memory);
    const auto rep = *ZyWebImageRep::imageRepWithData(service, kSvg);
    QCOMPARE(rep->SVGRepresentation(), kSvg);
    QVERIFY(asked.isEmpty());
    QCOMPARE(rep->SVGPrettyRepresentation(), QByteArray("pretty"));
    QCOMPARE(rep->xmlDocumentWithSVGInsideRect(QRectF(1, 2, 3, 4), 0.5), QByteArray("cut"));
    QCOMPARE(asked.last().rect, QRectF(1, 2, 3, 4));
    QCOMPARE(asked.last().rotate, 0.5);
    QVERIFY(rep->PDFRepresentation().startsWith("%PDF-"));
    QVERIFY(rep->EPSRepresentation().startsWith("%!PS-Adobe-3.0 EPSF-3.0"));
    const ComposeRequest compose = service.lastProcess()->composeRequests().first();
    QCOMPARE(compose.rect, QRectF(-100, -50, 200, 100));
    QCOMPARE(compose.rotate, 0.0);

    const auto compressed = *ZyWebImageRep::imageRepWithData(service, ZyWebImageRep::gzip(kSvg));
    QCOMPARE(compressed->SVGRepresentation(), QByteArray("inflated"));
  }

  void representationsThatFailAreEmpty() {
    MemoryPictureService service(svgPicture());
    const auto rep = *ZyWebImageRep::imageRepWithData(service, ZyWebImageRep::gzip(kSvg));
    for (const PictureCall call : {PictureCall::Svg, PictureCall::Pdf, PictureCall::Compose})
      service.lastProcess()->fail(call, {ErrorKind::Died, QStringLiteral("gone")});
    QVERIFY(rep->SVGRepresentation().isEmpty());
    QVERIFY(rep->SVGPrettyRepresentation().isEmpty());
    QVERIFY(rep->PDFRepresentation().isEmpty());
    QVERIFY(rep->EPSRepresentation().isEmpty());
    QVERIFY(rep->xmlDocumentWithSVGInsideRect(QRectF(0, 0, 1, 1), 0).isEmpty());
  }

  void anSvgWithoutAreaIsRefused() {
    MemoryPicture memory;
    memory.facts.pageBounds = {QRectF(0, 0, 0, 100)};
    MemoryPictureService service(memory);
    QCOMPARE(ZyWebImageRep::imageRepWithData(service, kSvg).error().message, "the SVG document has no area");
    QCOMPARE(ZyWebImageRep::imageRepWithData(service, {}).error().message, "the file is empty");
    memory.facts.pageBounds = {};
    service.setPicture(memory);
    QCOMPARE(ZyWebImageRep::imageRepWithData(service, kSvg).error().kind, ErrorKind::NotParsable);
  }

  void anSvgIsReadFromALocalFile() {
    MemoryPictureService service(svgPicture());
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a b.svg"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kSvg);
    file.close();
    const auto rep = ZyWebImageRep::imageRepWithContentsOfURL(service, QUrl::fromLocalFile(path));
    QVERIFY(rep);
    QCOMPARE((*rep)->sourceBytes(), kSvg);
    QCOMPARE((*rep)->valueForKey("fileURL").toUrl().toLocalFile(), path);
    const auto missing = ZyWebImageRep::imageRepWithContentsOfURL(service, QUrl::fromLocalFile(path + "x"));
    QCOMPARE(missing.error().kind, ErrorKind::CannotRead);
    const auto remote =
        ZyWebImageRep::imageRepWithContentsOfURL(service, QUrl(QStringLiteral("http://host/a.svg")));
    QCOMPARE(remote.error().kind, ErrorKind::CannotRead);
    QCOMPARE(remote.error().message, QStringLiteral("only local files can be opened"));
  }

  void thePdfFormOfAnSvgArrivesInTheBackground() {
    MemoryPictureService service(svgPicture());
    const auto rep = *ZyWebImageRep::imageRepWithData(service, kSvg);
    QSignalSpy loaded(rep.get(), &ZyWebImageRep::pdfImageRepDidLoad);
    service.lastProcess()->hold(PictureCall::Pdf);
    rep->loadPDFImageRep();
    rep->loadPDFImageRep();
    QVERIFY(service.lastProcess()->waitUntilHeld(PictureCall::Pdf));
    QVERIFY(loaded.isEmpty());
    service.lastProcess()->release(PictureCall::Pdf);
    QVERIFY(QTest::qWaitFor([&] { return loaded.size() == 1; }, 20000));
    QCOMPARE(loaded.first().at(0).toBool(), true);
    const auto value = rep->valueForKey(ZyWebViewPDFImageRepKey).value<std::shared_ptr<NSImageRep>>();
    QVERIFY(value);
    const auto pdf = std::dynamic_pointer_cast<NSPDFImageRep>(value);
    QVERIFY(pdf);
    QVERIFY(pdf->PDFRepresentation().startsWith("%PDF-"));
    QCOMPARE(pdf->size(), QSizeF(200, 100));
    QCOMPARE(service.openCount(), 1);  // it is drawn by the picture's own process
    rep->loadPDFImageRep();
    QVERIFY(QTest::qWaitFor([&] { return loaded.size() == 2; }, 20000));
    QCOMPARE(service.lastProcess()->calls(PictureCall::Pdf), 1);
  }

  void aPdfFormThatFailsTellsItsError() {
    MemoryPictureService service(svgPicture());
    const auto rep = *ZyWebImageRep::imageRepWithData(service, kSvg);
    QSignalSpy loaded(rep.get(), &ZyWebImageRep::pdfImageRepDidLoad);
    service.lastProcess()->fail(PictureCall::Pdf, {ErrorKind::TimedOut, QStringLiteral("not done in time")},
                                1);
    rep->loadPDFImageRep();
    QVERIFY(QTest::qWaitFor([&] { return loaded.size() == 1; }, 20000));
    QCOMPARE(loaded.first().at(0).toBool(), false);
    QCOMPARE(loaded.first().at(1).value<Error>().message, QStringLiteral("not done in time"));
    QVERIFY(!rep->valueForKey(ZyWebViewPDFImageRepKey).isValid());
    rep->loadPDFImageRep();
    QVERIFY(QTest::qWaitFor([&] { return loaded.size() == 2; }, 20000));
    QCOMPARE(loaded.last().at(0).toBool(), true);
  }

  void closingAnSvgWhileItsPdfFormIsMadeCancelsThat() {
    MemoryPictureService service(svgPicture());
    auto rep = *ZyWebImageRep::imageRepWithData(service, kSvg);
    const auto process = service.lastProcess();
    process->hold(PictureCall::Pdf);
    rep->loadPDFImageRep();
    QVERIFY(process->waitUntilHeld(PictureCall::Pdf));
    rep.reset();
    QVERIFY(QTest::qWaitFor([&] { return process->cancelledCalls() == 1; }, 20000));
  }

  // ---- drawing
  void drawingAsksForWhatTheClipShowsAndTellsTheArrival() {
    MemoryPictureService service;
    const auto rep = *NSPDFImageRep::imageRepWithData(service, kPdf);
    QSignalSpy arrived(rep.get(), &NSImageRep::renderingArrived);
    QVERIFY(!rep->isSharp());
    const auto frame = [&] {
      QImage image(300, 200, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::transparent);
      QPainter painter(&image);
      painter.translate(20, 150);
      painter.scale(1.2, -1.2);
      painter.setClipRect(QRectF(0, 0, 100, 100));
      rep->draw(painter);
      return image;
    };
    frame();
    QVERIFY(rep->isRendering());
    QVERIFY(!rep->renderingError());
    QVERIFY(QTest::qWaitFor([&] { return rep->isSharp(); }, 20000));
    QVERIFY(!arrived.isEmpty());
    const QImage image = frame();
    const QImage expected =
        testPattern({0, QTransform(1.2, 0, 0, -1.2, 20, 150), {300, 200}, RenderPurpose::View}, {200, 100});
    QCOMPARE(image.copy(0, 0, 139, 200), expected.copy(0, 0, 139, 200));
    QCOMPARE(qAlpha(image.pixel(142, 100)), 0);
    QVERIFY(qAlpha(expected.pixel(142, 100)) == 255);
  }

  void aPictureIsDrawnWhollyAtEveryScaleFactor_data() {
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) QTest::addRow("%g", ratio) << ratio;
  }

  void aPictureIsDrawnWhollyAtEveryScaleFactor() {
    QFETCH(const double, ratio);
    MemoryPictureService service;
    const auto rep = *NSPDFImageRep::imageRepWithData(service, kPdf);
    const QSize pixels = QSize(300, 200) * ratio;
    const auto frame = [&] {
      QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
      image.setDevicePixelRatio(ratio);
      image.fill(Qt::transparent);
      QPainter painter(&image);
      painter.translate(40, 160);
      painter.scale(1, -1);
      rep->draw(painter);
      return image;
    };
    frame();
    QVERIFY(QTest::qWaitFor([&] { return rep->isSharp(); }, 20000));
    QImage image = frame();
    image.setDevicePixelRatio(1);
    const QTransform toDevice(ratio, 0, 0, -ratio, 40 * ratio, 160 * ratio);
    QCOMPARE(image, testPattern({0, toDevice, pixels, RenderPurpose::View}, {200, 100}));
  }

  void aFailedRenderingIsToldAndCanBeRetried() {
    MemoryPictureService service;
    const auto rep = *NSPDFImageRep::imageRepWithData(service, kPdf);
    service.lastProcess()->fail(PictureCall::Render, {ErrorKind::Died, QStringLiteral("gone")}, 1);
    QSignalSpy failed(rep.get(), &NSImageRep::renderingFailed);
    QImage image(300, 200, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    rep->draw(painter);
    QVERIFY(QTest::qWaitFor([&] { return failed.size() == 1; }, 20000));
    QCOMPARE(rep->renderingError()->message, QStringLiteral("gone"));
    QCOMPARE(failed.first().first().value<Error>().kind, ErrorKind::Died);
    rep->retryRendering();
    QVERIFY(QTest::qWaitFor([&] { return rep->isSharp(); }, 20000));
    QVERIFY(!rep->renderingError());
  }

  // ---- rasters
  void aRasterHasOnePixelForEveryPointTimesTheScale() {
    MemoryPictureService service;
    const auto rep = *NSEPSImageRep::imageRepWithData(service, kEps);
    QCOMPARE(rep->rasterImage(1)->size(), QSize(200, 100));
    QCOMPARE(rep->rasterImage(300.0 / 72)->size(), QSize(834, 417));
    QCOMPARE(rep->rasterImage(1.1)->size(), QSize(220, 110));  // not 221: the factor is not exact in binary
    QCOMPARE(rep->rasterImage(0.001)->size(), QSize(1, 1));
    const QImage image = *rep->rasterImage(2);
    QCOMPARE(image.pixel(0, 199), qRgb(0, 0, 0));
    QVERIFY(qGreen(image.pixel(0, 0)) > 250);
    QVERIFY(qRed(image.pixel(399, 199)) > 250);
  }

  void aRasterThatCannotBeMadeIsAnError() {
    MemoryPictureService service;
    const auto rep = *NSEPSImageRep::imageRepWithData(service, kEps);
    QCOMPARE(rep->rasterImage(1000).error().kind, ErrorKind::Limit);
    QCOMPARE(rep->rasterImage(0).error().kind, ErrorKind::Unsupported);
    QCOMPARE(rep->rasterImage(-1).error().kind, ErrorKind::Unsupported);
    QCOMPARE(rep->rasterImage(qQNaN()).error().kind, ErrorKind::Unsupported);
    CancelToken cancel;
    cancel.cancel();
    QCOMPARE(rep->rasterImage(1, RenderPurpose::Export, cancel).error().kind, ErrorKind::Cancelled);
  }

  void withItsLastReferenceItIsGoneAtOnce() {
    MemoryPictureService service;
    std::shared_ptr<NSImageRep> rep = *NSEPSImageRep::imageRepWithData(service, kEps);
    const QPointer<NSImageRep> watched = rep.get();
    rep.reset();
    QVERIFY(watched.isNull());
  }

  void theLastReferenceMayGoInAnotherThread() {
    MemoryPictureService service;
    std::shared_ptr<NSImageRep> rep = *NSEPSImageRep::imageRepWithData(service, kEps);
    const QPointer<NSImageRep> watched = rep.get();
    std::unique_ptr<QThread> thread(QThread::create([rep = std::move(rep)]() mutable { rep.reset(); }));
    thread->start();
    QVERIFY(thread->wait(20000));
    thread.reset();
    QVERIFY(QTest::qWaitFor([&] { return watched.isNull(); }, 20000));
  }
};

NORVEX_TEST(ImageRepTest)
#include "image_rep_test.moc"
