// Every lie and every death that a picture process in the hands of a hostile document can think of.
#include <chrono>
#include <thread>

#include <QElapsedTimer>

#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "picture/client/worker_client.h"
#include "picture/client/worker_connection.h"
#include "picture/client/worker_service.h"
#include "picture/client/worker_starter.h"
#include "protocol/limits.h"
#include "protocol/program_stop.h"
#include "protocol/sealed_memory.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kProgram = QStringLiteral(NORVEX_BUILD_DIR "/norvex-misbehaving-worker");

struct Mode {
  const char* name;
  ErrorKind atRequest;
};

const Mode kModes[] = {
    {"hang", ErrorKind::TimedOut},
    {"exit", ErrorKind::Died},
    {"crash", ErrorKind::Died},
    {"close", ErrorKind::Died},
    {"half-message", ErrorKind::Died},
    {"half-and-hang", ErrorKind::TimedOut},
    {"trickle", ErrorKind::TimedOut},
    {"bad-cbor", ErrorKind::Protocol},
    {"huge-length", ErrorKind::Protocol},
    {"two-descriptors", ErrorKind::Protocol},
    {"late-descriptor", ErrorKind::Protocol},
    {"flood-zeros", ErrorKind::Protocol},
    {"flood-messages", ErrorKind::Protocol},
    {"wrong-id", ErrorKind::Protocol},
    {"wrong-type", ErrorKind::Protocol},
    {"fork-reply", ErrorKind::Protocol},
    {"wrong-size", ErrorKind::Protocol},
    {"wrong-stride", ErrorKind::Protocol},
    {"wide-stride", ErrorKind::Protocol},
    {"negative-size", ErrorKind::Protocol},
    {"negative-stride", ErrorKind::Protocol},
    {"no-descriptor", ErrorKind::Protocol},
    {"error-with-descriptor", ErrorKind::Protocol},
    {"small-memory", ErrorKind::Protocol},
    {"large-memory", ErrorKind::Protocol},
    {"empty-memory", ErrorKind::Protocol},
    {"unsealed-memory", ErrorKind::Protocol},
    {"file", ErrorKind::Protocol},
    {"socket", ErrorKind::Protocol},
};

RenderRequest drawing() {
  RenderRequest request;
  request.pixelSize = QSize(4, 4);
  return request;
}

constexpr PictureLimits kLimits{1, 256, 10};

}  // namespace

class MisbehavingWorkerTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    runtime_ = std::make_unique<RuntimeFolder>();
    descriptors_ = openDescriptors();
    service_ = std::make_unique<WorkerService>(kProgram);
  }
  void cleanup() {
    const qint64 program = service_->programProcessId();
    QVERIFY(eventually([&] { return childrenOf(program).isEmpty(); }));
    QVERIFY(eventually([&] { return runtime_->scratchFolders().isEmpty(); }));
    service_.reset();
    QVERIFY(hasNoChildren());
    QCOMPARE(runtime_->entries(), QStringList());
    QCOMPARE(openDescriptors(), descriptors_);
    runtime_.reset();
  }

  void atARequest_data() { addModes(); }
  void atARequest() {
    QFETCH(QByteArray, mode);
    QFETCH(ErrorKind, kind);
    const auto process = service_->open(mode, PictureKind::Pdf, kLimits);
    QVERIFY(process->facts().ok());
    const auto image = process->render(drawing());
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, kind);
    QVERIFY(!image.error().message.isEmpty());
    // A fresh process answers the opening again, and then lies again.
    QCOMPARE(process->render(drawing()).error().kind, kind);
  }

  void whileOpening_data() { addModes(); }
  void whileOpening() {
    QFETCH(QByteArray, mode);
    QFETCH(ErrorKind, kind);
    const auto process = service_->open("at-open " + mode, PictureKind::Pdf, kLimits);
    QCOMPARE(process->facts().error().kind, kind);
    QVERIFY(!process->render(drawing()).ok());
  }

  /// Each try is within the time of one, all three are not.
  void triesWithOtherInterpretersGetTheTimeOfOneRequest() {
    const auto process = service_->open("lost-slowly", PictureKind::Eps, kLimits);
    QVERIFY(process->facts().ok());
    const auto image = process->render(drawing());
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::TimedOut);
  }

  void aProcessThatIsToYieldLaterIsNotWaitedForBeyondItsTime() {
    QVERIFY(service_->start().ok());
    const auto starter = std::make_shared<WorkerStarter>(kProgram);
    starter->setNice(10, std::chrono::hours(1));
    const auto connection = WorkerConnection::open(starter, {kLimits, false, {}});
    QVERIFY(connection.ok());
    const auto document = SealedMemory::seal("late");
    const auto opening = (*connection)->post(OpenRequest{PictureKind::Pdf, kLimits}, *document);
    QVERIFY(opening.ok() && (*connection)->wait(*opening, QDeadlineTimer(20'000), {}).ok());
    const auto drawn = (*connection)->post(drawing());
    QVERIFY(drawn.ok());
    const auto answer = (*connection)->wait(*drawn, QDeadlineTimer(10), {});
    QVERIFY(!answer.ok());
    QCOMPARE(answer.error().kind, ErrorKind::TimedOut);
  }

  void twoAnswersToOneRequest() {
    const auto process = service_->open("twice", PictureKind::Pdf, kLimits);
    QVERIFY(process->render(drawing()).ok());
    const qint64 liar = static_cast<WorkerClient&>(*process).processId();
    // The second answer costs the process its life. It costs the next caller an error only if it comes so
    // late that it is taken for his.
    const auto next = process->render(drawing());
    QVERIFY(next.ok() || next.error().kind == ErrorKind::Protocol);
    QVERIFY(eventually([&] { return stateOf(liar) == 0; }));
  }

  void moreBytesThanTheLimit() {
    const auto process = service_->open("huge-bytes", PictureKind::Pdf, kLimits);
    QCOMPARE(process->pdf({}).error().kind, ErrorKind::Protocol);
    QCOMPARE(process->compose({VectorFormat::Pdf, 0, QRectF(0, 0, 1, 1), 0}).error().kind,
             ErrorKind::Protocol);
  }

  void imagesOfAResolutionThatCannotBe() {
    for (const char* mode : {"negative-dpi", "impossible-dpi"}) {
      const auto process = service_->open(mode, PictureKind::Pdf, kLimits);
      QCOMPARE(process->pdf({}).error().kind, ErrorKind::Protocol);
      QCOMPARE(process->compose({VectorFormat::Eps, 0, QRectF(0, 0, 1, 1), 0}).error().kind,
               ErrorKind::Protocol);
    }
  }

  void anImageWhereBytesWereAskedFor() {
    const auto process = service_->open("unsealed-memory", PictureKind::Pdf, kLimits);
    QCOMPARE(process->pdf({}).error().kind, ErrorKind::Protocol);
    QCOMPARE(process->svg({}).error().kind, ErrorKind::Protocol);
  }

  void aPreviewIsNotBelievedEither() {
    for (const char* mode :
         {"at-open small-memory", "at-open unsealed-memory", "at-open bad-cbor", "at-open wrong-id"})
      QCOMPARE(service_->decodePreview(mode).error().kind, ErrorKind::Protocol);
    QCOMPARE(service_->decodePreview("at-open crash").error().kind, ErrorKind::Died);
  }

  /// The time is a sum of limits; what runs here shows that nothing else is waited for.
  void aCancelIsAnsweredWithinItsTimeWhateverTheProcessDoes() {
    static_assert(limits::cancelGrace + limits::processFarewell < limits::cancelAnswer);
    for (const char* mode : {"hang", "at-open hang", "at-start hang"}) {
      const auto process = service_->open(mode, PictureKind::Pdf);
      const CancelToken token;
      token.cancel();
      QElapsedTimer timer;
      timer.start();
      QCOMPARE(process->render(drawing(), token).error().kind, ErrorKind::Cancelled);
      QVERIFY(timer.elapsed() < 10'000);  // of 120 seconds that the picture may take
    }
  }

  void aCancelEndsWhatDoesNotAnswer() {
    for (const char* mode : {"hang", "trickle", "half-and-hang"}) {
      const auto process = service_->open(mode, PictureKind::Pdf);
      QVERIFY(process->facts().ok());
      QCOMPARE(cancelled(*process), ErrorKind::Cancelled);
    }
  }

  /// A machine that is busy must not cost what a program had drawn when it was stopped.
  void whatWasBegunIsWaitedForByWhoAsksForIt() {
    const auto process =
        std::dynamic_pointer_cast<WorkerClient>(service_->open("obeys-late", PictureKind::Eps));
    QVERIFY(process && process->facts());
    const qint64 drawer = process->processId();
    QCOMPARE(cancelled(*process), ErrorKind::Cancelled);
    RenderRequest begun = drawing();
    begun.page = begunPage;
    CancelToken gone;
    gone.cancel();
    QCOMPARE(process->render(begun, gone).error().kind, ErrorKind::Cancelled);  // and still it is owed
    const auto image = process->render(begun);
    QVERIFY2(image.ok(), image ? "" : qPrintable(image.error().message));
    QCOMPARE(process->processId(), drawer);
  }

  void whatElseIsAskedForWaitsForNoCancelledDrawing() {
    const auto process = std::dynamic_pointer_cast<WorkerClient>(service_->open("hang", PictureKind::Eps));
    QVERIFY(process && process->facts());
    const qint64 hanging = process->processId();
    QCOMPARE(cancelled(*process), ErrorKind::Cancelled);
    QVERIFY(stateOf(hanging) != 0);
    QCOMPARE(cancelled(*process), ErrorKind::Cancelled);  // another one is drawing now
    QVERIFY(process->processId() != hanging);
    QVERIFY(eventually([&] { return stateOf(hanging) == 0; }));
  }

 private:
  /// How a drawing ends that is cancelled while it is made.
  static ErrorKind cancelled(PictureProcess& process) {
    const CancelToken token;
    std::thread canceller([&] { QThread::msleep(20), token.cancel(); });
    const auto drawn = process.render(drawing(), token);
    canceller.join();
    return drawn ? ErrorKind::Unsupported : drawn.error().kind;
  }

  static void addModes() {
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<ErrorKind>("kind");
    for (const Mode& mode : kModes) QTest::newRow(mode.name) << QByteArray(mode.name) << mode.atRequest;
  }

  std::unique_ptr<RuntimeFolder> runtime_;
  std::unique_ptr<WorkerService> service_;
  qsizetype descriptors_ = 0;
};

NORVEX_TEST(MisbehavingWorkerTest)
#include "misbehaving_worker_test.moc"
