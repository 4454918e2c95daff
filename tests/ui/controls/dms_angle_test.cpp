// Angles packed into the digits of a number.
#include "ui/controls/dms_angle.h"
#include "kit/test_main.h"

using namespace norvex;

class DmsAngleTest : public QObject {
  Q_OBJECT
 private slots:
  void packedDigitsAreDegreesMinutesAndSeconds_data() {
    QTest::addColumn<double>("packed");
    QTest::addColumn<double>("degrees");
    QTest::newRow("12° 30' 45\"") << 12.3045 << 12.0 + 30.0 / 60 + 45.0 / 3600;
    QTest::newRow("negative") << -12.3045 << -(12.0 + 30.0 / 60 + 45.0 / 3600);
    QTest::newRow("whole") << 90.0 << 90.0;
    QTest::newRow("minutes only") << 0.3 << 0.5;
    QTest::newRow("parts of a second") << 1.00005 << 1.0 + 0.5 / 3600;
    QTest::newRow("carried over") << 12.75 << 13.25;
    QTest::newRow("a whole turn and more") << 720.0 << 720.0;
    QTest::newRow("not finite") << std::numeric_limits<double>::infinity() << 0.0;
  }
  void packedDigitsAreDegreesMinutesAndSeconds() {
    QFETCH(double, packed);
    QFETCH(double, degrees);
    QVERIFY(std::abs(dms::toDegrees(packed) - degrees) < 1e-12);
  }

  void everySecondOfATurnComesBackExactly() {
    for (int seconds = -360 * 3600; seconds <= 360 * 3600; seconds += 7) {
      const double degrees = seconds / 3600.0;
      QVERIFY2(std::abs(dms::toDegrees(dms::fromDegrees(degrees)) - degrees) < 1e-9,
               qPrintable(QString::number(seconds)));
    }
  }

  void secondsNeverRoundUpToSixty() {
    QCOMPARE(dms::fromDegrees(29.0 + 59.0 / 60 + 59.7 / 3600), 30.0);
    QCOMPARE(dms::fromDegrees(12.5125), 12.3045);
    QCOMPARE(dms::fromDegrees(-1e-9), 0.0);
  }

  void radians() {
    QCOMPARE(dms::toRadians(90), M_PI / 2);
    QCOMPARE(dms::toRadians(-180), -M_PI);
    QCOMPARE(dms::fromRadians(M_PI / 2), 90.0);
  }

  void texts() {
    QCOMPARE(dms::text(12.3045), QStringLiteral("12° 30′ 45″"));
    QCOMPARE(dms::text(90), QStringLiteral("90°"));
    QCOMPARE(dms::text(-0.05), QStringLiteral("\u22120° 05′"));
    QCOMPARE(dms::text(1.0009), QStringLiteral("1° 00′ 09″"));
  }

  void typedAngles() {
    QCOMPARE(dms::fromText("12° 30' 45\"").value(), 12.3045);
    QCOMPARE(dms::fromText("12°30′45″").value(), 12.3045);
    QCOMPARE(dms::fromText("-90°").value(), -90.0);
    QCOMPARE(dms::fromText(" 7 ° 5 '").value(), 7.05);
    QCOMPARE(dms::fromText("45.5°").value(), 45.30);
    QCOMPARE(dms::fromText("45,5 °").value(), 45.30);
    QCOMPARE(dms::fromText("−0.25°").value(), -0.15);
    QCOMPARE(dms::fromText("１２°３０′").value(), 12.30);
    QCOMPARE(dms::fromText("12°30′45,5″").value(), 12.30455);
    for (const char* wrong : {"", "abc", "12", "°", "1°2°", "12° 30", "45.5° 30′", "45.°"})
      QVERIFY2(!dms::fromText(wrong), wrong);
  }
};

NORVEX_TEST(DmsAngleTest)
#include "dms_angle_test.moc"
