// Lengths as people read them, in their unit and their notation.
#include <QLocale>

#include "display/length_text.h"
#include "kit/test_main.h"

using namespace norvex;

class LengthTextTest : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale::c()); }

  void eachUnitHasItsOwnPrecision() {
    QCOMPARE(lengthText(260, LengthUnit::Points), QString("260"));
    QCOMPARE(lengthText(12.345, LengthUnit::Points), QString("12.3"));
    QCOMPARE(lengthText(72, LengthUnit::Millimetres), QString("25.4"));
    QCOMPARE(lengthText(9, LengthUnit::Inches), QString("0.125"));
    QCOMPARE(lengthText(15, LengthUnit::Picas), QString("1.25"));
    QCOMPARE(lengthText(10, LengthUnit::Millimetres), QString("3.5"));
    QCOMPARE(lengthText(1, LengthUnit::Inches), QString("0.014"));
    QCOMPARE(lengthText(1, LengthUnit::Picas), QString("0.08"));
  }

  void nothingIsNeverNegative() { QCOMPARE(lengthText(-0.01, LengthUnit::Points), QString("0")); }

  void thousandsStandTogether() { QCOMPARE(lengthText(14400, LengthUnit::Points), QString("14400")); }

  void theUsersDecimalPointIsTaken() {
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(sizeText({1.5, 2}), QString("1,5 × 2"));
  }

  void unitsFollowEachOtherRound() {
    LengthUnit unit = LengthUnit::Points;
    for (const char* name : {"pt", "mm", "in", "pc", "pt"}) {
      QCOMPARE(unitName(unit), QString(name));
      QCOMPARE(unitNamed(name), unit);
      unit = nextUnit(unit);
    }
    QCOMPARE(unitNamed("furlong"), LengthUnit::Points);
  }
};

NORVEX_TEST(LengthTextTest)
#include "length_text_test.moc"
