#include "base/interruption.h"

#include <cerrno>
#include <csignal>
#include <future>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// For ever, where nothing is told.
void waitUntilCancelled(const CancelToken& token) {
  std::promise<void> heard;
  const CancelListener listener(token, [&] { heard.set_value(); });
  heard.get_future().wait();
}

bool endsTheProgram(int signal) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  return action.sa_handler == SIG_DFL;
}

}  // namespace

class InterruptionTest : public QObject {
  Q_OBJECT
 private slots:
  void theFirstSignalCancelsAndTheNextEndsTheProgram_data() {
    QTest::addColumn<int>("signal");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("a polite kill") << SIGTERM;
  }
  void theFirstSignalCancelsAndTheNextEndsTheProgram() {
    QFETCH(const int, signal);
    const Interruption interruption;
    QVERIFY(!endsTheProgram(signal));
    QVERIFY(!interruption.token().cancelled());
    std::raise(signal);
    waitUntilCancelled(interruption.token());
    QVERIFY(interruption.token().cancelled());
    QVERIFY(endsTheProgram(signal));
  }

  void itsEndCancelsNothingAndLeavesTheSignalsAsTheyWere() {
    CancelToken token;
    {
      const Interruption interruption;
      token = interruption.token();
    }
    QVERIFY(!token.cancelled());
    QVERIFY(endsTheProgram(SIGINT) && endsTheProgram(SIGTERM));
  }

  void anotherAfterItHearsAgain() {
    { const Interruption first; }
    const Interruption second;
    std::raise(SIGTERM);
    waitUntilCancelled(second.token());
  }

  void oneWithinHearsWhatTheOuterOneHears() {
    const Interruption outer;
    { const Interruption ended; }
    QVERIFY(!endsTheProgram(SIGTERM));  // the outer one still listens
    const Interruption inner;
    std::raise(SIGTERM);
    waitUntilCancelled(inner.token());
    waitUntilCancelled(outer.token());
  }

  void whatIsInterruptedKeepsItsErrorNumber() {
    const Interruption interruption;
    errno = ENOTTY;
    std::raise(SIGTERM);
    QCOMPARE(errno, ENOTTY);
    waitUntilCancelled(interruption.token());
  }
};

NORVEX_TEST(InterruptionTest)
#include "interruption_test.moc"
