// Which commands can be given when, and how they are reached without a mouse.
#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QTreeWidget>

#include "kit/test_main.h"
#include "ui/panels/own_shortcuts.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

/// Commands of the menus and toolbars whose target is not the window controller: the document's, the
/// application's and those about the window itself. The commands in submenus are about the selection and
/// follow it.
const QStringList kOthers{
    "openAction", "saveAsAction", "reloadAction", "closeAction", "quitAction", "pageLayoutAction",
    "printAction", "deselectAction", "touchBarAction", "fullScreenAction", "shortcutsAction", "aboutAction",
    // what follows pages and selections, and choices for every window
    "nextPageAction", "previousPageAction", "firstPageAction", "lastPageAction", "goToPageAction",
    "pageThumbnailsAction", "undoAction", "redoAction", "reloadByItselfAction", "windowFitsPictureAction",
    "inspectorInWindowAction", "dimOutsideAction", "layersAction", "copyTextAction"};

QList<QAction*> commandsOf(const QMenu& menu) {
  QList<QAction*> all;
  for (QAction* action : menu.actions())
    if (!action->isSeparator() && !action->menu()) all << action;
  return all;
}

/// Those of its submenus too.
QList<QAction*> allCommandsOf(const QMenu& menu) {
  QList<QAction*> all = commandsOf(menu);
  for (QAction* action : menu.actions())
    if (action->menu()) all << allCommandsOf(*action->menu());
  return all;
}

QList<QAction*> menuCommands(MainWindowController& c) {
  QList<QAction*> all;
  for (QAction* action : c.window()->menuBar()->actions())
    if (action->menu()) all << commandsOf(*action->menu());
  return all;
}

/// Every command of the controller, in menus and toolbars.
QList<QAction*> controllerCommands(MainWindowController& c) {
  QList<QAction*> all = menuCommands(c);
  for (QToolBar* bar : c.window()->findChildren<QToolBar*>())
    for (QAction* action : bar->actions())
      if (!action->isSeparator() && bar->widgetForAction(action)->inherits("QToolButton") &&
          !all.contains(action))
        all << action;
  all.removeIf([](const QAction* action) { return kOthers.contains(action->objectName()); });
  return all;
}

/// Names of those that are not in the given state.
QStringList not_(bool enabled, MainWindowController& c) {
  QStringList wrong;
  for (const QAction* action : controllerCommands(c))
    if (action->isEnabled() != enabled) wrong << action->objectName() + ' ' + action->text();
  return wrong;
}

bool hasMnemonic(QString text) {
  return text.remove(QStringLiteral("&&")).contains(u'&');
}

}  // namespace

