#include "base/background_work.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QThread>
#include <QThreadPool>

#include <atomic>
#include <future>
#include <memory>
#include <vector>

#include "kit/test_main.h"

using namespace norvex;

namespace {

constexpr std::chrono::milliseconds kAtOnce(0);
constexpr char kEndsItsApplication[] = "NORVEX_TEST_ENDS_ITS_APPLICATION";

/// What waits for it goes on once it is opened.
class Gate {
 public:
  void open() { opened_.set_value(); }
  [[nodiscard]] std::function<void()> waiting() const {
    return [open = open_] { open.wait(); };
  }

 private:
  std::promise<void> opened_;
  std::shared_future<void> open_ = opened_.get_future().share();
};

/// 0: nobody was told of work that outlived the application, and what was to be told is gone.
int tellAfterTheApplication() {
  QThreadPool pool;
  Gate gate;
  QObject owner;
  auto held = std::make_shared<int>();
  bool told = false;
  const BackgroundWork work = workInBackground(
      &owner, gate.waiting(), [&told, held] { told = true; }, pool);
  QCoreApplication::instance()->~QCoreApplication();
  gate.open();
  work.wait();
  return !told && held.use_count() == 1 ? 0 : 1;
}

/// Says on which thread it ends.
class Ending : public QObject {
 public:
  explicit Ending(QThread*& on) : on_(on) {}
  ~Ending() override { on_ = QThread::currentThread(); }

 private:
  QThread*& on_;
};

}  // namespace

class BackgroundWorkTest : public QObject {
  Q_OBJECT
 private slots:
  void theWorkIsDoneOnAnotherThreadAndWhatItMadeArrivesOnTheMainThread() {
    QThread* worked = nullptr;
    QThread* took = nullptr;
    int taken = 0;
    QObject owner;
    const BackgroundWork work = workInBackground(
        &owner, [&worked] { return worked = QThread::currentThread(), 42; },
        [&](int made) {
          took = QThread::currentThread();
          taken = made;
        });
    work.wait();
    QVERIFY(took == nullptr);  // only the event loop delivers it
    QTRY_COMPARE(taken, 42);
    QVERIFY(worked != nullptr && worked != QThread::currentThread());
    QCOMPARE(took, QThread::currentThread());
  }

  void workThatMakesNothingTellsItsEnd() {
    QObject owner;
    QString done;
    bool ended = false;
    workInBackground(
        &owner, [&done] { done = QStringLiteral("all of it"); }, [&ended] { ended = true; });
    QTRY_VERIFY(ended);
    QCOMPARE(done, QStringLiteral("all of it"));
  }

  void newsArrivesInTheOrderOfTelling() {
    QObject owner;
    QList<int> told, expected;
    startWork(waitingThreads(), [&told, back = WayBack(&owner)] {
      for (int i = 0; i < 100; ++i) back.tell([&told, i] { told << i; });
    });
    for (int i = 0; i < 100; ++i) expected << i;
    QTRY_COMPARE(told, expected);
  }

  void nothingArrivesForAnOwnerThatIsGone() {
    auto owner = std::make_unique<QObject>();
    QObject other;
    Gate gate;
    auto held = std::make_shared<int>();
    bool told = false, otherTold = false;
    const BackgroundWork work = workInBackground(owner.get(), gate.waiting(), [&told, held] { told = true; });
    owner.reset();
    gate.open();
    work.wait();
    WayBack(&other).tell([&otherTold] { otherTold = true; });
    QTRY_VERIFY(otherTold);
    QVERIFY(!told);
    QCOMPARE(held.use_count(), 1L);
  }

  void nothingArrivesForAnOwnerThatGoesWhileItIsOnItsWay() {
    auto owner = std::make_unique<QObject>();
    QObject other;
    bool told = false, otherTold = false;
    const BackgroundWork work = workInBackground(
        owner.get(), [] { return 1; }, [&told](int) { told = true; });
    work.wait();
    owner.reset();
    WayBack(&other).tell([&otherTold] { otherTold = true; });
    QTRY_VERIFY(otherTold);
    QVERIFY(!told);
  }

  /// In a process of its own, whose application it ends.
  void nothingArrivesOnceTheApplicationHasEnded() {
    if (qEnvironmentVariableIsSet(kEndsItsApplication)) ::_exit(tellAfterTheApplication());
    qputenv(kEndsItsApplication, "1");
    // Not by QProcess: what that does to start one makes the thread sanitizer blind afterwards.
    QByteArray program = QCoreApplication::applicationFilePath().toLocal8Bit();
    QByteArray choice = "--case", stem = "background_work_test",
               test = "nothingArrivesOnceTheApplicationHasEnded";
    char* const arguments[] = {program.data(), choice.data(), stem.data(), test.data(), nullptr};
    pid_t child = 0;
    QCOMPARE(::posix_spawn(&child, program.constData(), nullptr, nullptr, arguments, environ), 0);
    qunsetenv(kEndsItsApplication);
    int status = -1;
    ::waitpid(child, &status, 0);
    QCOMPARE(status, 0);
  }

