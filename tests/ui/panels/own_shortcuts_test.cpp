// Keys that the user gives to commands: changed, refused, forgotten, kept.
#include "ui/panels/own_shortcuts.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QHelpEvent>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>
#include <QTreeWidget>

#include "kit/test_main.h"
#include "ui/panels/shortcut_panel.h"
#include "ui/panels/tool_tip_keys.h"

using namespace norvex;

namespace {

const QKeySequence kCopy(Qt::CTRL | Qt::Key_C), kPaste(Qt::CTRL | Qt::Key_V),
    kOwn(Qt::CTRL | Qt::ALT | Qt::Key_K);

/// A window with the commands Copy and Paste and one without a name.
struct Window {
  Window() {
    QMenu* menu = window.menuBar()->addMenu("&Edit");
    copy = menu->addAction("&Copy");
    copy->setObjectName("copyAction");
    copy->setShortcuts({kCopy, QKeySequence(Qt::CTRL | Qt::Key_Insert)});
    paste = menu->addMenu("More")->addAction("&Paste…");
    paste->setObjectName("pasteAction");
    paste->setShortcut(kPaste);
    nameless = menu->addAction("Nameless");
    nameless->setShortcut(Qt::Key_F4);
    OwnShortcuts::shared().apply(window);
  }
  template <typename T>
  T* child(const char* name) {
    T* found = window.findChild<T*>(QLatin1String(name));
    if (!found) qFatal("no %s", name);
    return found;
  }
  /// Opens the panel with that command chosen.
  void choose(const QString& title) {
    showShortcutPanel(window, *window.menuBar());
    auto* list = child<QDialog>("shortcutPanel")->findChild<QTreeWidget*>();
    const auto found = list->findItems(title, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.size() != 1) qFatal("no command %s", qPrintable(title));
    list->setCurrentItem(found.first());
  }
  void type(const QKeySequence& keys) { child<QKeySequenceEdit>("shortcutKeys")->setKeySequence(keys); }
  QString told() { return child<QLabel>("shortcutMessage")->text(); }
  const QTreeWidgetItem* row(const QString& title) {
    const auto* list = child<QDialog>("shortcutPanel")->findChild<QTreeWidget*>();
    return list->findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
  }
  QString shownKeys(const QString& title) { return row(title)->text(1); }

  QMainWindow window;
  QAction *copy, *paste, *nameless;
};

}  // namespace

class OwnShortcutsTest : public QObject {
  Q_OBJECT

  std::unique_ptr<QTemporaryDir> settings_;

