#include "base/time_limit.h"

#include <chrono>
#include <future>

#include "kit/test_main.h"

using namespace norvex;
using namespace std::chrono_literals;

class TimeLimitTest : public QObject {
  Q_OBJECT
 private slots:
  void itsTokenIsCancelledWhenTheTimeIsOver() {
    const TimeLimit limit(1ms, {});
    std::promise<void> heard;
    const CancelListener listener(limit.token(), [&] { heard.set_value(); });
    heard.get_future().wait();  // for ever, where nothing is told
    QVERIFY(limit.isOver());
    QCOMPARE(limit.explained({ErrorKind::Cancelled, "x"}).kind, ErrorKind::TimedOut);
    QVERIFY(limit.token().cancelled());
  }

  void whatFailedUnderItIsToldAsTheTime() {
    const TimeLimit limit(0ms, {});
    std::promise<void> heard;
    const CancelListener listener(limit.token(), [&] { heard.set_value(); });
    heard.get_future().wait();
    QCOMPARE(limit.explained({ErrorKind::Cancelled, "x"}).message,
             QStringLiteral("the picture was not ready within 0 seconds"));
  }

  void whoCancelsOutsideCancelsItToo() {
    const CancelToken outer;
    const TimeLimit limit(24h, outer);
    QVERIFY(!limit.token().cancelled());
    outer.cancel();
    QVERIFY(limit.token().cancelled());
    QVERIFY(!limit.isOver());
    QCOMPARE(limit.explained({ErrorKind::Cancelled, "x"}).message, QStringLiteral("x"));
  }

  void itsEndDoesNotWaitForTheTime() {
    CancelToken token;
    {
      const TimeLimit limit(24h, {});
      token = limit.token();
    }
    QVERIFY(!token.cancelled());
  }

  void theTimeLeavesTheOuterTokenAlone() {
    const CancelToken outer;
    const TimeLimit limit(1ms, outer);
    std::promise<void> heard;
    const CancelListener listener(limit.token(), [&] { heard.set_value(); });
    heard.get_future().wait();
    QVERIFY(!outer.cancelled());
  }
};

NORVEX_TEST(TimeLimitTest)
#include "time_limit_test.moc"
