// Pictures in memory, which everything above the seam is tested with: what is drawn, made and counted.
#include <unistd.h>

#include <memory>
#include <optional>

#include "kit/test_main.h"
#include "picture/process/finished_pictures.h"
#include "picture/process/memory_picture_service.h"
#include "picture/process/peak_memory.h"

using namespace norvex;

namespace {

RenderRequest drawing(const AffineTransform& pictureToDevice, const QSize& size, int page = 0) {
  return {page, pictureToDevice, size, RenderPurpose::View};
}

/// Points are pixels, and the page's upper edge is the bitmap's.
const AffineTransform kUpright(1, 0, 0, -1, 0, 100);

}  // namespace

class MemoryPictureTest : public QObject {
  Q_OBJECT
 private slots:
  void coloursTellWhereTheyAre() {
    const QImage image = testPattern(drawing(kUpright, {200, 100}), {200, 100});
    QCOMPARE(image.pixel(0, 0), qRgb(0, 253, 255));
    QCOMPARE(image.pixel(9, 99), qRgb(12, 1, 0));
    QCOMPARE(image.pixel(10, 99), qRgb(13, 1, 255));
    QCOMPARE(image.pixel(10, 89), qRgb(13, 26, 0));
    QCOMPARE(image.pixel(199, 0), qRgb(254, 253, 0));
  }

  void besideThePageNothingIsDrawn() {
    const QImage image = testPattern(drawing({1, 0, 0, -1, 5, 105}, {210, 110}), {200, 100});
    const auto isDrawn = [&](int x, int y) { return qAlpha(image.pixel(x, y)) == 255; };
    QVERIFY(!isDrawn(4, 50) && isDrawn(5, 50) && isDrawn(204, 50) && !isDrawn(205, 50));
    QVERIFY(!isDrawn(50, 4) && isDrawn(50, 5) && isDrawn(50, 104) && !isDrawn(50, 105));
    const QImage edge = testPattern(drawing({1, 0, 0, 1, 0.5, 0.5}, {201, 101}), {200, 100});
    QCOMPARE(qAlpha(edge.pixel(0, 0)), 255);  // the lower left corner is of the page, the upper right is not
    QCOMPARE(qAlpha(edge.pixel(200, 50)), 0);
    QCOMPARE(qAlpha(edge.pixel(50, 100)), 0);
    QVERIFY(testPattern(drawing({0, 0, 0, 0, 0, 0}, {2, 1}), {200, 100}).pixel(0, 0) == 0);
  }

  void anEmptyPdfIsOneThatReadersTake() {
    const QByteArray pdf = emptyPdf({200.5, 100});
    QVERIFY(pdf.contains("/MediaBox [0 0 200.5 100]"));
    const qsizetype table = pdf.indexOf("xref\n0 4\n");
    QVERIFY(pdf.endsWith("startxref\n" + QByteArray::number(table) + "\n%%EOF\n"));
    for (int object = 1; object <= 3; ++object) {
      const QByteArray entry = pdf.mid(table + 9 + 20 * object, 20);
      QCOMPARE(entry.mid(10), QByteArray(" 00000 n \n"));
      QVERIFY(pdf.mid(entry.left(10).toInt()).startsWith(QByteArray::number(object) + " 0 obj\n"));
    }
  }

