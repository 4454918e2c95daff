// The menus: their letters, what the right button offers, and what a narrow toolbar has no room for.
#include <QAction>
#include <QHash>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QTranslator>

#include "kit/test_main.h"
#include "ui/picture/norvex_view_widget.h"
#include "window/window_fixture.h"

using namespace norvex;

namespace {

QChar mnemonicOf(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'&') continue;
    if (text[i + 1] != u'&') return text[i + 1].toUpper();
    ++i;
  }
  return {};
}

/// Entries of a menu, and of the bar, that share their letter with an earlier one.
QStringList clashes(const QList<QAction*>& entries, const QString& menu, int& looked) {
  QHash<QChar, QString> owners;
  QStringList found;
  for (const QAction* entry : entries) {
    const QChar letter = mnemonicOf(entry->text());
    if (letter.isNull()) continue;
    ++looked;
    if (owners.contains(letter))
      found << QStringLiteral("%1: %2, %3").arg(menu, owners.value(letter), entry->text());
    else
      owners.insert(letter, entry->text());
  }
  return found;
}

/// The menu that a right click at the picture's middle opens; null without one.
QMenu* menuOf(MainWindowController& c) {
  c.window()->show();
  NorvexViewWidget* const picture = c.viewWidget();
  emit picture->customContextMenuRequested(picture->rect().center());
  return picture->findChild<QMenu*>("pictureMenu");
}

}  // namespace

class MenusTest : public QObject {
  Q_OBJECT
 private slots:
  /// Two that share one would have the key move between them and choose neither.
  void noTwoEntriesOfAMenuShareALetter_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "de", "es", "fr", "ja", "zh_CN"}) QTest::newRow(language) << language;
  }
  void noTwoEntriesOfAMenuShareALetter() {
    QFETCH(QString, language);
    QTranslator table;
    QVERIFY(table.load(":/strings/norvex_" + language + ".qm"));
    QCoreApplication::installTranslator(&table);
    int looked = 0;
    QStringList found;
    {
      WindowFixture fixture;
      const QMenuBar& bar = *fixture.loadedEps().menuBar;
      found = clashes(bar.actions(), QStringLiteral("the bar"), looked);
      for (const QAction* menu : bar.actions())
        if (menu->menu()) found += clashes(menu->menu()->actions(), menu->text(), looked);
    }
    QCoreApplication::removeTranslator(&table);
    QVERIFY(looked > 40);
    QVERIFY2(found.isEmpty(), qPrintable('\n' + found.join('\n')));
  }

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

NORVEX_TEST(MenusTest)
#include "menus_test.moc"
