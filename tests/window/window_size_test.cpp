// The window-size rule on a real window.
#include <QToolBar>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/commands/window_frames.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QByteArray epsOfSize(int width, int height) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 " + QByteArray::number(width) + ' ' +
         QByteArray::number(height) + "\n%%EndComments\n";
}

}  // namespace

class WindowSizeTest : public QObject {
  Q_OBJECT

  static MainWindowController& shown(WindowFixture& fixture, int width, int height) {
    MainWindowController& c = fixture.loaded(epsOfSize(width, height), "a.eps", NorvexEPSType);
    c.window()->show();
    if (!QTest::qWaitForWindowExposed(c.window())) qFatal("no window");
    c.setWindowSize();
    return c;
  }

 private slots:
  void thePictureFitsIntoTheLargestWindowExactly() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    c.window()->resize(c.window()->maximumSize());
    QCOMPARE(c.scrollArea()->contentSize(), QSizeF(600, 500));
  }

  void aLengthIsWholeInTheScreensOwnPixels() {
    QCOMPARE(wholePixels(555, 1), 555);
    QCOMPARE(wholePixels(555, 2), 555);
    QCOMPARE(wholePixels(555, 1.5), 556);
    QCOMPARE(wholePixels(556, 1.5), 556);
    QCOMPARE(wholePixels(554, 1.5), 556);  // 831 pixels, and windows are sized in steps of two there
    QCOMPARE(wholePixels(553, 1.75), 560);
    QCOMPARE(wholePixels(553, 1.25), 556);
    QCOMPARE(wholePixels(553, 2.75), 564);
    QCOMPARE(wholePixels(553, 3.25), 564);
    QCOMPARE(wholePixels(545, 3.75), 560);
    QCOMPARE(wholePixels(555, 0.123456), 555);  // nothing would be whole
  }

  void aSmallPictureGivesTheMinimumSize() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 30, 20);
    QCOMPARE(c.calcWindowMaxSize(QSizeF(30, 20)), QSizeF(c.window()->minimumSize()));
    QCOMPARE(c.window()->width(), c.window()->minimumWidth());
  }

  void whatIsNotANumberGivesTheMinimum() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    QCOMPARE(c.calcWindowMaxSize(QSizeF(qQNaN(), qQNaN())), QSizeF(c.window()->minimumSize()));
  }

  void theMaximumIsThePictureAndTheChromeWithoutTheToolbar() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    const auto* toolbar = c.window()->findChild<QToolBar*>("toolbar");
    const QSizeF chrome = QSizeF(c.window()->size()) - c.scrollArea()->contentSize();
    const QSizeF rule = c.calcWindowMaxSize(QSizeF(600, 500));
    QCOMPARE(rule.width(), 600 + chrome.width());
    QCOMPARE(rule.height(), 500 + chrome.height() - toolbar->height());
  }

  void aHiddenToolbarCountsAsNothing() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    c.window()->findChild<QToolBar*>("toolbar")->hide();
    QCoreApplication::processEvents();
    const QSizeF chrome = QSizeF(c.window()->size()) - c.scrollArea()->contentSize();
    QCOMPARE(c.calcWindowMaxSize(QSizeF(600, 500)).height(), 500 + chrome.height());
    c.setWindowSize();
    QCOMPARE(c.window()->maximumHeight(), int(500 + chrome.height()));
  }

  void zoomingInNeverEnlargesAndZoomingOutShrinks() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    const QSize before = c.window()->size();
    c.zoomingScrollView()->zoomTo(2.0);
    QCOMPARE(c.window()->size(), before);
    QVERIFY(c.window()->maximumWidth() > before.width());
    c.zoomingScrollView()->zoomTo(0.75);
    QCOMPARE(c.scrollArea()->contentSize(), QSizeF(450, 375));
  }

  void aSmallerWindowIsLeftAsItIs() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    c.window()->resize(500, 400);
    c.rotateChange(90);
    QCOMPARE(c.window()->size(), QSize(500, 400));
    const QSizeF chrome = QSizeF(c.window()->size()) - c.scrollArea()->contentSize();
    QCOMPARE(c.window()->maximumWidth(), int(500 + chrome.width()));
    QCOMPARE(c.window()->maximumHeight(), int(600 + chrome.height()));
  }

  void aShortenedWindowKeepsItsBottomEdge() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    const QRect before = c.window()->geometry();
    c.zoomingScrollView()->zoomTo(0.5);
    const QRect after = c.window()->geometry();
    QVERIFY(after.height() < before.height());
    QCOMPARE(after.bottom(), before.bottom());
    QCOMPARE(after.left(), before.left());
  }

  void theRuleMeasuresAWindowThatWasNeverShown() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded(epsOfSize(600, 500), "a.eps", NorvexEPSType);
    const QSize hidden = c.window()->maximumSize();
    c.window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(c.window()));
    c.setWindowSize();
    QCOMPARE(c.window()->maximumSize(), hidden);
  }

  void withoutAWindowTheRuleIsTheWantedSize() {
    MainWindowController c;
    c.setWindowSize();
    QCOMPARE(c.calcWindowMaxSize(QSizeF(10, 20)), QSizeF(10, 20));
  }
};

NORVEX_TEST(WindowSizeTest)
#include "window_size_test.moc"