  void writeFile(const QByteArray& text) {
    QDir().mkpath(settings_->filePath("norvex"));
    QFile file(settings_->filePath("norvex/shortcuts.ini"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) qFatal("not written");
  }

 private slots:
  void init() {
    settings_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", settings_->path().toUtf8());
  }

  void keysThatAreTypedAreTheCommandsInEveryWindow() {
    Window one, other;
    one.choose("Copy");
    QCOMPARE(one.child<QKeySequenceEdit>("shortcutKeys")->keySequence(), kCopy);
    one.type(kOwn);
    QCOMPARE(one.told(), QString());
    QCOMPARE(one.copy->shortcuts(), QList<QKeySequence>{kOwn});
    QCOMPARE(other.copy->shortcuts(), QList<QKeySequence>{kOwn});
    QCOMPARE(one.shownKeys("Copy"), kOwn.toString(QKeySequence::NativeText));
    QVERIFY(one.row("Copy")->font(1).bold());  // somebody's own
    QVERIFY(!one.row("More: Paste")->font(1).bold());
    Window later;
    QCOMPARE(later.copy->shortcuts(), QList<QKeySequence>{kOwn});
    QCOMPARE(later.paste->shortcuts(), QList<QKeySequence>{kPaste});
  }

  void keysOfACommandThatBelongsToSomebodyElseAreNotTakenEither() {
    QObject owner;
    QAction find(QStringLiteral("&Find…"), &owner);
    find.setShortcut(kOwn);
    Window w;
    w.window.menuBar()->actions().constFirst()->menu()->addAction(&find);
    w.choose("Copy");
    w.type(kOwn);
    QCOMPARE(w.told(), QString("“Ctrl+Alt+K” belongs to “Find” already, and nothing was changed."));
    QCOMPARE(w.copy->shortcut(), kCopy);
  }

  void keysThatAnotherCommandHasAreToldAndNotTaken() {
    Window w;
    w.choose("Copy");
    w.type(kPaste);
    QCOMPARE(w.told(), QString("“Ctrl+V” belongs to “Paste” already, and nothing was changed."));
    QCOMPARE(w.copy->shortcut(), kCopy);
    QCOMPARE(w.paste->shortcut(), kPaste);
    QCOMPARE(w.child<QKeySequenceEdit>("shortcutKeys")->keySequence(), kCopy);
    w.type(QKeySequence(Qt::ALT | Qt::Key_E));
    QCOMPARE(w.told(), QString("“Alt+E” opens the menu “Edit”, and nothing was changed."));
    QVERIFY(!QFile::exists(settings_->filePath("norvex/shortcuts.ini")));
  }

  void keysForTypingAndMovingAreNotTaken() {
    Window w;
    w.choose("Copy");
    for (const int key :
         {int(Qt::Key_A), int(Qt::SHIFT) | int(Qt::Key_B), int(Qt::Key_Left), int(Qt::Key_Escape)}) {
      w.type(QKeySequence(key));
      QVERIFY2(w.told().contains("is for typing and for moving"), qPrintable(w.told()));
      QCOMPARE(w.copy->shortcut(), kCopy);
    }
    w.type(QKeySequence(Qt::Key_F12));
    QCOMPARE(w.copy->shortcut(), QKeySequence(Qt::Key_F12));
  }

  void theDefaultComesBackForOneAndForAll() {
    Window w;
    w.choose("Copy");
    QVERIFY(!w.child<QPushButton>("shortcutReset")->isEnabled());
    QVERIFY(!w.child<QPushButton>("shortcutResetAll")->isEnabled());
    w.type(kOwn);
    w.choose("More: Paste");
    w.type(QKeySequence(Qt::Key_F12));
    w.choose("Copy");
    w.child<QPushButton>("shortcutReset")->click();
    QCOMPARE(w.copy->shortcuts(), (QList<QKeySequence>{kCopy, QKeySequence(Qt::CTRL | Qt::Key_Insert)}));
    QCOMPARE(w.paste->shortcut(), QKeySequence(Qt::Key_F12));
    w.child<QPushButton>("shortcutResetAll")->click();
    QCOMPARE(w.paste->shortcut(), kPaste);
    QVERIFY(!OwnShortcuts::shared().hasAny());
  }

  void aCommandCanGiveItsKeysUpForAnother() {
    Window w;
    w.choose("More: Paste");
    w.child<QPushButton>("shortcutRemove")->click();
    QVERIFY(w.paste->shortcuts().isEmpty());
    w.choose("Copy");
    w.type(kPaste);
    QCOMPARE(w.told(), QString());
    QCOMPARE(w.copy->shortcut(), kPaste);
    Window later;
    QVERIFY(later.paste->shortcuts().isEmpty());
    QCOMPARE(later.copy->shortcut(), kPaste);
  }

  void aCommandWithoutANameKeepsItsKeys() {
    Window w;
    w.choose("Nameless");
    QVERIFY(!w.child<QKeySequenceEdit>("shortcutKeys")->isEnabled());
    QCOMPARE(w.shownKeys("Nameless"), QString("F4"));
  }

  void theKeyboardGoesFromTheSearchToTheListToTheKeys() {
    Window w;
    w.window.show();
    w.choose("Copy");
    auto* panel = w.child<QDialog>("shortcutPanel");
    QApplication::setActiveWindow(panel);
    QCOMPARE(panel->focusWidget()->objectName(), QString("shortcutSearch"));
    QTest::keyClick(panel->focusWidget(), Qt::Key_Tab);
    QCOMPARE(panel->focusWidget(), static_cast<QWidget*>(panel->findChild<QTreeWidget*>()));
    QTest::keyClick(panel->focusWidget(), Qt::Key_Tab);
    QVERIFY(w.child<QKeySequenceEdit>("shortcutKeys")->isAncestorOf(panel->focusWidget()) ||
            panel->focusWidget() == w.child<QKeySequenceEdit>("shortcutKeys"));
  }

  void thePanelIsAsWideAsItsLongestCommand() {
    Window w;
    const QString longName("Reload by itself every file that another program has changed in the meantime");
    w.window.menuBar()->actions().first()->menu()->addMenu("Files")->addAction(longName)->setShortcut(
        Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_F12);
    showShortcutPanel(w.window, *w.window.menuBar());
    auto* list = w.child<QDialog>("shortcutPanel")->findChild<QTreeWidget*>();
    const auto rows = list->findItems("Files: " + longName, Qt::MatchExactly | Qt::MatchRecursive);
    QCOMPARE(rows.size(), 1);
    QVERIFY(list->columnWidth(0) >= list->fontMetrics().horizontalAdvance(rows.first()->text(0)));
  }

  void titlesAreReadWithoutMnemonics() {
    QCOMPARE(plainTitle("Save &As…"), QString("Save As"));
    QCOMPARE(plainTitle("Cut && &Paste"), QString("Cut & Paste"));
    QCOMPARE(plainTitle(QStringLiteral("別名で保存(&A)…")), QStringLiteral("別名で保存"));
    QCOMPARE(plainTitle("Zoom (100 %)"), QString("Zoom (100 %)"));
  }

  void rubbishInTheFileIsPassedOver_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no keys") << QByteArray("[keys]\ncopyAction=Strange+Things\n");
    QTest::newRow("a letter") << QByteArray("[keys]\ncopyAction=A\n");
    QTest::newRow("another command's") << QByteArray("[keys]\ncopyAction=Ctrl+V\n");
    QTest::newRow("one for two") << QByteArray("[keys]\ncopyAction=F12\npasteAction=F12\n");
    QTest::newRow("two chords") << QByteArray("[keys]\ncopyAction=\"Ctrl+K, Ctrl+V\"\n");
    QTest::newRow("a menu's") << QByteArray("[keys]\ncopyAction=Alt+E\n");
    QTest::newRow("too many") << QByteArray("[keys]\ncopyAction=F1,F2,F3,F5,F6,F7,F8,F9,F10,F11\n");
    QTest::newRow("no settings") << QByteArray("\0\xff\x01[[[", 6);
  }
  void rubbishInTheFileIsPassedOver() {
    QFETCH(QByteArray, text);
    writeFile(text);
    Window w;
    QList<QKeySequence> all = w.copy->shortcuts() + w.paste->shortcuts();
    QVERIFY(w.copy->shortcut() == kCopy || w.copy->shortcut() == QKeySequence(Qt::Key_F12));
    QVERIFY(!w.paste->shortcuts().isEmpty());
    for (const QKeySequence& keys : all) QCOMPARE(all.count(keys), qsizetype(1));
  }

