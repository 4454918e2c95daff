// The window-size rule.
#include "display/window_sizing.h"

#include <limits>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// A 600 × 500 window at (100, 200) whose scroll view shows 580 × 460: chrome of 20 × 40.
WindowMeasures window(double toolbar = 0) {
  return {QRectF(100, 200, 600, 500), {240, 180}, {580, 460}, toolbar};
}

}  // namespace

class WindowSizingTest : public QObject {
  Q_OBJECT
 private slots:
  void theToolbarCountsOnlyWhileVisible() {
    QCOMPARE(toolbarHeight(false, 500, 450), 0.0);
    QCOMPARE(toolbarHeight(true, 500, 450), 50.0);
    QCOMPARE(toolbarHeight(true, 500, std::nullopt), 500.0);
  }

  void theMaximumIsThePictureAndTheChrome() {
    QCOMPARE(windowMaxSize(window(), {300, 250}), QSizeF(320, 290));
    QCOMPARE(windowMaxSize(window(50), {300, 250}), QSizeF(320, 240));
  }

  void aSmallPictureYieldsTheMinimum() {
    QCOMPARE(windowMaxSize(window(), {10, 10}), QSizeF(240, 180));
    const WindowSize size = windowSize(window(), {10, 10}, 1);
    QCOMPARE(size.maximum, QSizeF(240, 180));
    QCOMPARE(size.frame, QRectF(100, 200, 240, 180));
  }

  void aPictureWithoutSizeYieldsTheMinimumOrTheChrome() {
    QCOMPARE(windowSize(window(), {0, 0}, 1).maximum, QSizeF(240, 180));
    WindowMeasures wide = window();
    wide.visibleArea = {300, 100};  // chrome of 300 × 400
    QCOMPARE(windowSize(wide, {0, 0}, 1).maximum, QSizeF(300, 400));
  }

  void whatIsNoNumberBecomesTheMinimum() {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(windowMaxSize(window(), {nan, 300}), QSizeF(240, 340));
    QCOMPARE(windowMaxSize(window(), {300, nan}), QSizeF(320, 180));
    QCOMPARE(windowSize(window(), {100, 100}, nan).frame, QRectF(100, 200, 240, 180));
  }

  void zoomingInNeverGrowsTheWindow() {
    const WindowSize size = windowSize(window(), {580, 460}, 4);
    QCOMPARE(size.maximum, QSizeF(2340, 1880));
    QCOMPARE(size.frame, window().frame);
  }

  void zoomingOutShrinksToPictureAndChrome() {
    const WindowSize size = windowSize(window(), {1000, 800}, 0.5);
    QCOMPARE(size.maximum, QSizeF(520, 440));
    QCOMPARE(size.frame, QRectF(100, 200, 520, 440));  // the lower edge stays
  }

  void theFrameMayBeTallerThanTheMaximumByTheToolbar() {
    // With the toolbar's 50 points left out the maximum is 390 high, but the frame is cut at 440.
    const WindowSize size = windowSize(window(50), {500, 400}, 1);
    QCOMPARE(size.maximum, QSizeF(520, 390));
    QCOMPARE(size.frame, QRectF(100, 200, 520, 440));
  }

  void aSmallerWindowIsLeftAsItIs() {
    WindowMeasures small = window();
    small.frame = QRectF(1, 2, 250, 190);
    small.visibleArea = {230, 150};
    const WindowSize size = windowSize(small, {1000, 1000}, 1);
    QCOMPARE(size.maximum, QSizeF(1020, 1040));
    QCOMPARE(size.frame, small.frame);
  }

  void equalSidesAreLeft() {
    const WindowSize size = windowSize(window(), {580, 460}, 1);
    QCOMPARE(size.maximum, QSizeF(600, 500));
    QCOMPARE(size.frame, window().frame);
  }

  void withoutAWindowTheWantedSizeLessTheVisibleAreaIsLeft() {
    QCOMPARE(windowMaxSize({}, {300, 200}), QSizeF(300, 200));
  }
};

NORVEX_TEST(WindowSizingTest)
#include "window_sizing_test.moc"
