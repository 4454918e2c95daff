#include "picture/client/worker_service.h"

#include <QFile>

#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

#include "kit/forked_check.h"
#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "picture/client/worker_client.h"
#include "picture/client/worker_starter.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kStub = QStringLiteral(NORVEX_BUILD_DIR "/norvex-stub-worker");

RenderRequest drawing(int page = 0, QSize size = QSize(4, 3)) {
  RenderRequest request;
  request.page = page;
  request.pixelSize = size;
  return request;
}

qint64 processOf(const std::shared_ptr<PictureProcess>& process) {
  return static_cast<WorkerClient&>(*process).processId();
}

}  // namespace

class WorkerServiceTest : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    runtime_ = std::make_unique<RuntimeFolder>();
    descriptors_ = openDescriptors();
    service_ = std::make_unique<WorkerService>(kStub);
  }
  void cleanup() {
    service_.reset();
    QVERIFY(hasNoChildren());
    QCOMPARE(runtime_->entries(), QStringList());
    QCOMPARE(openDescriptors(), descriptors_);
    runtime_.reset();
  }

  void aDocumentAnswersEveryRequest() {
    QVERIFY(service_->start().ok());
    const auto process = service_->open("ok 120 80", PictureKind::Svg);
    const auto facts = process->facts();
    QVERIFY2(facts.ok(), facts.ok() ? "" : qPrintable(facts.error().message));
    QCOMPARE(facts->pageBounds, QList<QRectF>{QRectF(0, 0, 120, 80)});
    const auto image = process->render(drawing(7));
    QVERIFY(image.ok());
    QCOMPARE(image->size(), QSize(4, 3));
    QCOMPARE(image->format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(image->pixelColor(3, 2), QColor(0, 0, 7));
    QCOMPARE(process->pdf({2})->bytes, QByteArray("PDF 2"));
    const auto eps = process->compose({VectorFormat::Eps, 0, QRectF(1, 2, 3, 4), 0.5});
    QCOMPARE(eps->bytes, QByteArray("EPS"));
    QCOMPARE(eps->report.regionsRasterised, 1);
    QCOMPARE(eps->report.rasterisedAreaShare, 0.5);
    QCOMPARE(eps->report.rasterisedDpi, 150.0);
    QCOMPARE(process->svg({})->bytes, QByteArray("ok 120 80"));
  }

  void theImageMayBeChangedAndOutlivesItsProcess() {
    auto process = service_->open("ok", PictureKind::Pdf);
    auto image = process->render(drawing(9, QSize(100, 100)));
    QVERIFY(image.ok());
    process.reset();
    service_.reset();
    QCOMPARE(image->pixelColor(99, 99), QColor(0, 0, 9));
    image->setPixelColor(0, 0, Qt::red);
    QCOMPARE(image->pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(image->pixelColor(1, 0), QColor(0, 0, 9));
  }

  void openStartsTheProgramWhenNobodyHas() {
    QCOMPARE(service_->programProcessId(), 0);
    QVERIFY(service_->open("ok", PictureKind::Pdf)->facts().ok());
    QVERIFY(service_->programProcessId() > 0);
  }

  void aFailedRequestLeavesTheDocumentUsable() {
    const auto process = service_->open("ok", PictureKind::Pdf);
    const qint64 pid = (void(process->facts().ok()), processOf(process));
    QCOMPARE(process->render(drawing(99)).error().message, QString("there is no such page"));
    QVERIFY(process->render(drawing(1)).ok());
    QCOMPARE(processOf(process), pid);
  }

  void aDocumentThatCannotBeOpenedSaysSoEveryTime() {
    const auto process = service_->open("refuse", PictureKind::Pdf);
    for (int i = 0; i < 2; ++i) {
      const auto facts = process->facts();
      QCOMPARE(facts.error().kind, ErrorKind::Encrypted);
      QCOMPARE(facts.error().message, QString("a password is needed"));  // no line break reaches a terminal
      QCOMPARE(process->render(drawing()).error().kind, ErrorKind::Encrypted);
    }
  }

  void whatDrawingFindsOutIsKeptOnce() {
    const auto process = service_->open("ok", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    QCOMPARE(process->drawingRemarks(), QStringList());
    QVERIFY(process->render(drawing(1)).ok());
    QVERIFY(process->render(drawing(2)).ok());
    QCOMPARE(process->drawingRemarks(), QStringList{"a [31mremark about fonts"});
  }

  void warningsCarryNoTerminalCodes() {
    const auto facts = service_->open("ok", PictureKind::Pdf)->facts();
    QCOMPARE(facts->warnings, QStringList{"a [31mwarning with colour"});
  }

  void measuresThatAreNoNumbersAreAnOrdinaryError() {
    const auto process = service_->open("nan", PictureKind::Pdf);
    QCOMPARE(process->facts().error().kind, ErrorKind::Limit);
  }

  void impossibleRequestsAreRefusedWithoutAsking() {
    const auto process = service_->open("ok", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    QCOMPARE(process->render(drawing(0, QSize(0, 5))).error().kind, ErrorKind::Limit);
    QCOMPARE(process->render(drawing(0, QSize(20'000, 20'000))).error().kind, ErrorKind::Limit);
    QCOMPARE(process->render(drawing(-1)).error().kind, ErrorKind::Limit);
    QCOMPARE(process->compose({VectorFormat::Pdf, 0, QRectF(0, 0, qQNaN(), 1), 0}).error().kind,
             ErrorKind::Limit);
    QVERIFY(process->render(drawing()).ok());
  }

  void aDeathIsAnErrorAndTheNextCallStartsAgain() {
    const auto process = service_->open("fragile", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    for (int i = 0; i < 3; ++i) {
      const auto image = process->render(drawing());
      QCOMPARE(image.error().kind, ErrorKind::Died);
      QCOMPARE(image.error().message,
               QString("the picture process was killed by the system, which has probably run out of memory"));
      QCOMPARE(process->pdf({1})->bytes, QByteArray("PDF 1"));
    }
  }

  /// One of them listens to the program, and the others are told what it hears.
  void manyThreadsWaitForTheirProcesses() {
    WorkerStarter starter(kStub);
    std::vector<std::thread> threads;
    std::atomic<int> good = 0;
    for (int i = 0; i < 12; ++i)
      threads.emplace_back([&] {
        for (int round = 0; round < 3; ++round) {
          auto pair = MessageChannel::makePair();
          const auto ticket = starter.request({}, pair->second);
          good += ticket && starter.take(*ticket, QDeadlineTimer(60'000)) ? 1 : 0;
        }
      });
    for (std::thread& thread : threads) thread.join();
    QCOMPARE(good.load(), 36);
  }

  /// Answers that one thread takes while another sleeps must reach that one.
  void nobodySleepsPastAnAnswerThatAnotherTook() {
    WorkerStarter starter(kStub);
    constexpr int rounds = 60;
    int good = 0;
    for (int round = 0; round < rounds; ++round) {
      auto first = MessageChannel::makePair(), second = MessageChannel::makePair();
      const auto sleeping = starter.request({}, first->second), looking = starter.request({}, second->second);
      QVERIFY(sleeping.ok() && looking.ok());
      std::thread sleeper([&] { good += starter.take(*sleeping, QDeadlineTimer(20'000)).ok() ? 1 : 0; });
      while (true) {
        const auto taken = starter.take(*looking, QDeadlineTimer(0));
        if (taken || taken.error().kind != ErrorKind::TimedOut) break;
      }
      sleeper.join();
      if (good <= round) break;  // one is enough to tell
    }
    QCOMPARE(good, rounds);
  }

  void aDeathIsTheDocumentsOwn() {
    const auto fragile = service_->open("fragile", PictureKind::Svg);
    const auto other = service_->open("ok", PictureKind::Pdf);
    QVERIFY(fragile->facts().ok() && other->facts().ok());
    const qint64 before = processOf(other);
    for (int i = 0; i < 10; ++i) QCOMPARE(fragile->render(drawing()).error().kind, ErrorKind::Died);
    QVERIFY(other->render(drawing()).ok());
    QCOMPARE(processOf(other), before);
  }

  void theEndOfTheProgramCostsNoDocument() {
    const auto one = service_->open("ok 120 80", PictureKind::Svg);
    const auto two = service_->open("ok 60 40", PictureKind::Pdf);
    QVERIFY(one->facts().ok() && two->facts().ok());
    ::kill(pid_t(service_->programProcessId()), SIGKILL);
    QTRY_VERIFY(stateOf(processOf(one)) == 0 && stateOf(processOf(two)) == 0);
    for (const auto& document : {one, two}) QVERIFY(document->render(drawing()).ok());
    QCOMPARE(one->facts()->pageBounds, QList<QRectF>{QRectF(0, 0, 120, 80)});
    QCOMPARE(two->facts()->pageBounds, QList<QRectF>{QRectF(0, 0, 60, 40)});
  }

  void aDeathBetweenTwoCallsIsNotNoticed() {
    const auto process = service_->open("ok", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    const qint64 pid = processOf(process);
    QCOMPARE(::kill(pid_t(pid), SIGKILL), 0);
    QVERIFY(eventually([&] { return stateOf(pid) == 0; }));
    QVERIFY(process->render(drawing()).ok());
    QVERIFY(processOf(process) != pid);
  }

  void aCrashWhileOpeningIsAnError() {
    const auto process = service_->open("crash", PictureKind::Eps);
    QCOMPARE(process->facts().error().kind, ErrorKind::Died);
    QCOMPARE(process->facts().error().kind, ErrorKind::Died);
  }

  void timeRunsOut_data() {
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("opening") << QByteArray("hang");
    QTest::newRow("drawing") << QByteArray("sleepy");
  }
  void timeRunsOut() {
    QFETCH(QByteArray, document);
    const auto process = service_->open(document, PictureKind::Pdf, PictureLimits{1, 256, 10});
    const auto image = process->render(drawing());
    QCOMPARE(image.error().kind, ErrorKind::TimedOut);
    if (document == "sleepy") QVERIFY(process->pdf({}).ok());
  }

  void aCancelIsObeyedAndTheProcessLivesOn() {
    const auto process = service_->open("sleepy-cancellable", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    const qint64 pid = processOf(process);
    const CancelToken token;
    std::thread canceller([&] { QThread::msleep(30), token.cancel(); });
    QCOMPARE(process->render(drawing(), token).error().kind, ErrorKind::Cancelled);
    canceller.join();
    QCOMPARE(processOf(process), pid);
    QVERIFY(process->pdf({}).ok());
  }

  void aCancelThatIsNotObeyedKills() {
    const auto process = service_->open("sleepy", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    const qint64 pid = processOf(process);
    const CancelToken token;
    // Late enough to find it drawing: what has not been begun is not done, and costs no process its life.
    std::thread canceller([&] { QThread::msleep(300), token.cancel(); });
    QCOMPARE(process->render(drawing(), token).error().kind, ErrorKind::Cancelled);
    canceller.join();
    QVERIFY(eventually([&] { return stateOf(pid) == 0; }));
    QVERIFY(process->pdf({}).ok());
  }

  void openingCanBeCancelledAndTriedAgain() {
    for (const char* document : {"hang", "hang-cancellable"}) {
      const auto process = service_->open(document, PictureKind::Pdf);
      for (int i = 0; i < 2; ++i) {
        const CancelToken token;
        token.cancel();
        QCOMPARE(process->facts(token).error().kind, ErrorKind::Cancelled);
      }
    }
  }

  void waitingForAnotherCallCanBeCancelled() {
    const auto process = service_->open("sleepy-cancellable", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    const CancelToken first, second;
    std::thread busy([&] { QCOMPARE(process->render(drawing(), first).error().kind, ErrorKind::Cancelled); });
    QThread::msleep(30);
    second.cancel();
    QCOMPARE(process->pdf({}, second).error().kind, ErrorKind::Cancelled);
    QVERIFY(process->facts().ok());  // known already: does not wait either
    first.cancel();
    busy.join();
  }

  void manyThreadsAreServed() {
    const auto process = service_->open("ok", PictureKind::Pdf);
    std::atomic<int> right = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
      threads.emplace_back([&, t] {
        for (int i = 0; i < 25; ++i) {
          const int page = t * 25 + i == 99 ? 0 : t * 25 + i;
          const auto image = process->render(drawing(page));
          if (image && image->pixelColor(0, 0) == QColor(0, 0, page)) ++right;
        }
      });
    for (std::thread& thread : threads) thread.join();
    QCOMPARE(right.load(), 100);
  }

  void manyDocumentsAtOnce() {
    std::vector<std::shared_ptr<PictureProcess>> all;
    for (int i = 1; i <= 20; ++i)
      all.push_back(service_->open("ok " + QByteArray::number(i), PictureKind::Pdf));
    for (int i = 20; i >= 1; --i)
      QCOMPARE(all[size_t(i - 1)]->facts()->pageBounds.first().width(), double(i));
    QCOMPARE(childrenOf(service_->programProcessId()).size(), 20);
    all.clear();
    QVERIFY(eventually([&] { return childrenOf(service_->programProcessId()).isEmpty(); }));
    QVERIFY(eventually([&] { return runtime_->scratchFolders().isEmpty(); }));
  }

  void memoryHasALimit() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    const auto process = service_->open("greedy", PictureKind::Pdf, PictureLimits{10, 64, 1});
    QCOMPARE(process->render(drawing()).error().kind, ErrorKind::Limit);
    QVERIFY(process->pdf({}).ok());
  }

  void whatUsesUpTheProcessIsToldAsALimit_data() {
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("sentence");
    const QString memory = QStringLiteral("the picture needs more memory than it is allowed");
    QTest::newRow("recursion") << QByteArray("deep")
                               << QStringLiteral("the picture nests deeper than can be drawn");
    QTest::newRow("an abort without memory") << QByteArray("aborting") << memory;
    QTest::newRow("a null pointer without memory") << QByteArray("careless") << memory;
  }
  void whatUsesUpTheProcessIsToldAsALimit() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers tell crashes themselves");
#endif
    QFETCH(QByteArray, document);
    QFETCH(QString, sentence);
    const auto process = service_->open(document, PictureKind::Pdf, PictureLimits{10, 64, 1});
    for (int i = 0; i < 2; ++i) {
      const Error error = process->render(drawing()).error();
      QCOMPARE(error.kind, ErrorKind::Limit);
      QCOMPARE(error.message, sentence);
      QVERIFY(process->pdf({}).ok());
    }
  }

  /// Who sees the end may have no time for it just then.
  void theReasonOfAnEndIsWaitedForOnABusyMachine() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers tell crashes themselves");
#endif
    const auto process = service_->open("deep", PictureKind::Pdf, PictureLimits{10, 64, 1});
    QVERIFY(process->facts().ok());
    const auto program = pid_t(service_->programProcessId());
    ::kill(program, SIGSTOP);
    std::thread later([program] { QThread::msleep(400), ::kill(program, SIGCONT); });
    const Error error = process->render(drawing()).error();
    later.join();
    QCOMPARE(error.kind, ErrorKind::Limit);
  }

  void anotherCrashIsNoLimit() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers tell crashes themselves");
#endif
    const auto process = service_->open("wild", PictureKind::Pdf);
    QCOMPARE(process->render(drawing()).error().kind, ErrorKind::Died);
    QVERIFY(process->pdf({}).ok());
  }

  void onlyPostScriptHasAScratchFolder() {
    const auto pdf = service_->open("ok", PictureKind::Pdf), svg = service_->open("ok", PictureKind::Svg);
    QVERIFY(pdf->render(drawing()).ok() && svg->render(drawing()).ok());
    QCOMPARE(runtime_->scratchFolders(), QStringList());
    const auto eps = service_->open("ok", PictureKind::Eps);
    QVERIFY(eps->render(drawing()).ok());
    QCOMPARE(runtime_->scratchFolders().size(), 1);
  }

  void theScratchFolderGoesWithItsProcess() {
    auto process = service_->open("scratch", PictureKind::Eps);
    QVERIFY(process->render(drawing()).ok());
    QCOMPARE(runtime_->scratchFolders().size(), 1);
    const QString folder = process->facts()->description;
    QVERIFY(QFile::exists(folder + "/sub/b"));
    QCOMPARE(QFile::permissions(folder) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    ::kill(pid_t(processOf(process)), SIGKILL);
    QVERIFY(eventually([&] { return runtime_->scratchFolders().isEmpty(); }));
    QVERIFY(process->render(drawing()).ok());
    process.reset();
    QVERIFY(eventually([&] { return runtime_->scratchFolders().isEmpty(); }));
  }

  void grandchildrenDieWithTheDocument() {
    auto process = service_->open("orphan", PictureKind::Pdf);
    QVERIFY(process->render(drawing()).ok());
    const QList<qint64> grandchildren = childrenOf(processOf(process));
    QCOMPARE(grandchildren.size(), 1);
    process.reset();
    QVERIFY(eventually([&] { return stateOf(grandchildren[0]) == 0 || stateOf(grandchildren[0]) == 'Z'; }));
  }

  void theEnvironmentDoesNotReachADocument() {
    qputenv("NORVEX_STUB_CANARY", "secret");
    const auto facts = service_->open("ok", PictureKind::Pdf)->facts();
    qunsetenv("NORVEX_STUB_CANARY");
    QCOMPARE(facts->title, QString());
  }

  void aDocumentHoldsNothingForeign() {
    const auto other = service_->open("ok", PictureKind::Pdf);
    QVERIFY(other->facts().ok());
    QVERIFY(service_->decodePreview("abc").ok());
    const auto facts = service_->open("ok", PictureKind::Pdf)->facts();
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QVERIFY(facts->attributes.value("descriptors").endsWith("3=socket 4=socket"));
#else
    // The line to its client, and the one on which it may ask for an interpreter.
    QCOMPARE(facts->attributes.value("descriptors"),
             QString("0=/dev/null 1=/dev/null 2=/dev/null 3=socket 4=socket"));
#endif
    QCOMPARE(facts->attributes.value("group"), QString("1"));
  }

  void theWarmProgramIsReplacedWhenItDies() {
    const auto process = service_->open("ok", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    const qint64 child = processOf(process), program = service_->programProcessId();
    QCOMPARE(::kill(pid_t(program), SIGKILL), 0);
    QVERIFY(eventually([&] { return stateOf(child) == 0; }));  // it does not outlive the program
    QVERIFY(process->render(drawing()).ok());
    QVERIFY(service_->programProcessId() != program);
    QCOMPARE(runtime_->entries().size(), 1);  // what the dead program left is gone
  }

  void nothingOutlivesAKilledProgram() {
    const int killed = inForkedChild([] {
      WorkerService service(kStub);
      const auto process = service.open("sleepy", PictureKind::Pdf);
      if (process->facts().ok()) ::raise(SIGKILL);
      return 1;
    });
    QCOMPARE(killed, -1);
    // The warm program removes this folder as its last act, after its children.
    QVERIFY(eventually([&] { return runtime_->entries().isEmpty(); }));
  }

  void whatEndsASessionDoesNotKeepItFromCleaningUp() {
    const int killed = inForkedChild([] {
      WorkerService service(kStub);
      const auto process = service.open("scratch", PictureKind::Eps);
      if (!process->render(drawing()).ok()) return 1;
      ::kill(pid_t(processOf(process)), SIGTERM);
      ::kill(pid_t(service.programProcessId()), SIGTERM);
      return ::raise(SIGKILL);
    });
    QCOMPARE(killed, -1);
    QVERIFY(eventually([&] { return runtime_->entries().isEmpty(); }));
  }

  void picturesYieldToWindowsOnceTheyHaveBeenSeen() {
    WorkerService service(kStub);
    service.yieldToWindows(std::chrono::hours(1));
    const int ours = ::getpriority(PRIO_PROCESS, id_t(::getpid())), yielding = std::min(19, ours + 10);
    for (int run = 0; run < 2; ++run) {
      const auto process = service.open("ok", PictureKind::Pdf);
      QVERIFY(process->facts().ok());
      QCOMPARE(::getpriority(PRIO_PROCESS, id_t(processOf(process))), ours);
      QVERIFY(process->render(drawing()).ok());
      QCOMPARE(::getpriority(PRIO_PROCESS, id_t(processOf(process))), yielding);
      const pid_t program = pid_t(service.programProcessId());
      QCOMPARE(::getpriority(PRIO_PROCESS, id_t(program)), ours);  // the next picture begins as this one did
      ::kill(program, SIGKILL);
      siginfo_t ended = {};
      ::waitid(P_PID, id_t(program), &ended, WEXITED | WNOWAIT);
    }
  }

  void aPictureThatTakesItsTimeYieldsToo() {
    WorkerService service(kStub);
    service.yieldToWindows(std::chrono::milliseconds(0));
    const auto process = service.open("sleepy", PictureKind::Pdf);
    QVERIFY(process->facts().ok());
    const auto number = id_t(processOf(process));
    const int ours = ::getpriority(PRIO_PROCESS, id_t(::getpid())), yielding = std::min(19, ours + 10);
    CancelToken cancel;
    std::thread drawn([&] { (void)process->render(drawing(), cancel); });
    const bool yielded = eventually([&] { return ::getpriority(PRIO_PROCESS, number) == yielding; });
    cancel.cancel();
    drawn.join();
    QVERIFY(yielded);
  }

  void aMissingProgramIsAnOrdinaryError() {
    WorkerService missing(QStringLiteral("/nonexistent/norvex-worker"));
    QCOMPARE(missing.start().error().kind, ErrorKind::Died);
    const auto process = missing.open("ok", PictureKind::Pdf);
    QCOMPARE(process->facts().error().kind, ErrorKind::Died);
    QCOMPARE(process->facts().error().message,
             QString("the program that reads pictures could not be started"));
    QCOMPARE(missing.decodePreview("abc").error().kind, ErrorKind::Died);
  }

  void aProgramThatIsNoWorkerIsAnOrdinaryError() {
    WorkerService wrong(QStringLiteral("/bin/true"));
    QCOMPARE(wrong.open("ok", PictureKind::Pdf)->facts().error().kind, ErrorKind::Died);
  }

  void theServiceMayEndBeforeItsDocuments() {
    const auto process = service_->open("ok", PictureKind::Pdf);
    service_.reset();
    QVERIFY(process->facts().ok());
    QVERIFY(process->render(drawing()).ok());
  }

  void aDocumentThatIsClosedAtOnceLeavesNothing() {
    for (int i = 0; i < 10; ++i) (void)service_->open("hang", PictureKind::Pdf);
    QVERIFY(eventually([&] { return runtime_->scratchFolders().isEmpty(); }));
  }

  void aPreparedProcessIsUsed() {
    service_->prepare(PictureKind::Eps);
    QList<qint64> documents;
    // Before it becomes one, the interpreter looks like a document, too.
    QVERIFY(eventually([&] {
      documents = documentProcesses();
      return documents.size() == 1 && childrenOf(service_->programProcessId()).size() == 2;
    }));
    const qint64 prepared = documents.first();
    const auto other = service_->open("ok", PictureKind::Pdf);
    QVERIFY(other->facts().ok());
    QVERIFY(processOf(other) != prepared);
    const auto process = service_->open("ok", PictureKind::Eps);
    QVERIFY(process->facts().ok());
    QCOMPARE(processOf(process), prepared);
  }

  void previewsShareAProcessUntilOneFails() {
    const auto bitmap = service_->decodePreview("abc");
    QVERIFY(bitmap.ok());
    QCOMPARE(bitmap->pixelsWide, 3);
    QCOMPARE(bitmap->data, QByteArray("abc"));
    QCOMPARE(bitmap->bitsPerPixel, 8);
    const QList<qint64> first = childrenOf(service_->programProcessId());
    QCOMPARE(first.size(), 1);
    QVERIFY(service_->decodePreview("defg").ok());
    QCOMPARE(childrenOf(service_->programProcessId()), first);
    QCOMPARE(service_->decodePreview("").error().kind, ErrorKind::NotParsable);
    QVERIFY(service_->decodePreview("hij").ok());
    QVERIFY(childrenOf(service_->programProcessId()) != first);
    QCOMPARE(service_->decodePreview("crash").error().kind, ErrorKind::Died);
    QCOMPARE(service_->decodePreview("klm")->data, QByteArray("klm"));
  }

  void attributesAreSetInThePicturesOwnProcess() {
    const QDateTime date(QDate(2020, 1, 2), QTime(3, 4, 5), Qt::UTC);
    const auto picture = service_->open("ok", PictureKind::Svg);
    QVERIFY(picture->facts().ok());
    const QList<qint64> children = childrenOf(service_->programProcessId());
    QCOMPARE(picture->setPdfAttributes("%PDF", {{{"Title", "Größe"}}, date})->bytes,
             QByteArray("%PDF Größe 2020-01-02T03:04:05Z"));
    QCOMPARE(picture->setPdfAttributes("%PDF", {})->bytes, QByteArray("%PDF  never"));
    QCOMPARE(childrenOf(service_->programProcessId()), children);
    QVERIFY(picture->render({0, {}, {1, 1}, RenderPurpose::View}).ok());
  }

  void aRetiredProcessGoesAndComesAgainWhenItIsAsked() {
    const auto picture = service_->open("ok", PictureKind::Svg);
    QVERIFY(picture->facts().ok());
    picture->retire();
    QTRY_COMPARE(childrenOf(service_->programProcessId()), QList<qint64>());
    QVERIFY(picture->facts().ok());  // they are known
    QCOMPARE(childrenOf(service_->programProcessId()), QList<qint64>());
    QVERIFY(picture->render({0, {}, {1, 1}, RenderPurpose::View}).ok());
  }

 private:
  /// What the program has forked, without the interpreter that it starts.
  [[nodiscard]] QList<qint64> documentProcesses() const {
    QList<qint64> forked;
    for (const qint64 pid : childrenOf(service_->programProcessId()))
      if (!QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(pid)).endsWith(u"norvex-postscript"))
        forked << pid;
    return forked;
  }
  std::unique_ptr<RuntimeFolder> runtime_;
  std::unique_ptr<WorkerService> service_;
  qsizetype descriptors_ = 0;
};

NORVEX_TEST(WorkerServiceTest)
#include "worker_service_test.moc"
