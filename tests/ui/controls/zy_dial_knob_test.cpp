// The dial: angles, senses, mouse, keys, and what assistive technology sees.
#include <QAccessible>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>

#include "kit/test_main.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob.h"

using namespace norvex;

namespace {

struct Dial {
  Dial() {
    knob.resize(100, 100);
    field.setNumberFormat(NumberFormat(QStringLiteral("#,###.0000;0.0000;-#,##0.0000")));
    knob.setDmsTextField(&field);
  }
  void wheel(int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWheelEvent event(QPointF(50, 50), knob.mapToGlobal(QPointF(50, 50)), {}, {0, 120 * notches},
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&knob, &event);
  }
  ZyDialKnob knob;
  NumberField field;
};

}  // namespace

class ZyDialKnobTest : public QObject {
  Q_OBJECT
 private slots:
  void anAngleSetIsKeptAsItIs() {
    Dial dial;
    QSignalSpy turned(&dial.knob, &ZyDialKnob::turned);
    dial.knob.setDMSValue(12.3045);
    QVERIFY(std::abs(dial.knob.radianValue() - (12 + 30 / 60.0 + 45 / 3600.0) * M_PI / 180) < 1e-12);
    QCOMPARE(dial.field.text(), QStringLiteral("12.3045"));
    dial.knob.setDMSValue(-90);
    QCOMPARE(dial.knob.radianValue(), -M_PI / 2);
    QCOMPARE(dial.field.text(), QStringLiteral("-90.0000"));
    QVERIFY(turned.isEmpty());
  }

  void aPressOnTheRimTurnsTheKnobThere() {
    Dial dial;
    QSignalSpy turned(&dial.knob, &ZyDialKnob::turned);
    QTest::mouseClick(&dial.knob, Qt::LeftButton, {},
                      {5, 50});  // at the left: a quarter turn counter-clockwise
    QCOMPARE(dial.knob.DMSValue(), 90.0);
    QCOMPARE(dial.field.doubleValue(), 90.0);
    QCOMPARE(turned.size(), 1);
  }

  void theRimOfAWideKnobIsWhereItsCircleIs() {
    Dial dial;
    dial.knob.resize(240, 100);
    QTest::mouseClick(&dial.knob, Qt::LeftButton, {}, {86, 50});
    QCOMPARE(dial.knob.DMSValue(), 90.0);
  }

