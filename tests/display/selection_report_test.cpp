// The number texts of the selection report.
#include "display/selection_report.h"

#include <QRandomGenerator>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

#include "kit/test_main.h"

using namespace norvex;

namespace {

QString printed(const char* format, double first, double second) {
  char text[800];
  (void)std::snprintf(text, sizeof text, format, first, second);
  return QString::fromLatin1(text);
}

}  // namespace

class SelectionReportTest : public QObject {
  Q_OBJECT
 private slots:
  void theTextsAreThoseOfPrintf() {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "C");
    QRandomGenerator random(11);
    QList<double> numbers{0, -0.0, 1, 100000, 1e6, 123456.7, 1e-5, 6.123e-15, 0.1, 2.5, 1e300, -1e9};
    for (int i = 0; i < 2000; ++i)
      numbers << (random.bounded(2.0) - 1) * std::pow(10, random.bounded(24) - 12);
    for (qsizetype i = 0; i + 1 < numbers.size(); ++i) {
      QCOMPARE(shortPair(numbers[i], numbers[i + 1]), printed("%g\t%g", numbers[i], numbers[i + 1]));
      QCOMPARE(widePair(numbers[i], numbers[i + 1]), printed("%9.2f\t%9.2f", numbers[i], numbers[i + 1]));
    }
    std::setlocale(LC_NUMERIC, before.c_str());
  }

  void numbersThatAreNotFiniteHaveTextsToo() {
    const double nan = std::numeric_limits<double>::quiet_NaN(),
                 inf = std::numeric_limits<double>::infinity();
    QCOMPARE(shortPair(nan, -inf), QString("nan\t-inf"));
    QCOMPARE(widePair(std::numeric_limits<double>::max(), 0).size(), 309 + 3 + 1 + 9);
  }

  void aHeightThatIsNoNumberCountsAsAHeight() {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const SelectionReport report = selectionReport({0, 0, 5, nan}, {1, 2}, {3, 4});
    QCOMPARE(report.start, QString("1\t2"));
    QCOMPARE(report.end, QString("3\t4"));
    QCOMPARE(report.area, QString("5\tnan"));
    QVERIFY(flippedSelectionReport({0, 0, 5, nan}, {10, 10}, 0).end.contains('\t'));
  }

  void noWidthMeansNoReportWhateverTheHeight() {
    for (const double height : {0.0, 3.0, -1.0}) {
      QVERIFY(selectionReport({1, 2, 0, height}, {1, 2}, {3, 4}).start.isEmpty());
      QVERIFY(flippedSelectionReport({1, 2, -1, height}, {10, 10}, 0).area.isEmpty());
    }
  }

  void aFlippedStartPointUsesTheShortForm() {
    const SelectionReport report = flippedSelectionReport({-50, -20, 1, 0}, {200, 100}, 0);
    QCOMPARE(report.start, QString("50\t70"));
    QVERIFY(report.end.isEmpty() && report.area.isEmpty());
  }
};

NORVEX_TEST(SelectionReportTest)
#include "selection_report_test.moc"
