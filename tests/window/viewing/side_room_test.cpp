// Thumbnails and layers beside the picture: the window makes room for them.
#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QWindow>

#include "display/skt_zooming_scroll_view.h"
#include "kit/test_main.h"
#include "ui/picture/zooming_scroll_area.h"
#include "window/place/window_frames.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// Two pages and two layers.
class Beside : public WindowFixture {
 public:
  explicit Beside(const QSizeF& page = {430, 300}, int pages = 2) : c(made(page, pages)) {}
  MainWindowController& made(const QSizeF& page, int pages) {
    MemoryPicture picture;
    picture.facts.layers = {{"Red", true}, {"Blue", false}};
    picture.facts.pageBounds.clear();
    for (int i = 0; i < pages; ++i) picture.facts.pageBounds << QRectF(QPointF(), page);
    picture.facts.pageCount = pages;
    service.setPicture(picture);
    return open("%PDF-1.4", "a.pdf", UTTypePDF().identifier());
  }
  void show() {
    c.windowDidLoad();
    c.window()->show();
    if (!QTest::qWaitForWindowExposed(c.window())) qFatal("the window is not shown");
  }
  void press(const QString& name) { c.window()->findChild<QAction*>(name)->trigger(); }
  [[nodiscard]] int room() const { return c.scrollArea()->width(); }
  [[nodiscard]] int width() const { return c.window()->width(); }
  [[nodiscard]] bool isShown(const QString& dock) const {
    const auto* found = c.window()->findChild<QDockWidget*>(dock);
    return found && found->isVisible();
  }

  MainWindowController& c;
};

}  // namespace

class SideRoomTest : public QObject {
  Q_OBJECT

  static void everyPanel() {
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("dock");
    QTest::newRow("pages") << "pageThumbnailsAction"
                           << "pagesDock";
    QTest::newRow("layers") << "layersAction"
                            << "layersDock";
  }

 private slots:
  void theWindowGrowsByItAndThePictureKeepsItsRoom_data() { everyPanel(); }
  void theWindowGrowsByItAndThePictureKeepsItsRoom() {
    QFETCH(QString, action);
    QFETCH(QString, dock);
    Beside f;
    f.show();
    const int room = f.room(), width = f.width();
    f.press(action);
    QVERIFY(f.isShown(dock));
    QTRY_COMPARE(f.room(), room);
    QVERIFY2(f.width() > width + 100, qPrintable(QString::number(f.width())));
    QVERIFY(f.width() <= f.c.window()->maximumWidth());
    f.press(action);
    QVERIFY(!f.isShown(dock));
    QTRY_COMPARE(f.width(), width);
    QCOMPARE(f.room(), room);
  }

  void whatTheScreenHasNotComesBack_data() { everyPanel(); }
  void whatTheScreenHasNotComesBack() {
    QFETCH(QString, action);
    Beside f({2000, 1000});
    f.show();
    const QRect screen = f.c.window()->screen()->availableGeometry();
    f.c.window()->resize(screen.width() - 60, 400);
    const int room = f.room(), width = f.width();
    f.press(action);
    QVERIFY(f.c.window()->frameGeometry().right() <= screen.right());
    QVERIFY(f.room() < room);
    f.press(action);
    QTRY_COMPARE(f.width(), width);
    QCOMPARE(f.room(), room);
  }

  void aWindowThatHadToGiveWayComesBackToItsPlace_data() { everyPanel(); }
  void aWindowThatHadToGiveWayComesBackToItsPlace() {
    QFETCH(QString, action);
    Beside f;
    f.show();
    QTest::qWait(300);  // where it stands by then is the user's wish
    const QRect screen = f.c.window()->screen()->availableGeometry();
    f.c.window()->move(screen.right() - f.c.window()->frameGeometry().width() - 10, 40);
    QCoreApplication::processEvents();
    const QRect before = f.c.window()->geometry();
    f.press(action);
    QVERIFY(f.c.window()->geometry().left() < before.left());
    f.press(action);
    QTRY_COMPARE(f.c.window()->geometry(), before);
  }

  void itIsNoPartOfASizeThatIsPulled_data() { everyPanel(); }
  void itIsNoPartOfASizeThatIsPulled() {
    QFETCH(QString, action);
    QFETCH(QString, dock);
    Beside f;
    f.show();
    f.press(action);
    const auto* panel = f.c.window()->findChild<QDockWidget*>(dock);
    const QSize most = f.c.window()->maximumSize();
    f.c.window()->windowHandle()->resize(most + QSize(60, 40));  // as a window manager would
    QTRY_COMPARE(f.c.window()->size(), most + QSize(60, 40));
    QTRY_COMPARE(f.c.window()->size(), most);
    const int beside = f.c.window()->centralWidget()->x();
    QVERIFY(beside >= panel->width());
    f.c.window()->close();
    QCOMPARE(savedWindowFrame("MainWindowController").size(), most + QSize(60 - beside, 40));
  }

  void itIsNoPartOfASizeThatIsKept_data() { everyPanel(); }
  void itIsNoPartOfASizeThatIsKept() {
    QFETCH(QString, action);
    Beside f({2000, 1000});
    f.show();
    f.c.window()->resize(500, 400);
    f.press(action);
    QVERIFY(f.width() > 600);
    f.c.window()->close();
    QCOMPARE(savedWindowFrame("MainWindowController").size(), QSize(500, 400));
  }

  void aSizeThatOnlyTheRuleGaveIsNotKeptForIt_data() { everyPanel(); }
  void aSizeThatOnlyTheRuleGaveIsNotKeptForIt() {
    QFETCH(QString, action);
    Beside f;
    f.c.window()->resize(700, 600);
    saveWindowFrame("MainWindowController", QRect(0, 0, 700, 600));
    Beside next;
    qputenv("XDG_STATE_HOME", f.folder.path().toUtf8());
    next.show();
    QVERIFY(next.width() < 700);  // by the rule
    next.press(action);
    next.c.window()->close();
    QCOMPARE(savedWindowFrame("MainWindowController").size(), QSize(700, 600));
  }

  void aWindowThatBeginsWithItHasRoomForBoth_data() { everyPanel(); }
  void aWindowThatBeginsWithItHasRoomForBoth() {
    QFETCH(QString, action);
    QFETCH(QString, dock);
    Beside f;
    f.show();
    const int room = f.room();
    f.press(action);
    f.c.window()->close();
    Beside next;
    qputenv("XDG_STATE_HOME", f.folder.path().toUtf8());
    next.show();
    QVERIFY(next.isShown(dock));
    QCOMPARE(next.room(), room);
  }

  void aFullScreenHasNoneAndGivesNoRoom_data() { everyPanel(); }
  void aFullScreenHasNoneAndGivesNoRoom() {
    QFETCH(QString, action);
    QFETCH(QString, dock);
    Beside f;
    f.show();
    f.press(action);
    const int width = f.width();
    f.press("fullScreenAction");
    QTRY_VERIFY(!f.isShown(dock));
    f.press("fullScreenAction");
    QTRY_VERIFY(f.isShown(dock));
    QTRY_COMPARE(f.width(), width);
  }
};

NORVEX_TEST(SideRoomTest)
#include "side_room_test.moc"
