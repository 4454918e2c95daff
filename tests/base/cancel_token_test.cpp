#include "base/cancel_token.h"

#include <optional>

#include "kit/test_main.h"

using namespace norvex;

class CancelTokenTest : public QObject {
  Q_OBJECT
 private slots:
  void copiesShareOneFlag() {
    const CancelToken token;
    const CancelToken copy = token;
    QVERIFY(!token.cancelled());
    copy.cancel();
    QVERIFY(token.cancelled());
    QVERIFY(!CancelToken().cancelled());
  }

  void everyListenerHearsTheCancelOnce() {
    const CancelToken token;
    int first = 0, second = 0;
    const CancelListener one(token, [&] { ++first; });
    const CancelListener other(token, [&] { second += token.cancelled() ? 1 : 100; });
    QCOMPARE(first + second, 0);
    token.cancel();
    token.cancel();
    QCOMPARE(first, 1);
    QCOMPARE(second, 1);  // what it looks at is cancelled already
  }

  void whoComesLateHearsItAtOnce() {
    const CancelToken token;
    token.cancel();
    bool heard = false;
    const CancelListener late(token, [&] { heard = true; });
    QVERIFY(heard);
  }

  void whoHasGoneHearsNothing() {
    const CancelToken token;
    bool heard = false;
    std::optional<CancelListener> gone(std::in_place, token, [&] { heard = true; });
    gone.reset();
    token.cancel();
    QVERIFY(!heard);
  }
};

NORVEX_TEST(CancelTokenTest)
#include "cancel_token_test.moc"
