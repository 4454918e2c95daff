// The shipped picture program, from the bytes of a document to its answers.
#include <signal.h>
#include <unistd.h>

#include <memory>
#include <thread>
#include <vector>

#include "kit/descriptors_on_their_way.h"
#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "picture/client/worker_client.h"
#include "picture/client/worker_service.h"
#include "protocol/limits.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kProgram = QStringLiteral(NORVEX_BUILD_DIR "/norvex-worker");

const char kSvg[] =
    "<svg xmlns='http://www.w3.org/2000/svg' width='40pt' height='20pt' viewBox='0 0 40 "
    "20'><title>Two</title>"
    "<rect width='20' height='20' fill='#ff0000'/><rect x='20' width='20' height='20' fill='#0000ff'/></svg>";

const char kEps[] =
    "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 40 20\n%%EndComments\n"
    "1 0 0 setrgbcolor 0 0 20 20 rectfill 0 0 1 setrgbcolor 20 0 20 20 rectfill showpage\n%%EOF\n";

/// Pixels of the whole 40 × 20 picture, one for each point.
RenderRequest wholePicture() {
  RenderRequest request;
  request.pixelSize = QSize(40, 20);
  request.pictureToDevice = QTransform(1, 0, 0, -1, 0, 20);
  return request;
}

}  // namespace

class RealWorkerTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    runtime_ = std::make_unique<RuntimeFolder>();
    service_ = std::make_unique<WorkerService>(kProgram);
  }
  void cleanup() {
    service_.reset();
    QVERIFY(hasNoChildren());
    QCOMPARE(runtime_->entries(), QStringList());
    runtime_.reset();
  }

  void everyKindIsOpenedAndDrawn_data() {
    QTest::addColumn<PictureKind>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("SVG") << PictureKind::Svg << QByteArray(kSvg);
    QTest::newRow("EPS") << PictureKind::Eps << QByteArray(kEps);
    QTest::newRow("PDF") << PictureKind::Pdf << pdf();
  }
  void everyKindIsOpenedAndDrawn() {
    QFETCH(PictureKind, kind);
    QFETCH(QByteArray, bytes);
    const auto process = service_->open(bytes, kind);
    const auto facts = process->facts();
    QVERIFY2(facts.ok(), facts.ok() ? "" : qPrintable(facts.error().message));
    QCOMPARE(facts->pageCount, 1);
    const auto image = process->render(wholePicture());
    QVERIFY2(image.ok(), image.ok() ? "" : qPrintable(image.error().message));
    QCOMPARE(image->pixelColor(5, 10), QColor(Qt::red));
    QCOMPARE(image->pixelColor(35, 10), QColor(Qt::blue));
    const auto composed = process->compose({VectorFormat::Pdf, 0, QRectF(-10, -5, 20, 10), 0});
    QVERIFY2(composed.ok(), composed.ok() ? "" : qPrintable(composed.error().message));
    QVERIFY(composed->bytes.startsWith("%PDF-"));
  }

  // The kernel counts what all programs of the user have sent; those may be many, and slow to receive.
  void picturesAreHandedOverBesideOtherProgramsDescriptors_data() {
    QTest::addColumn<PictureKind>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("SVG") << PictureKind::Svg << QByteArray(kSvg);
    QTest::newRow("EPS") << PictureKind::Eps << QByteArray(kEps);
  }
  void picturesAreHandedOverBesideOtherProgramsDescriptors() {
    QFETCH(PictureKind, kind);
    QFETCH(QByteArray, bytes);
    const kit::DescriptorsOnTheirWay usual(limits::maximumOpenFilesOfSender / 2);
    QVERIFY(usual.isComplete());
    QVERIFY(service_->open(bytes, kind)->render(wholePicture()).ok());
    auto tooMany = std::make_unique<kit::DescriptorsOnTheirWay>(limits::maximumOpenFilesOfSender);
    if (!tooMany->isComplete()) QSKIP("this system does not let a program have so many on their way");
    std::thread receiver([&] {
      ::usleep(300'000);
      tooMany.reset();
    });
    const auto image = service_->open(bytes, kind)->render(wholePicture());
    receiver.join();
    QVERIFY2(image.ok(), image.ok() ? "" : qPrintable(image.error().message));
  }

  // A process with more could not fork.
  void theProgramHasOneThreadOnceItIsWarm() {
    std::vector<std::shared_ptr<PictureProcess>> open;
    for (int i = 0; i < 3; ++i) {  // a third picture is not begun before the program is warm
      open.push_back(service_->open(kSvg, PictureKind::Svg));
      QVERIFY(open.back()->facts().ok());
    }
    const QList<qint64> programs = childrenOf(::getpid());
    QCOMPARE(programs.size(), 1);
    const QDir threads(QStringLiteral("/proc/%1/task").arg(programs.first()));
    QCOMPARE(threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
  }

  void aPreparedInterpreterIsUsed() {
    service_->prepare(PictureKind::Eps);
    QVERIFY(service_->open(kEps, PictureKind::Eps)->render(wholePicture()).ok());
  }

  // Who is confined has no other files than the engines', and no program can be started that needs more.
  void theInterpreterIsStartedAlsoWhenNoPostScriptWasExpected() {
    QVERIFY(service_->open(kSvg, PictureKind::Svg)->facts().ok());
    const auto interpreters = [this] {
      QList<qint64> running;
      for (const qint64 pid : childrenOf(service_->programProcessId())) {
        QFile name(QStringLiteral("/proc/%1/comm").arg(pid));
        if (name.open(QIODevice::ReadOnly) &&
            QByteArray("norvex-postscript").startsWith(name.readAll().trimmed()) && stateOf(pid) != 'Z')
          running << pid;
      }
      return running;
    };
    QCOMPARE(interpreters(), QList<qint64>());
    for (int round = 0; round < 2; ++round) {
      const auto process = service_->open(kEps, PictureKind::Eps);
      const auto image = process->render(wholePicture());
      QVERIFY2(image.ok(), image.ok() ? "" : qPrintable(image.error().message));
      QCOMPARE(image->pixelColor(35, 10), QColor(Qt::blue));
      QCOMPARE(interpreters().size(), 1);
      QFile maps(QStringLiteral("/proc/%1/maps").arg(interpreters().value(0)));
      QVERIFY(maps.open(QIODevice::ReadOnly));
      const QByteArray loaded = maps.readAll();
      QVERIFY(loaded.contains("/libgs.so") && loaded.contains("/stand-ins/libcups.so"));
      QVERIFY(!loaded.contains("libkrb5"));
      // A started gs would be a child of the document's process.
      QCOMPARE(childrenOf(std::static_pointer_cast<WorkerClient>(process)->processId()), QList<qint64>());
      ::kill(pid_t(interpreters().first()), SIGKILL);
      QVERIFY(eventually([&] { return interpreters().isEmpty(); }));
    }
  }

  void bytesOfAnotherKindAreAnOrdinaryError_data() {
    QTest::addColumn<PictureKind>("kind");
    QTest::newRow("SVG") << PictureKind::Svg;
    QTest::newRow("PDF") << PictureKind::Pdf;
  }
  void bytesOfAnotherKindAreAnOrdinaryError() {
    QFETCH(PictureKind, kind);
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("nothing of the kind"), QByteArray(1000, '\0')}) {
      const auto facts = service_->open(bytes, kind)->facts();
      QVERIFY(!facts.ok());
      QCOMPARE(facts.error().kind, ErrorKind::NotParsable);
    }
    QCOMPARE(service_->decodePreview("no TIFF").error().kind, ErrorKind::NotParsable);
  }

  void whatAProgramHadDrawnWhenItStoppedIsShownAndTold() {
    QByteArray stopping = kEps;
    stopping.replace("showpage", "nosuch showpage");
    const auto process = service_->open(stopping, PictureKind::Eps);
    QCOMPARE(process->facts()->stoppedBy, QString());  // nothing has been run
    const auto image = process->render(wholePicture());
    QVERIFY2(image.ok(), image.ok() ? "" : qPrintable(image.error().message));
    QCOMPARE(image->pixelColor(35, 10), QColor(Qt::blue));
    const QString told = QStringLiteral("PostScript error: undefined in nosuch");
    QCOMPARE(process->facts()->stoppedBy, told);
    QCOMPARE(process->drawingRemarks(), QStringList());
    QCOMPARE(process->pdf({})->report.warnings, QStringList());
  }

  void elementsThatMemoryDoesNotHoldAreALimit() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    const QByteArray many = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'>" +
                            QByteArray("<rect width='1' height='1'/>").repeated(90'000) + "</svg>";
    const auto process = service_->open(many, PictureKind::Svg, PictureLimits{60, 64, 1});
    QCOMPARE(process->render(wholePicture()).error().kind, ErrorKind::Limit);
  }

  void memoryThatADrawingLacksIsALimit() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    const QByteArray blurred =
        "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'><filter id='f'><feGaussianBlur "
        "stdDeviation='1'/><feMorphology radius='1'/></filter><rect width='40' height='20' "
        "filter='url(#f)'/></svg>";
    const auto process = service_->open(blurred, PictureKind::Svg, PictureLimits{60, 72, 100});
    RenderRequest large = wholePicture();
    large.pixelSize *= 90;
    large.pictureToDevice = QTransform(90, 0, 0, -90, 0, 1800);
    QCOMPARE(process->render(large).error().kind, ErrorKind::Limit);
    QVERIFY(process->render(wholePicture()).ok());
  }

  void theSheetsOfAJobAreComposedThere() {
    PagesRequest job;
    job.paper = QSizeF(300, 400);
    job.sheets = {{QRectF(0, 0, 40, 20), QRectF(10, 20, 40, 20)}};
    const QByteArray picture = pdf();
    for (const QByteArray& shown : {picture, QByteArray()}) {
      const auto made = service_->composePages(shown, job);
      QVERIFY2(made.ok(), made.ok() ? "" : qPrintable(made.error().message));
      const auto sheets = service_->open(*made, PictureKind::Pdf);
      QCOMPARE(sheets->facts()->pageBounds, QList<QRectF>{QRectF(0, 0, 300, 400)});
    }
    QVERIFY(!service_->composePages("no PDF", job).ok());
    QVERIFY(service_->composePages(picture, job).ok());
    CancelToken cancel;
    cancel.cancel();
    QCOMPARE(service_->composePages(picture, job, cancel).error().kind, ErrorKind::Cancelled);
  }

  void anEndlessProgramIsStopped() {
    const QByteArray endless = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 40 20\n%%EndComments\n{} loop\n";
    const auto process = service_->open(endless, PictureKind::Eps, PictureLimits{2, 512, 10});
    QCOMPARE(process->render(wholePicture()).error().kind, ErrorKind::TimedOut);
  }

  void anEndlessProgramCanBeCancelled() {
    const QByteArray endless = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 40 20\n%%EndComments\n{} loop\n";
    const auto process = service_->open(endless, PictureKind::Eps);
    const CancelToken token;
    std::thread canceller([&] { QThread::msleep(300), token.cancel(); });
    QCOMPARE(process->render(wholePicture(), token).error().kind, ErrorKind::Cancelled);
    canceller.join();
  }

 private:
  /// Made by the program itself from the SVG.
  QByteArray pdf() {
    WorkerService service(kProgram);
    const auto made = service.open(kSvg, PictureKind::Svg)->pdf({});
    return made ? made->bytes : QByteArray();
  }

  std::unique_ptr<RuntimeFolder> runtime_;
  std::unique_ptr<WorkerService> service_;
};

NORVEX_TEST(RealWorkerTest)
#include "real_worker_test.moc"
