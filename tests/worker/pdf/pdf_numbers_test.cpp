#include "worker/pdf/pdf_numbers.h"

#include <QRandomGenerator>

#include <cmath>
#include <limits>

#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

QByteArray appended(double number) {
  QByteArray text = "0 ";
  appendNumber(text, number);
  return text.mid(2);
}

}  // namespace

class PdfNumbersTest : public QObject {
  Q_OBJECT
 private slots:
  void decimalsAreAsShortAsTheyCanBe() {
    QCOMPARE(decimal(0), "0");
    QCOMPARE(decimal(0.5), "0.5");
    QCOMPARE(decimal(1.23456), "1.2346");
    QCOMPARE(decimal(-1.23454), "-1.2345");
    QCOMPARE(decimal(100), "100");
    QCOMPARE(decimal(1200, 0), "1200");  // these zeros count
    QCOMPARE(decimal(-0.00001), "0");
    QCOMPARE(decimal(1.0e7 + 0.25), "10000000.25");
    QCOMPARE(decimal(0.1234567, 6), "0.123457");
  }

  void significantDigitsAreCounted() {
    QCOMPARE(significant(0.12345678912), "0.123456789");
    QCOMPARE(significant(123456789012.0), "1.23456789e+11");
    QCOMPARE(significant(1.0e-7), "1e-07");
    QCOMPARE(significant(1.5, 3), "1.5");
    QCOMPARE(significant(1.23456, 3), "1.23");
  }

  void numbersOfAPathHaveSixDecimals_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](double number, const char* text) {
      QTest::newRow(text) << number << QByteArray(text);
    };
    row(0, "0");
    row(7, "7");
    row(10, "10");
    row(-1.5, "-1.5");
    row(0.25, "0.25");
    row(-0.000001, "-0.000001");
    row(1.0000004, "1");
    row(1.0000006, "1.000001");
    row(123456.789, "123456.789");
    row(1.000009, "1.000009");
    row(20.100001, "20.100001");
    row(123456789.25, "123456789.25");
    row(9.1e12, "9.1e+12");
    row(-3.4e38, "-3.4e+38");
    QTest::newRow("less than they tell") << -0.0000001 << QByteArray("0");
    QTest::newRow("more than a real holds") << 3.5e38 << QByteArray("0");
    QTest::newRow("less than a real holds") << -3.5e38 << QByteArray("0");
    QTest::newRow("without an end") << std::numeric_limits<double>::infinity() << QByteArray("0");
    QTest::newRow("negative zero") << -0.0 << QByteArray("0");
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << QByteArray("0");
  }
  void numbersOfAPathHaveSixDecimals() {
    QFETCH(double, number);
    QTEST(appended(number), "text");
  }

  void numbersOfAPathAreReadBackToSixDecimals() {
    QRandomGenerator random(9);
    for (int i = 0; i < 100'000; ++i) {
      const double number = (random.generateDouble() - 0.5) * std::pow(10, random.bounded(13));
      const QByteArray text = appended(number);
      bool isNumber = false;
      QVERIFY2(std::abs(text.toDouble(&isNumber) - number) <= 5.1e-7 + std::abs(number) * 1e-15, text);
      QVERIFY2(isNumber && (!text.contains('.') || !text.endsWith('0')), text);
    }
  }

  void matricesTellTheirLinearPartFiner() {
    QCOMPARE(matrixText(AffineTransform(0.1234567894, -0.5, 2, 1.5, 10.123456, -20.000001)),
             "0.123456789 -0.5 2 1.5 10.12346 -20");
  }
};

NORVEX_TEST(PdfNumbersTest)
#include "pdf_numbers_test.moc"