  void aPressNearTheNeedleTakesHoldOfItAcrossTheTopToo() {
    ZyDialKnob knob;
    knob.resize(100, 100);
    knob.setDMSValue(359);
    const auto at = [&knob](double degrees) {
      const double turn = degrees * M_PI / 180;
      return QPointF(QRectF(knob.rect()).center() + 45 * QPointF(-std::sin(turn), -std::cos(turn)));
    };
    const auto send = [&knob](QEvent::Type type, const QPointF& point, Qt::MouseButton button) {
      QMouseEvent event(type, point, point, button, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(&knob, &event);
    };
    send(QEvent::MouseButtonPress, at(4), Qt::LeftButton);
    QCOMPARE(knob.degreeValue(), 359.0);
    send(QEvent::MouseMove, at(14), Qt::NoButton);
    QVERIFY2(std::abs(knob.degreeValue() - 9) < 0.01, qPrintable(QString::number(knob.degreeValue())));
  }

  void onlyTheButtonThatTookHoldLetsGo() {
    Dial dial;
    const auto moveTo = [&dial](const QPointF& point) {
      QMouseEvent event(QEvent::MouseMove, point, point, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(&dial.knob, &event);
    };
    QTest::mousePress(&dial.knob, Qt::LeftButton, {}, {5, 50});
    QTest::mouseClick(&dial.knob, Qt::RightButton, {}, {5, 50});
    moveTo({50, 95});
    QCOMPARE(std::round(dial.knob.degreeValue()), 180.0);
    QTest::mouseRelease(&dial.knob, Qt::LeftButton, {}, {50, 95});
    moveTo({95, 50});
    QCOMPARE(std::round(dial.knob.degreeValue()), 180.0);
  }

  void aClockwiseKnobTurnsTheOtherWay() {
    Dial dial;
    dial.knob.setClockwise(true);
    QTest::mouseClick(&dial.knob, Qt::LeftButton, {}, {95, 50});
    QCOMPARE(dial.knob.DMSValue(), 90.0);
  }

  void shiftSnapsTo15Degrees() {
    Dial dial;
    QTest::mouseClick(&dial.knob, Qt::LeftButton, Qt::ShiftModifier, {10, 45});
    QCOMPARE(dial.knob.DMSValue(), 90.0);
    QTest::mouseClick(&dial.knob, Qt::LeftButton, Qt::ShiftModifier, {30, 15});
    QCOMPARE(dial.knob.DMSValue(), 30.0);
  }

  void aDoubleClickGoesToZero() {
    Dial dial;
    dial.knob.setDMSValue(45);
    QTest::mouseDClick(&dial.knob, Qt::LeftButton, {}, {50, 90});
    QCOMPARE(dial.knob.DMSValue(), 0.0);
  }

  void wheelAndKeys() {
    Dial dial;
    dial.wheel(1);
    QCOMPARE(dial.knob.DMSValue(), 1.0);
    dial.wheel(-2);
    QCOMPARE(dial.knob.DMSValue(), 359.0);
    dial.wheel(1, Qt::ShiftModifier);
    QCOMPARE(dial.knob.DMSValue(), 15.0);
    QTest::keyClick(&dial.knob, Qt::Key_Up);
    QCOMPARE(dial.knob.DMSValue(), 16.0);
    QTest::keyClick(&dial.knob, Qt::Key_Left);
    QTest::keyClick(&dial.knob, Qt::Key_PageUp);
    QCOMPARE(dial.knob.DMSValue(), 30.0);
    QTest::keyClick(&dial.knob, Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(dial.knob.DMSValue(), 29.59);
    QTest::keyClick(&dial.knob, Qt::Key_Home);
    QCOMPARE(dial.knob.DMSValue(), 0.0);
  }

  void aKnobThatIsNotEditableStays() {
    Dial dial;
    dial.knob.setEditable(false);
    QTest::mouseClick(&dial.knob, Qt::LeftButton, {}, {5, 50});
    dial.wheel(3);
    QTest::keyClick(&dial.knob, Qt::Key_Up);
    QCOMPARE(dial.knob.DMSValue(), 0.0);
  }

  void assistiveTechnologySeesAValue() {
    Dial dial;
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&dial.knob);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Dial);
    QAccessibleValueInterface* value = accessible->valueInterface();
    QVERIFY(value);
    dial.knob.setDMSValue(12.3045);
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("12° 30′ 45″"));
    QSignalSpy turned(&dial.knob, &ZyDialKnob::turned);
    value->setCurrentValue(45.0);
    QCOMPARE(dial.knob.DMSValue(), 45.0);
    QCOMPARE(value->currentValue().toDouble(), 45.0);
    QCOMPARE(turned.size(), 1);
  }

  void theNeedlePointsWhereTheAngleIs() {
    Dial dial;
    dial.knob.setBordered(false);
    dial.knob.setTickMarks(Qt::black, std::nullopt, 4);
    const QColor accent = dial.knob.palette().color(QPalette::Highlight);
    const auto needleAt = [&](QPoint point) {
      const QColor seen = dial.knob.grab().toImage().pixelColor(point);
      return std::abs(seen.red() - accent.red()) + std::abs(seen.green() - accent.green()) +
                 std::abs(seen.blue() - accent.blue()) <
             60;
    };
    QVERIFY(needleAt({50, 22}));
    dial.knob.setDMSValue(90);
    QVERIFY(needleAt({22, 50}) && !needleAt({50, 22}));
    dial.knob.setClockwise(true);
    QVERIFY(needleAt({78, 50}));
  }
};

NORVEX_TEST(ZyDialKnobTest)
#include "zy_dial_knob_test.moc"
