// Processes that are forked for facts alone, and documents whose facts take more.
#include <QFile>

#include <memory>

#include "kit/test_main.h"
#include "picture/client/spawned_worker.h"
#include "picture/client/worker_service.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;

namespace {

/// As large as what is drawn.
const QByteArray kUnmeasured = "<svg xmlns='http://www.w3.org/2000/svg'><rect width='40' height='20'/></svg>";
const QByteArray kMeasured = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'/>";

bool hasLoaded(qint64 pid, const char* library) {
  QFile maps(QStringLiteral("/proc/%1/maps").arg(pid));
  return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

}  // namespace

class FactsProcessTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    service_ = std::make_unique<WorkerService>(QString(),
                                               spawnWorker(NORVEX_BUILD_DIR "/norvex-worker", NeedFacts, {}));
    service_->openOnlyFor(PictureUse::Facts);
  }

  void whatIsMeasuredByDrawingIsOpenedByAProcessThatDraws() {
    const auto opened = service_->open(kUnmeasured, PictureKind::Svg);
    const Result<PictureFacts> facts = opened->facts();
    QVERIFY2(facts.ok(), facts.ok() ? "" : qPrintable(facts.error().message));
    QCOMPARE(facts->pageBounds, QList<QRectF>{QRectF(0, 0, 30, 15)});
  }

  void theProgramThatForksLoadsNothingForAFewOfThem() {
    QVERIFY(service_->open(kMeasured, PictureKind::Svg)->facts().ok());
    if (hasLoaded(service_->programProcessId(), "librsvg")) QSKIP("a sanitized program has every library");
    QVERIFY(service_->open(kUnmeasured, PictureKind::Svg)->facts().ok());
    QVERIFY(!hasLoaded(service_->programProcessId(), "librsvg"));
  }

  void whereThereAreManyItIsLoadedOnce() {
    for (int i = 0; i < 10; ++i) QVERIFY(service_->open(kUnmeasured, PictureKind::Svg)->facts().ok());
    QVERIFY(hasLoaded(service_->programProcessId(), "librsvg"));
  }

  void nothingIsDrawnThere_data() {
    QTest::addColumn<PictureKind>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("SVG") << PictureKind::Svg << kMeasured;
    QTest::newRow("PDF") << PictureKind::Pdf << emptyPdf({40, 20});
  }
  void nothingIsDrawnThere() {
    QFETCH(PictureKind, kind);
    QFETCH(QByteArray, bytes);
    const auto opened = service_->open(bytes, kind);
    const auto facts = opened->facts();
    QVERIFY2(facts.ok(), facts.ok() ? "" : qPrintable(facts.error().message));
    RenderRequest request;
    request.pixelSize = QSize(4, 4);
    QCOMPARE(opened->render(request).error().kind, ErrorKind::Unsupported);
  }

 private:
  std::unique_ptr<WorkerService> service_;
};

NORVEX_TEST(FactsProcessTest)
#include "facts_process_test.moc"
