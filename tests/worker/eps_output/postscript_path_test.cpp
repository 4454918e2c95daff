#include "worker/eps_output/postscript_path.h"
#include "worker/pdf/pdf_numbers.h"

#include <GfxState.h>

#include <QRandomGenerator>

#include <cmath>
#include <limits>

#include "kit/test_main.h"

using namespace norvex::engine;

namespace {

QByteArray written(double number) {
  QByteArray text;
  appendNumber(text, number);
  return text;
}

QByteArray written(const GfxPath& path) {
  QByteArray text;
  appendPath(text, path);
  return text;
}

QByteArray polygon(std::initializer_list<QPointF> corners) {
  GfxPath path;
  path.moveTo(corners.begin()->x(), corners.begin()->y());
  for (auto corner = corners.begin() + 1; corner != corners.end(); ++corner)
    path.lineTo(corner->x(), corner->y());
  path.close();
  return written(path);
}

}  // namespace

class PostscriptPathTest : public QObject {
  Q_OBJECT
 private slots:
  void numbersAreShort_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("zero") << 0.0 << QByteArray("0");
    QTest::newRow("negative zero") << -0.0 << QByteArray("0");
    QTest::newRow("whole") << 12.0 << QByteArray("12");
    QTest::newRow("negative") << -120.5 << QByteArray("-120.5");
    QTest::newRow("zeros within") << 3.0405 << QByteArray("3.0405");
    QTest::newRow("six decimals") << 0.1234567 << QByteArray("0.123457");
    QTest::newRow("rounded up to a whole") << 0.9999999 << QByteArray("1");
    QTest::newRow("too small") << 4.9e-7 << QByteArray("0");
    QTest::newRow("too small and negative") << -4.9e-7 << QByteArray("0");
    QTest::newRow("the last decimal") << -1e-6 << QByteArray("-0.000001");
    QTest::newRow("large") << 123456789.25 << QByteArray("123456789.25");
    QTest::newRow("very large") << 1e20 << QByteArray("1e+20");
    QTest::newRow("out of range") << 1e200 << QByteArray("0");
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << QByteArray("0");
    QTest::newRow("not a number") << std::nan("") << QByteArray("0");
  }
  void numbersAreShort() {
    QFETCH(double, number);
    QFETCH(QByteArray, text);
    QCOMPARE(written(number), text);
  }

  void numbersAreReadBackToSixDecimals() {
    QRandomGenerator random(9);
    for (int i = 0; i < 100'000; ++i) {
      const double number = (random.generateDouble() - 0.5) * std::pow(10, random.bounded(13));
      const QByteArray text = written(number);
      bool isNumber = false;
      QVERIFY2(std::abs(text.toDouble(&isNumber) - number) <= 5.1e-7 + std::abs(number) * 1e-15, text);
      QVERIFY2(isNumber && (!text.contains('.') || !text.endsWith('0')), text);
    }
  }

  void uprightRectanglesAreOneLine() {
    const QByteArray line = "10 20 30 40 re\n";
    QCOMPARE(polygon({{10, 20}, {40, 20}, {40, 60}, {10, 60}, {10, 20}}), line);
    QCOMPARE(polygon({{40, 60}, {40, 20}, {10, 20}, {10, 60}, {40, 60}}), line);
    const QByteArray slanted = polygon({{10, 20}, {40, 21}, {40, 60}, {10, 60}, {10, 20}});
    QCOMPARE(slanted, QByteArray("10 20 m\n40 21 l\n40 60 l\n10 60 l\n10 20 l\nh\n"));
  }

  void linesCurvesAndSubpathsKeepTheirOrder() {
    GfxPath path;
    path.moveTo(1, 2);
    path.curveTo(3, 4, 5, 6, 7.5, 8);
    path.lineTo(9, -1);
    path.moveTo(0, 0);
    path.lineTo(1, 0);
    path.close();
    QCOMPARE(written(path), QByteArray("1 2 m\n3 4 5 6 7.5 8 c\n9 -1 l\n0 0 m\n1 0 l\n0 0 l\nh\n"));
    QCOMPARE(written(GfxPath()), QByteArray());
  }
};

NORVEX_TEST(PostscriptPathTest)
#include "postscript_path_test.moc"
