// Numbers by a three-part pattern, and the field that shows them.
#include "ui/controls/number_field.h"
#include "kit/test_main.h"
#include "ui/controls/number_format.h"

using namespace norvex;

namespace {
const NumberFormat kAngle(QStringLiteral("#,###.0000;0.0000;-#,##0.0000"));
}

class NumberFieldTest : public QObject {
  Q_OBJECT
 private slots:
  void theAnglePattern_data() {
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0.0000";
    QTest::newRow("positive below one has no leading zero") << 0.5 << ".5000";
    QTest::newRow("negative below one has one") << -0.5 << "-0.5000";
    QTest::newRow("positive") << 12.3045 << "12.3045";
    QTest::newRow("negative") << -45.0 << "-45.0000";
    QTest::newRow("grouped") << 1234567.0 << "1,234,567.0000";
    QTest::newRow("negative grouped") << -1234.5 << "-1,234.5000";
    QTest::newRow("rounded") << 1.00005 << "1.0001";
  }
  void theAnglePattern() {
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(kAngle.string(value), text);
  }

  void aPatternWithoutAllParts() {
    QCOMPARE(NumberFormat("0.0").string(-2), QStringLiteral("-2.0"));
    QCOMPARE(NumberFormat("0.0").string(0), QStringLiteral("0.0"));
    QCOMPARE(kAngle.string(std::numeric_limits<double>::quiet_NaN()), QString());
  }

  void textsAsNumbers() {
    QCOMPARE(NumberFormat::number("1,234.5").value(), 1234.5);
    QCOMPARE(NumberFormat::number("12,5").value(), 12.5);
    QCOMPARE(NumberFormat::number(" -.5 ").value(), -0.5);
    QCOMPARE(NumberFormat::number("\u22123").value(), -3.0);
    for (const char* wrong : {"", "abc", "nan", "inf", "1e999", "1.2.3"})
      QVERIFY2(!NumberFormat::number(wrong), wrong);
  }

  void everyShownNumberReadsBack() {
    for (double value : {0.0, 0.1, -0.1, 12.3045, -359.5959, 123456.7891})
      QCOMPARE(NumberFormat::number(kAngle.string(value)).value(), value);
  }

  void numbersAreWrittenAsTheLocaleWritesThem_data() {
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("de_DE") << QLocale("de_DE") << QStringLiteral("1.234.567,5000");
    QTest::newRow("fr_FR") << QLocale("fr_FR") << QStringLiteral("1\u202F234\u202F567,5000");
    QTest::newRow("ja_JP") << QLocale("ja_JP") << QStringLiteral("1,234,567.5000");
  }
  void numbersAreWrittenAsTheLocaleWritesThem() {
    QFETCH(QLocale, locale);
    QFETCH(QString, text);
    QCOMPARE(kAngle.string(1234567.5, locale), text);
    for (double value : {0.0, 0.1, -0.1, 12.3045, -359.5959, 123456.7891})
      QCOMPARE(NumberFormat::number(kAngle.string(value, locale), locale).value(), value);
  }

  void bothDecimalSignsAreUnderstoodEverywhere() {
    for (const char* name : {"de_DE", "fr_FR", "ja_JP", "C"})
      for (const QString& typed :
           {QStringLiteral("45.5"), QStringLiteral("45,5"), QStringLiteral("\uFF14\uFF15\uFF0E\uFF15")})
        QCOMPARE(NumberFormat::number(typed, QLocale(name)).value(), 45.5);
  }

  void ofBothSignsTheOneBehindIsTheDecimalSign() {
    for (const char* name : {"de_DE", "fr_FR", "de_CH", "ja_JP", "C"})
      for (const char* typed : {"1,234.5", "1.234,5"})
        QCOMPARE(NumberFormat::number(QString::fromLatin1(typed), QLocale(name)).value(), 1234.5);
    for (const char* wrong : {"1.234,5.6", "1,234.5,6", "1,2.3.4"})
      QVERIFY2(!NumberFormat::number(QString::fromLatin1(wrong), QLocale("de_DE")), wrong);
  }

  void aGroupSignThatCanBeNothingElseIsPassedOver() {
    QCOMPARE(NumberFormat::number("1\u2019234", QLocale("de_CH")).value(), 1234.0);
    QCOMPARE(NumberFormat::number("1\u202F234", QLocale("fr_FR")).value(), 1234.0);
    QCOMPARE(NumberFormat::number("1.234.567", QLocale("de_DE")).value(), 1234567.0);
  }

  void anAngleIsTypedAndShownInTheLocale() {
    const QLocale before;
    QLocale::setDefault(QLocale("de_DE"));
    NumberField field;
    field.setNumberFormat(kAngle);
    for (const auto& [typed, packed, shown] :
         {std::tuple("12,3045", 12.3045, "12,3045"), std::tuple("45.5°", 45.3, "45,3000"),
          std::tuple("45,5°", 45.3, "45,3000"), std::tuple("45°30′", 45.3, "45,3000"),
          std::tuple("-45,25°", -45.15, "-45,1500")}) {
      field.selectAll();
      field.insert(QString::fromUtf8(typed));  // as an input method does: not every sign has a key
      field.setModified(true);
      QTest::keyClick(&field, Qt::Key_Return);
      QCOMPARE(field.doubleValue(), packed);
      QCOMPARE(field.text(), QString(shown));
    }
    QLocale::setDefault(before);
  }

  void whoOnlyLooksAtANumberChangesNothing() {
    NumberField field;
    field.setNumberFormat(NumberFormat("0.0"));
    field.setDoubleValue(1.25);  // shown with less than it has
    QSignalSpy edited(&field, &NumberField::valueEdited);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(edited.size(), 0);
    QCOMPARE(field.doubleValue(), 1.25);
    field.clearValue();
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(edited.size(), 0);
  }

  void typingTellsOnceAndNonsenseIsTakenBack() {
    NumberField field;
    field.setNumberFormat(kAngle);
    field.setDoubleValue(10);
    QSignalSpy edited(&field, &NumberField::valueEdited);
    field.selectAll();
    QTest::keyClicks(&field, "90");
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(field.doubleValue(), 90.0);
    QCOMPARE(field.text(), QStringLiteral("90.0000"));
    field.selectAll();
    QTest::keyClicks(&field, "ninety");
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(field.text(), QStringLiteral("90.0000"));
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("12° 30' 45\""));
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(field.doubleValue(), 12.3045);
  }
};

NORVEX_TEST(NumberFieldTest)
#include "number_field_test.moc"
