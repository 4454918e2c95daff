// The commands under the right button, and the menu of what a narrow toolbar has no room for.
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "kit/test_main.h"
#include "ui/picture/norvex_view_widget.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// The menu that a right click at the picture's middle opens; null without one.
QMenu* menuOf(MainWindowController& c) {
  c.window()->show();
  NorvexViewWidget* const picture = c.viewWidget();
  emit picture->customContextMenuRequested(picture->rect().center());
  return picture->findChild<QMenu*>("pictureMenu");
}

}  // namespace

class PictureMenuTest : public QObject {
  Q_OBJECT
 private slots:
  void theRightButtonOffersTheCommandsForThePicture() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QMenu* menu = menuOf(c);
    QVERIFY(menu && menu->isVisible());
    QStringList commands;
    for (const QAction* action : menu->actions())
      commands << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
    QCOMPARE(commands,
             QStringList({"copyToolbarItem", "doSaveToToolbarItem", "-", "selectAllAction", "deselectAction",
                          "-", "rotateLeftAction", "rotateRightAction", "resetRotationAction"}));
    menu->close();
  }

  void withoutAPictureThereIsNoMenu() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("no picture", "a.eps", NorvexEPSType);
    QVERIFY(!menuOf(c));
  }

  void theButtonForWhatHasNoRoomHasAName() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    const auto* more = c.toolbar->findChild<QToolButton*>("qt_toolbar_ext_button");
    QVERIFY(more);
    QCOMPARE(more->accessibleName(), QStringLiteral("More"));
  }
};

NORVEX_TEST(PictureMenuTest)
#include "picture_menu_test.moc"