  void whatIsComposedHasTheSizeOfItsRectangle() {
    MemoryPictureProcess process("bytes", MemoryPicture());
    const auto composed = [&](VectorFormat format) {
      ComposeRequest request;
      request.format = format;
      request.rect = QRectF(3, 4, 200.5, 100);
      return process.compose(request)->bytes;
    };
    QCOMPARE(composed(VectorFormat::Pdf), emptyPdf({200.5, 100}));
    QVERIFY(composed(VectorFormat::Eps).contains("\n%%BoundingBox: 0 0 201 100\n%%EndComments\nshowpage\n"));
    QCOMPARE(composed(VectorFormat::Svg),
             QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200.5pt\" height=\"100pt\"/>"));
    QCOMPARE(process.composeRequests().size(), 3);
    QCOMPARE(process.svg({})->bytes, QByteArray("bytes"));
  }

  void aPageThatIsNotThereIsNotDrawn() {
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(0, 0, 200, 100), QRectF(0, 0, 20, 10)};
    MemoryPictureProcess process({}, picture);
    QVERIFY(process.render(drawing(kUpright, {2, 2}, 1)).ok());
    const auto beyond = process.render(drawing(kUpright, {2, 2}, 2));
    QVERIFY(!beyond);
    QCOMPARE(beyond.error().kind, ErrorKind::Unsupported);
    QCOMPARE(process.renderRequests().size(), 2);
  }

  void callsFailAsOftenAsTheyAreTold() {
    MemoryPictureProcess process({}, MemoryPicture());
    const Error error{ErrorKind::Died, QStringLiteral("it died")};
    process.fail(PictureCall::Facts, error, 2);
    for (const bool good : {false, false, true}) QCOMPARE(process.facts().ok(), good);
    process.fail(PictureCall::Facts, error);
    for (int i = 0; i < 4; ++i) QVERIFY(!process.facts());
    process.succeed(PictureCall::Facts);
    QVERIFY(process.facts().ok());
    QCOMPARE(process.calls(PictureCall::Facts), 8);
    QCOMPARE(process.calls(PictureCall::Render), 0);
  }

  void whatIsHeldWaitsUntilItIsReleasedOrCancelled() {
    MemoryPictureProcess process({}, MemoryPicture());
    process.hold(PictureCall::Facts);
    CancelToken cancel;
    cancel.cancel();
    const auto cancelled = process.facts(cancel);
    QVERIFY(!cancelled);
    QCOMPARE(cancelled.error().kind, ErrorKind::Cancelled);
    QCOMPARE(cancelled.error().message, "the answer is no longer wanted");
    QCOMPARE(process.cancelledCalls(), 1);
    QVERIFY(!process.waitUntilHeld(PictureCall::Facts, 1, 0));
    process.release(PictureCall::Facts);
    QVERIFY(process.facts().ok());
  }

  void theServiceCountsAndComposesNoPages() {
    MemoryPictureService service;
    CancelToken cancel;
    cancel.cancel();
    QCOMPARE(service.decodePreview({}, cancel).error().kind, ErrorKind::Cancelled);
    QCOMPARE(service.decodePreview({}).error().message, "there is no preview");
    QCOMPARE(service.previewCount(), 2);
    QCOMPARE(service.composePages({}, {}).error().message, "pages cannot be composed here");
    QCOMPARE(service.chosenPdf("a", {})->bytes, QByteArray("a"));
    QCOMPARE(service.choices().size(), 1);
    (void)service.open("b", PictureKind::Svg);
    QCOMPARE(service.openedKinds(), QList<PictureKind>{PictureKind::Svg});
    QCOMPARE(service.lastProcess()->bytes(), QByteArray("b"));
  }

  void whatAProgramHadDrawnWhenItStoppedIsNoFinishedPicture() {
    const auto kinds = [](const QString& stoppedBy, std::optional<Error> failure) {
      MemoryPicture picture;
      picture.facts.stoppedBy = stoppedBy;
      const auto process = std::make_shared<MemoryPictureProcess>(QByteArray("bytes"), picture);
      if (failure)
        for (const PictureCall call :
             {PictureCall::Render, PictureCall::Pdf, PictureCall::Compose, PictureCall::Examine})
          process->fail(call, *failure);
      FinishedPictures finished(process);
      const auto told = [](const auto& result) {
        return result ? QStringLiteral("good") : result.error().message;
      };
      const QStringList all{told(finished.render(drawing(kUpright, {2, 2}))), told(finished.pdf({})),
                            told(finished.compose({})), told(finished.examine({}))};
      return all;
    };
    QCOMPARE(kinds({}, {}), QStringList({"good", "good", "good", "good"}));
    QCOMPARE(kinds("it stops", {}), QStringList({"it stops", "it stops", "it stops", "it stops"}));
    const Error died{ErrorKind::Died, QStringLiteral("it died")};
    QCOMPARE(kinds("it stops", died), QStringList({"it died", "it died", "it died", "it died"}));
  }

  void theMostMemoryOfProcessesIsKept() {
    QVERIFY(!PeakMemory::ofThisThread());
    PeakMemory peak;
    QCOMPARE(PeakMemory::ofThisThread(), &peak);
    QCOMPARE(peak.kib(), 0);
    peak.note(::getpid());
    const qint64 own = peak.kib();
    QVERIFY(own > 1024);
    peak.note(-1);  // there is none
    QCOMPARE(peak.kib(), own);
  }
};

NORVEX_TEST(MemoryPictureTest)
#include "memory_picture_test.moc"