  void itIsOverOnceItIsDone() {
    Gate gate;
    const BackgroundWork work = startWork(waitingThreads(), gate.waiting());
    QVERIFY(!work.isOver());
    QVERIFY(!work.waitFor(kAtOnce));
    gate.open();
    work.wait();
    QVERIFY(work.isOver());
    QVERIFY(work.waitFor(kAtOnce));
  }

  void workThatWasNeverBegunIsOver() {
    const BackgroundWork none;
    QVERIFY(none.isOver());
    QVERIFY(none.waitFor(kAtOnce));
    none.wait();
  }

  void whatItHeldIsGoneWhenItIsOver() {
    auto held = std::make_shared<int>();
    startWork(waitingThreads(), [held] { *held = 1; }).wait();
    QCOMPARE(held.use_count(), 1L);
    QCOMPARE(*held, 1);
  }

  void workOfWhichThePoolIsClearedIsOver() {
    QThreadPool pool;
    pool.setMaxThreadCount(1);
    Gate gate;
    bool done = false;
    const BackgroundWork first = startWork(pool, gate.waiting());
    const BackgroundWork second = startWork(pool, [&done] { done = true; });
    QVERIFY(!second.isOver());
    pool.clear();
    QVERIFY(second.isOver());
    gate.open();
    waitForWork(pool);
    QVERIFY(first.isOver());
    QVERIFY(!done);
  }

  void memoryThatRunsOutIsAnError() {
    QObject owner;
    std::optional<Result<int>> made;
    workInBackground(
        &owner, []() -> Result<int> { throw std::bad_alloc(); }, [&made](const Result<int>& r) { made = r; });
    QTRY_VERIFY(made);
    QVERIFY(!made->ok());
    QCOMPARE(made->error().kind, ErrorKind::Limit);
    QVERIFY(!made->error().message.isEmpty());
  }

  void memoryThatRunsOutMakesAnEmptyValueWhereNoErrorIsTold() {
    QObject owner;
    QString made = QStringLiteral("before");
    bool ended = false;
    workInBackground(
        &owner, []() -> QString { throw std::bad_alloc(); }, [&made](const QString& value) { made = value; });
    workInBackground(
        &owner, [] { throw std::bad_alloc(); }, [&ended] { ended = true; });
    QTRY_VERIFY(ended);
    QTRY_VERIFY(made.isEmpty());
  }

  void memoryThatRunsOutEndsTheWorkAlone() {
    QTest::ignoreMessage(QtWarningMsg, "there was not enough memory for work in the background");
    startWork(waitingThreads(), [] { throw std::bad_alloc(); }).wait();
    bool done = false;
    startWork(waitingThreads(), [&done] { done = true; }).wait();
    QVERIFY(done);
  }

  void theEndOfTheWaitingThreadsWaitsForThemAndTakesTheirNews() {
    QObject owner;
    std::atomic<bool> done = false;
    bool told = false;
    Gate gate;
    {
      const WaitingThreadsEnd end;
      for (int i = 0; i < 10; ++i) startWork(waitingThreads(), gate.waiting());
      workInBackground(
          &owner, [&done] { done = true; }, [&told] { told = true; });
      gate.open();
    }
    QVERIFY(done);
    QVERIFY(told);
  }

  void whatAnotherThreadLetsGoOfEndsInItsOwn() {
    QThread* ended = nullptr;
    startWork(waitingThreads(), [&ended, home = QThread::currentThread()] {
      auto* const object = new Ending(ended);
      object->moveToThread(home);
      deleteInItsThread(object);
    }).wait();
    QVERIFY(ended == nullptr);  // only the event loop ends it
    QTRY_COMPARE(ended, QThread::currentThread());
  }

  void whatItsOwnThreadLetsGoOfEndsAtOnce() {
    QThread* ended = nullptr;
    deleteInItsThread(new Ending(ended));
    QCOMPARE(ended, QThread::currentThread());
  }

  void oneThatWaitsLongDoesNotHoldUpTheOthers() {
    Gate gate;
    std::vector<BackgroundWork> waiting;
    for (int i = 0; i < 31; ++i) waiting.push_back(startWork(waitingThreads(), gate.waiting()));
    startWork(waitingThreads(), [] {}).wait();
    for (const BackgroundWork& each : waiting) QVERIFY(!each.isOver());
    gate.open();
    for (const BackgroundWork& each : waiting) each.wait();
  }
};

NORVEX_TEST(BackgroundWorkTest)
#include "background_work_test.moc"
