// The window-size rule on a real window.
#include <QAction>
#include <QScreen>
#include <QScrollBar>
#include <QToolBar>
#include <QWindow>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "ui/pages/page_switch.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/place/window_frames.h"
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

  static constexpr QSize kLate{600, 450};

  static void setPage(WindowFixture& fixture, const QSize& size) {
    MemoryPicture picture;
    picture.facts.pageBounds = {QRectF(QPointF(0, 0), QSizeF(size))};
    fixture.service.setPicture(picture);
  }
  /// Its document takes longer than the window waits for it.
  static MainWindowController& shownWithoutPicture(WindowFixture& fixture) {
    saveFrameMargins({});  // as it is here: no guess is right for a while only
    setPage(fixture, kLate);
    fixture.service.setPrepare([](MemoryPictureProcess& process) { process.hold(PictureCall::Facts); });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    if (!QTest::qWaitForWindowExposed(c.window()) || !c.isReading()) qFatal("no window that waits");
    return c;
  }
  static void letPictureCome(WindowFixture& fixture, MainWindowController& c) {
    if (!fixture.service.lastProcess()->waitUntilHeld(PictureCall::Facts)) qFatal("nothing was read");
    fixture.service.setPrepare({});
    fixture.service.lastProcess()->release(PictureCall::Facts);
    QTRY_VERIFY(!c.isReading());
    QCoreApplication::processEvents();
  }
  /// With what the desktop draws around it.
  static QRect outsideOf(MainWindowController& c) {
    return c.window()->geometry().marginsAdded(savedFrameMargins());
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

  void aLatePictureIsPlacedAsIfItHadBeenKnown() {
    WindowFixture fixture;
    MainWindowController& c = shownWithoutPicture(fixture);
    const QRect before = c.window()->geometry();
    letPictureCome(fixture, c);
    const QRect after = c.window()->geometry();
    QVERIFY(after.width() < before.width() && after.height() < before.height());
    const QPoint off = outsideOf(c).center() - c.window()->screen()->availableGeometry().center();
    QVERIFY2(off.manhattanLength() <= 2, qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
    QCOMPARE(c.scrollArea()->contentSize(), QSizeF(kLate));
  }

  void aLatePictureKeepsTheRememberedCorner() {
    WindowFixture fixture;
    saveWindowFrame("MainWindowController", QRect(40, 50, 640, 660));
    MainWindowController& c = shownWithoutPicture(fixture);
    letPictureCome(fixture, c);
    QCOMPARE(outsideOf(c).topLeft(), QPoint(40, 50));
    QCOMPARE(c.scrollArea()->contentSize(), QSizeF(kLate));
  }

  void aWindowThatWasTakenElsewhereStaysThereWhenItsPictureComes() {
    WindowFixture fixture;
    saveWindowFrame("MainWindowController", QRect(40, 50, 640, 660));
    MainWindowController& c = shownWithoutPicture(fixture);
    const QRect screen = c.window()->screen()->availableGeometry();
    QTest::qWait(400);  // nobody takes it anywhere while it comes up
    c.window()->setGeometry(QRect(QPoint(screen.left() + 90, screen.bottom() - 200), c.window()->size()));
    const QRect before = c.window()->geometry();
    letPictureCome(fixture, c);
    QCOMPARE(outsideOf(c).bottom(), screen.bottom());  // it would have hung over
    QCOMPARE(c.window()->geometry().left(), before.left());
  }

  void aTiledWindowKeepsItsTileWhenItsPictureComes() {
    WindowFixture fixture;
    MainWindowController& c = shownWithoutPicture(fixture);
    const QRect screen = c.window()->screen()->availableGeometry();
    const QRect tile(screen.left(), screen.top(), std::max(screen.width() / 2, c.window()->minimumWidth()),
                     screen.height());
    c.window()->setGeometry(tile);
    QCoreApplication::processEvents();
    const QRect before = c.window()->geometry();
    QCOMPARE(before.size(), tile.size());
    letPictureCome(fixture, c);
    QCOMPARE(c.window()->geometry(), before);
    c.zoomingScrollView()->zoomTo(0.5);
    QCOMPARE(c.window()->geometry(), before);
    // What was held back is caught up with when the tile is left.
    c.zoomingScrollView()->zoomTo(1);
    c.window()->setGeometry(QRect(tile.topLeft(), QSize(640, 660)));
    QTRY_COMPARE(c.scrollArea()->contentSize(), QSizeF(kLate));
  }

  void besidePageNumbersTheWholePageIsSeen() {
    WindowFixture fixture;
    MemoryPicture picture;
    const QRectF page(QPointF(0, 0), QSizeF(kLate));
    picture.facts.pageBounds = {page, page, page};
    picture.facts.pageCount = 3;
    fixture.service.setPicture(picture);
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    QTRY_VERIFY(!c.isReading());
    c.showWindow();
    QVERIFY(QTest::qWaitForWindowExposed(c.window()));
    QTRY_COMPARE(c.scrollArea()->contentSize(), QSizeF(kLate));
    QVERIFY(c.window()->findChild<PageSwitch*>()->isVisible());
  }

  void aWindowInACornerOfTheScreenKeepsItsQuarter() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 100, 80);
    const QRect screen = c.window()->screen()->availableGeometry();
    const QSize quarter = screen.size() / 2;
    c.window()->setMinimumSize(200, 200);
    c.window()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    c.window()->setGeometry(QRect(screen.topLeft(), quarter));
    c.setWindowSize();
    QCOMPARE(c.window()->size(), quarter);
  }

  void aWindowOfHalfTheWidthIsNoQuarterOfTheScreen() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 100, 80);
    const QRect screen = c.window()->screen()->availableGeometry();
    c.window()->setMinimumSize(200, 200);
    c.window()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    c.window()->setGeometry(QRect(screen.topLeft(), QSize(screen.width() / 2, screen.height() / 2 + 60)));
    c.setWindowSize();
    QVERIFY(c.window()->width() < screen.width() / 2);
  }

  void aWindowThatIsTooLowHasRoomBesideTheScrollBarAsLongAsThereIsOne() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    QVERIFY(!c.scrollArea()->verticalBar()->isVisible());
    QCOMPARE(c.scrollArea()->contentSize(), QSizeF(600, 500));
    const int width = c.window()->width(), height = c.window()->height();
    c.window()->resize(width, height - 100);
    QTRY_COMPARE(c.window()->maximumWidth(), width + ZoomingScrollArea::barExtent());
    c.window()->resize(c.window()->maximumWidth(), height - 100);
    QVERIFY(c.scrollArea()->verticalBar()->isVisible());
    QCOMPARE(c.scrollArea()->contentSize().width(), 600.0);
    c.window()->resize(c.window()->width(), height);
    QTRY_COMPARE(c.window()->size(), QSize(width, height));
    // Pulled wider and lower at once: the room is there, too.
    c.window()->windowHandle()->resize(width + 60, height - 100);
    QTRY_COMPARE(c.window()->width(), width + ZoomingScrollArea::barExtent());
    QCOMPARE(c.window()->height(), height - 100);
    c.window()->resize(c.window()->width(), height);
    QTRY_COMPARE(c.window()->width(), width);
    QVERIFY(!c.scrollArea()->verticalBar()->isVisible());
  }

  void ofAPictureThatIsHigherThanItsWindowAllOfTheWidthIsSeen() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 3000);
    QVERIFY(c.scrollArea()->verticalBar()->isVisible());
    QCOMPARE(c.scrollArea()->contentSize().width(), 600.0);
    QCOMPARE(c.scrollArea()->horizontalBar()->maximum(), 0);
  }

  void onlyTheFirstPictureIsPlaced() {
    WindowFixture fixture;
    MainWindowController& c = shownWithoutPicture(fixture);
    letPictureCome(fixture, c);
    const QRect before = c.window()->geometry();
    setPage(fixture, {560, 420});
    fixture.revert();
    const QRect after = c.window()->geometry();
    QVERIFY(after.height() < before.height());
    QCOMPARE(after.bottomLeft(), before.bottomLeft());
  }

  void aWindowWithoutAPictureIsAsSmallWhateverItLacks_data() {
    QTest::addColumn<int>("why");
    QTest::newRow("broken") << int(ErrorKind::NotParsable);
    QTest::newRow("asks for a password") << int(ErrorKind::Encrypted);
  }
  void aWindowWithoutAPictureIsAsSmallWhateverItLacks() {
    QFETCH(int, why);
    WindowFixture fixture;
    saveWindowFrame("MainWindowController", QRect(40, 50, 640, 660));
    setPage(fixture, {1200, 1200});
    fixture.service.setPrepare([why](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind(why), "no picture"});
    });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_VERIFY(!c.isReading());
    QTRY_COMPARE(c.window()->width(), c.window()->minimumWidth());
    const QPoint corner = c.window()->geometry().topLeft();
    // Its first picture has the room that any other would have.
    fixture.service.setPrepare({});
    fixture.revert();
    QTRY_COMPARE(c.window()->size(), QSize(640, 660));
    QCOMPARE(c.window()->geometry().topLeft(), corner);
    c.window()->close();
    QCOMPARE(savedWindowFrame("MainWindowController").size(), QSize(640, 660));
  }

  void aWindowThatTheUserSizedKeepsThatForItsFirstPicture() {
    WindowFixture fixture;
    setPage(fixture, {1200, 1200});
    fixture.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "no picture"});
    });
    MainWindowController& c = fixture.open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
    c.showWindow();
    QTRY_VERIFY(!c.isReading());
    c.window()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    c.window()->resize(500, 480);
    fixture.service.setPrepare({});
    fixture.revert();
    QCOMPARE(c.window()->size(), QSize(500, 480));
  }

  void whatAFullScreenLeavesIsNoChoice() {
    WindowFixture fixture;
    saveWindowFrame("MainWindowController", QRect(40, 50, 640, 660));
    MainWindowController& c = fixture.open(epsOfSize(500, 300), "a.eps", NorvexEPSType);
    c.showWindow();
    QTRY_VERIFY(!c.isReading());
    QTRY_VERIFY(c.window()->height() < 600);  // by the rule
    c.window()->findChild<QAction*>("fitAction")->trigger();
    auto* full = c.window()->findChild<QAction*>("fullScreenAction");
    full->trigger();
    QTRY_VERIFY(c.window()->isFullScreen());
    QTest::qWait(50);
    full->trigger();
    QTRY_VERIFY(!c.window()->isFullScreen());
    // On the way back a window manager gives it a size of its own making.
    c.window()->resize(560, 520);
    c.zoomingScrollView()->zoomTo(0.9);
    c.window()->resize(500, 400);
    QTest::qWait(400);
    c.window()->close();
    QCOMPARE(savedWindowFrame("MainWindowController").size(), QSize(640, 660));
  }

  void whatTheProgramShortensStaysOnTheScreen() {
    WindowFixture fixture;
    MainWindowController& c = shown(fixture, 600, 500);
    const QRect screen = c.window()->screen()->availableGeometry();
    c.window()->setGeometry(QRect(QPoint(60, screen.bottom() - 100), c.window()->size()));
    c.zoomingScrollView()->zoomTo(0.75);
    const QRect outside = c.window()->frameGeometry();
    QVERIFY2(screen.contains(outside), qPrintable(QString::number(outside.bottom())));
    QCOMPARE(c.window()->geometry().left(), 60);
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