  void whoeverIsRefusedItsOwnKeysGetsNoKeysThatAnotherHas() {
    writeFile("[keys]\ncopyAction=Ctrl+V\npasteAction=F4\n");
    Window w;
    QCOMPARE(w.copy->shortcuts(), QList<QKeySequence>{kPaste});
    QCOMPARE(w.paste->shortcuts(), QList<QKeySequence>());
  }

  void theDefaultDoesNotComeBackWhileAnotherCommandHasIt() {
    Window w;
    QCOMPARE(OwnShortcuts::shared().set(*w.paste, {}), QString());
    QCOMPARE(OwnShortcuts::shared().set(*w.copy, {kPaste}), QString());
    w.choose("More: Paste");
    w.child<QPushButton>("shortcutReset")->click();
    QCOMPARE(w.told(), QString("“Ctrl+V” belongs to “Copy” already, and nothing was changed."));
    QVERIFY(w.paste->shortcuts().isEmpty());
    QCOMPARE(w.copy->shortcuts(), QList<QKeySequence>{kPaste});
    w.choose("Copy");
    w.child<QPushButton>("shortcutReset")->click();
    w.choose("More: Paste");
    w.child<QPushButton>("shortcutReset")->click();
    QCOMPARE(w.told(), QString());
    QCOMPARE(w.paste->shortcut(), kPaste);
  }

  void keysThatCannotBeKeptAreToldAndNotTaken() {
    QFile inTheWay(settings_->filePath("norvex"));  // of the folder
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    Window w;
    w.choose("Copy");
    w.type(kOwn);
    QVERIFY2(w.told().endsWith("shortcuts.ini” cannot be written, and nothing was changed."),
             qPrintable(w.told()));
    QCOMPARE(w.copy->shortcut(), kCopy);
    QCOMPARE(w.child<QKeySequenceEdit>("shortcutKeys")->keySequence(), kCopy);
    Window later;
    QCOMPARE(later.copy->shortcut(), kCopy);
    w.child<QPushButton>("shortcutRemove")->click();
    QVERIFY2(w.told().contains("cannot be written"), qPrintable(w.told()));
    QCOMPARE(w.copy->shortcut(), kCopy);
  }

  void toolTipsShowTheKeysOfNow() {
    Window w;
    auto* bar = w.window.addToolBar("bar");
    w.copy->setToolTip("Copy it");
    bar->addAction(w.copy);
    new ToolTipKeys(*bar);
    auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(w.copy));
    w.window.show();
    const auto shown = [&] {
      QHelpEvent event(QEvent::ToolTip, QPoint(3, 3), button->mapToGlobal(QPoint(3, 3)));
      QCoreApplication::sendEvent(button, &event);
      return QToolTip::text();
    };
    QCOMPARE(shown(), QString("Copy it (Ctrl+C)"));
    QVERIFY(OwnShortcuts::shared().set(*w.copy, {kOwn}).isEmpty());
    QCOMPARE(shown(), QString("Copy it (Ctrl+Alt+K)"));
    QVERIFY(OwnShortcuts::shared().set(*w.copy, {}).isEmpty());
    QCOMPARE(shown(), QString("Copy it"));
    QCOMPARE(w.copy->toolTip(), QString("Copy it"));
  }
};

NORVEX_TEST(OwnShortcutsTest)
#include "own_shortcuts_test.moc"
