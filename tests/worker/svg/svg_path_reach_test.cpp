#include "worker/svg/svg_path_reach.h"

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

class SvgPathReachTest : public QObject {
  Q_OBJECT
 private slots:
  void heightsAreThoseOfThePoints_data() {
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<double>("height");
    QTest::newRow("lines") << QByteArray("M1 5L 900 25z") << 20.0;
    QTest::newRow("curve") << QByteArray("M0,0C1-10 2,30,4 5") << 40.0;
    QTest::newRow("relative") << QByteArray("M0 100l5 10 5 10q1 1 2 10") << 30.0;
    QTest::newRow("level and upright") << QByteArray("M0 0h900v7H3V-5") << 12.0;
    QTest::newRow("arc") << QByteArray("M0 0A90 90 0 0 1 50 60") << 60.0;
    QTest::newRow("no path") << QByteArray("none 900") << 0.0;
  }
  void heightsAreThoseOfThePoints() {
    QFETCH(QByteArray, data);
    QFETCH(double, height);
    QCOMPARE(meanPathHeight("<svg><path d=\"" + data + "\"/></svg>"), height);
  }

  void theMeanIsToldAndNoneWhereMostIsText() {
    const QByteArray two = "<path d='M0 0V10'/><path fill='red' d='M0 0V20'/>";
    QCOMPARE(meanPathHeight(two), 15.0);
    QCOMPARE(meanPathHeight(two + "<text/><text/>"), 0.0);
    QCOMPARE(meanPathHeight("<path d=''/>" + two), 10.0);
    QCOMPARE(meanPathHeight("<path d='M0 0V10"), 0.0);
    QCOMPARE(meanPathHeight(" d="), 0.0);
  }
};

}  // namespace

NORVEX_TEST(SvgPathReachTest)
#include "svg_path_reach_test.moc"
