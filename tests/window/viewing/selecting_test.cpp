// Selections before, selections by numbers, and a zoom that follows the window.
#include <QAction>
#include <QDoubleSpinBox>
#include <QMainWindow>
#include <QTimer>

#include "kit/test_main.h"
#include "ui/pages/rectangle_dialog.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/viewing/selection_history.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

struct Shown {
  Shown() : c(fixture.loadedEps()) { c.window()->show(); }
  [[nodiscard]] QAction* action(const char* name) const {
    return c.window()->findChild<QAction*>(QString::fromLatin1(name));
  }
  /// Selects and lets that settle.
  void select(const QRectF& rect) {
    selectRectangle(*c.view(), rect);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] QRectF selected() const { return c.view()->selectRect(); }

  WindowFixture fixture;
  MainWindowController& c;
};

const QRectF kFirst(-50, -20, 40, 30), kSecond(0, 0, 60, 20);

}  // namespace

class SelectingTest : public QObject {
  Q_OBJECT
 private slots:
  void aRectangleIsSelectedAsFarAsItIsThere() {
    Shown f;
    selectRectangle(*f.c.view(), kFirst);
    QCOMPARE(f.selected(), kFirst);
    selectRectangle(*f.c.view(), {50, 20, 500, 500});
    QCOMPARE(f.selected(), QRectF(50, 20, 50, 30));
    selectRectangle(*f.c.view(), {50, 20, 1, 1});
    QCOMPARE(f.selected(), QRectF(50, 20, 1, 1));
    for (const QRectF& nothing : {QRectF(500, 500, 5, 5), QRectF(50, 20, 0.9, 5), QRectF(50, 20, 5, 0.9)}) {
      selectRectangle(*f.c.view(), nothing);
      QCOMPARE(f.selected().width(), 0.0);
    }
  }

  void undoAndRedoGoThroughTheSelections() {
    Shown f;
    QVERIFY(!f.action("undoAction")->isEnabled() && !f.action("redoAction")->isEnabled());
    f.select(kFirst);
    f.select(kSecond);
    f.action("undoAction")->trigger();
    QCOMPARE(f.selected(), kFirst);
    f.action("undoAction")->trigger();
    QCOMPARE(f.selected().width(), 0.0);
    QCoreApplication::processEvents();
    QVERIFY(!f.action("undoAction")->isEnabled());
    f.action("redoAction")->trigger();
    f.action("redoAction")->trigger();
    QCOMPARE(f.selected(), kSecond);
    QCoreApplication::processEvents();
    QVERIFY(!f.action("redoAction")->isEnabled());
  }

  void aNewSelectionEndsTheWayForward() {
    Shown f;
    f.select(kFirst);
    f.action("undoAction")->trigger();
    f.select(kSecond);
    QVERIFY(!f.action("redoAction")->isEnabled());
  }

  void aStepOfADragIsNoSelectionToComeBackTo() {
    Shown f;
    f.select(kFirst);
    NorvexView& view = *f.c.view();
    for (const QPointF& point : {QPointF(0, 0), QPointF(60, 20)}) {
      QVERIFY(view.mouseDown());
      view.mouseDragged(point / 2);
      QCoreApplication::processEvents();
      view.mouseDragged(point);
      view.mouseUp(point);
      QCoreApplication::processEvents();
    }
    QCOMPARE(f.selected(), kSecond);
    f.action("undoAction")->trigger();
    QCOMPARE(f.selected(), kFirst);
  }

  void numbersMakeARectangle() {
    Shown f;
    QTimer::singleShot(0, [&] {
      auto* dialog = f.c.window()->findChild<RectangleDialog*>();
      QVERIFY(dialog);
      const auto type = [&](const char* name, double value) {
        dialog->findChild<QDoubleSpinBox*>(QLatin1String(name))->setValue(value);
      };
      type("rectangleLeft", 50);
      type("rectangleBottom", 30);
      type("rectangleWidth", 40);
      type("rectangleHeight", 30);
      dialog->accept();
    });
    f.action("selectRectangleAction")->trigger();
    QCOMPARE(f.selected(), kFirst);  // from the lower left corner of 200 × 100 points
  }

  void numbersAreOfTheChosenUnit() {
    const RectangleDialog dialog({72, 36, 144, 72}, {288, 288}, LengthUnit::Inches, nullptr);
    const auto* left = dialog.findChild<QDoubleSpinBox*>("rectangleLeft");
    QCOMPARE(left->value(), 1.0);
    QVERIFY(left->text().endsWith(" in"));
    QCOMPARE(left->maximum(), 4.0);
    QCOMPARE(dialog.rectangle(), QRectF(72, 36, 144, 72));
  }

  void fitFollowsTheWindow() {
    Shown f;
    f.action("windowFitsPictureAction")->setChecked(false);
    f.c.window()->resize(500, 500);
    QCoreApplication::processEvents();
    f.action("fitAction")->trigger();
    const auto fits = [&] {
      return std::abs(f.c.zoomFactor() - f.c.scrollArea()->fittingFactor()) < 0.01 * f.c.zoomFactor();
    };
    QVERIFY(fits());
    const double before = f.c.zoomFactor();
    f.c.window()->resize(700, 700);
    QTRY_VERIFY(f.c.zoomFactor() > before * 1.2 && fits());
    f.c.zoomingScrollView()->zoomTo(1.0);  // another zoom is chosen: it stays
    f.c.window()->resize(600, 600);
    QCoreApplication::processEvents();
    QTest::qWait(20);
    QCOMPARE(f.c.zoomFactor(), 1.0);
  }

  void aPixelLessIsFollowedToo() {
    Shown f;
    f.action("windowFitsPictureAction")->setChecked(false);
    f.c.window()->resize(900, 640);
    QCoreApplication::processEvents();
    f.action("fitAction")->trigger();
    const double before = f.c.zoomFactor();
    f.c.window()->resize(899, 639);
    QTRY_VERIFY(f.c.zoomFactor() < before);
    QVERIFY(before - f.c.zoomFactor() < 0.004 * before);
    QVERIFY(f.c.zoomFactor() <= f.c.scrollArea()->fittingFactor());  // nothing to scroll
  }

  void fitWidthFillsTheWidthAtEveryAngle() {
    Shown f;
    f.action("windowFitsPictureAction")->setChecked(false);
    f.c.window()->resize(500, 500);
    QCoreApplication::processEvents();
    f.action("fitWidthAction")->trigger();
    QVERIFY(std::abs(200 * f.c.zoomFactor() - f.c.scrollArea()->contentSize().width()) < 2);
    f.c.rotateChange(90);
    QVERIFY(std::abs(100 * f.c.zoomFactor() - f.c.scrollArea()->contentSize().width()) < 2);
  }

  void aFitInAWindowThatFitsThePictureSettles() {
    Shown f;
    f.c.zoomingScrollView()->zoomTo(4.0);
    f.c.window()->resize(600, 500);
    QCoreApplication::processEvents();
    f.action("fitAction")->trigger();
    QTest::qWait(50);
    const QSize settled = f.c.window()->size();
    QTest::qWait(50);
    QCOMPARE(f.c.window()->size(), settled);
  }
};

NORVEX_TEST(SelectingTest)
#include "selecting_test.moc"
