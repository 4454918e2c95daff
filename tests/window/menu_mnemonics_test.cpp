// The letters that choose an entry of a menu: in no language do two entries of one menu share one, which
// would have the key move between them and choose neither.
#include <QAction>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>

#include "kit/test_main.h"
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

}  // namespace

class MenuMnemonicsTest : public QObject {
  Q_OBJECT
 private slots:
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
};

NORVEX_TEST(MenuMnemonicsTest)
#include "menu_mnemonics_test.moc"