class ValidationTest : public QObject {
  Q_OBJECT
 private slots:
  void withAPictureEveryCommandOfTheControllerIsEnabled() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QVERIFY(c.validateUserInterfaceItem());
    QVERIFY(controllerCommands(c).size() >= 12);
    for (QAction* item :
         {c.inspectorToolbarItem, c.copyToolbarItem, c.doPrintingToolbarItem, c.doSaveToToolbarItem})
      QVERIFY(controllerCommands(c).contains(item));
    QCOMPARE(not_(true, c), QStringList());
  }

  void aDocumentThatCouldNotBeLoadedDisablesThemInMenusAndToolbar() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("nothing", "a.eps", NorvexEPSType);
    QVERIFY(!c.validateUserInterfaceItem());
    QCOMPARE(not_(false, c), QStringList());
  }

  void soDoesAnUntitledDocument() {
    WindowFixture fixture;
    MainWindowController& c = fixture.controller();
    c.windowDidLoad();
    QCOMPARE(not_(false, c), QStringList());
  }

  void theStateFollowsThePictureThroughReverts() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("nothing", "a.eps", NorvexEPSType);
    QCOMPARE(not_(false, c), QStringList());
    fixture.write(epsBytes(), "a.eps");
    fixture.revert();
    QCOMPARE(not_(true, c), QStringList());
    // The picture stays, and so does what can be done with it.
    fixture.write("nothing", "a.eps");
    fixture.revert();
    QCOMPARE(not_(true, c), QStringList());
  }

  void whatIsNotTheControllersStaysAvailable() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loaded("nothing", "a.eps", NorvexEPSType);
    for (const char* name : {"reloadAction", "closeAction", "quitAction", "fullScreenAction",
                             "touchBarAction", "shortcutsAction", "aboutAction"}) {
      const auto* action = c.window()->findChild<QAction*>(QString::fromLatin1(name));
      QVERIFY2(action && action->isEnabled(), name);
    }
  }

  void everyMenuAndEveryCommandIsReachedWithKeysAlone() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    QSet<QString> letters;
    QStringList unreachable;
    for (const QAction* menu : c.window()->menuBar()->actions()) {
      QVERIFY2(hasMnemonic(menu->text()), qPrintable(menu->text()));
      const QString letter = menu->text().section(u'&', 1).left(1).toLower();
      QVERIFY2(!letters.contains(letter), qPrintable(menu->text()));
      letters << letter;
      for (const QAction* action : commandsOf(*menu->menu()))
        if (!hasMnemonic(action->text()) && action->shortcuts().isEmpty()) unreachable << action->text();
    }
    QCOMPARE(unreachable, QStringList());
  }

  void theUsualKeys_data() {
    QTest::addColumn<QKeySequence>("keys");
    const auto row = [](const char* name, const QKeySequence& keys) {
      QTest::newRow(qPrintable(QString::fromLatin1(name) + ' ' + keys.toString())) << keys;
    };
    row("closeAction", Qt::CTRL | Qt::Key_W);
    row("quitAction", Qt::CTRL | Qt::Key_Q);
    row("saveAsAction", Qt::CTRL | Qt::Key_S);
    row("saveAsAction", Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    row("reloadAction", Qt::Key_F5);
    row("copyAction", Qt::CTRL | Qt::Key_C);
    row("selectAllAction", Qt::CTRL | Qt::Key_A);
    row("deselectAction", Qt::Key_Escape);
    row("findAction", Qt::CTRL | Qt::Key_F);
    row("findNextAction", Qt::Key_F3);
    row("findPreviousAction", Qt::SHIFT | Qt::Key_F3);
    row("zoomInAction", Qt::CTRL | Qt::Key_Plus);
    row("zoomOutAction", Qt::CTRL | Qt::Key_Minus);
    row("actualSizeAction", Qt::CTRL | Qt::Key_0);
    row("actualSizeAction", Qt::CTRL | Qt::Key_1);
    row("rotateRightAction", Qt::CTRL | Qt::Key_R);
    row("inspectorToolbarItem", Qt::Key_F9);
    row("inspectorToolbarItem", Qt::ALT | Qt::Key_Return);
    row("fullScreenAction", Qt::Key_F11);
    row("shortcutsAction", Qt::CTRL | Qt::Key_Question);
  }
  void theUsualKeys() {
    QFETCH(QKeySequence, keys);
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(u' ', 0, 0);
    const auto* action = c.window()->findChild<QAction*>(name);
    QVERIFY(action && menuCommands(c).contains(action));
    QVERIFY2(action->shortcuts().contains(keys), qPrintable(QKeySequence::listToString(action->shortcuts())));
  }

  void theListOfKeysNamesEveryCommandWithKeys() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.window()->findChild<QAction*>("shortcutsAction")->trigger();
    c.window()->findChild<QAction*>("shortcutsAction")->trigger();
    QCOMPARE(c.window()->findChildren<QWidget*>("shortcutPanel").size(), qsizetype(1));
    const auto* list = c.window()->findChild<QWidget*>("shortcutPanel")->findChild<QTreeWidget*>();
    for (const QAction* action : menuCommands(c)) {
      const QString keys = action->shortcut().toString(QKeySequence::NativeText);
      if (keys.isEmpty()) continue;
      bool found = false;
      for (QTreeWidgetItemIterator each(const_cast<QTreeWidget*>(list)); *each; ++each)
        found = found || (*each)->text(1).split(QStringLiteral(",  ")).contains(keys);
      QVERIFY2(found, qPrintable(action->text()));
    }
  }

  void everyCommandCanBeGivenOtherKeys() {
    WindowFixture fixture;
    qputenv("XDG_CONFIG_HOME", fixture.folder.path().toUtf8());
    MainWindowController& c = fixture.loadedEps();
    QStringList names;
    QList<QAction*> all;
    for (QAction* menu : c.window()->menuBar()->actions())
      if (menu->menu()) all << allCommandsOf(*menu->menu());
    QVERIFY(all.size() >= menuCommands(c).size() + 16);  // the steps of the selection
    for (const QAction* action : all) {
      QVERIFY2(!action->objectName().isEmpty(), qPrintable(action->text()));
      QVERIFY2(!names.contains(action->objectName()), qPrintable(action->objectName()));
      names << action->objectName();
      QCOMPARE(OwnShortcuts::shared().reset(*c.window(), *action), QString());  // nobody else has its keys
    }
  }

  void theListOfKeysIsSearchedAndKnowsTheMouse() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.window()->findChild<QAction*>("shortcutsAction")->trigger();
    auto* panel = c.window()->findChild<QWidget*>("shortcutPanel");
    auto* list = panel->findChild<QTreeWidget*>();
    const auto shown = [list] {
      QStringList rows;
      for (QTreeWidgetItemIterator each(list, QTreeWidgetItemIterator::NotHidden); *each; ++each)
        if ((*each)->parent()) rows << (*each)->text(0);
      return rows;
    };
    const qsizetype all = shown().size();
    QVERIFY(shown().contains("Zoom at the pointer"));
    auto* search = panel->findChild<QLineEdit*>("shortcutSearch");
    search->setText("wheel ZOOM");
    QCOMPARE(shown(), QStringList{"Zoom at the pointer"});
    search->setText("nothing of the kind");
    QVERIFY(shown().isEmpty());
    search->clear();
    QCOMPARE(shown().size(), all);
  }

  void findOpensTheSourceWithItsBar() {
    WindowFixture fixture;
    MainWindowController& c = fixture.loadedEps();
    c.window()->show();
    c.window()->findChild<QAction*>("findNextAction")->trigger();
    QVERIFY(c.inspectorWindow->isVisible());
    const auto* bar = c.inspectorWindow->findChild<QWidget*>("sourcePage");
    QVERIFY(bar->isVisible());
  }
};

NORVEX_TEST(ValidationTest)
#include "validation_test.moc"
