// The tables of the user's language, and what they add to the dialogues of Qt.
#include "application/string_tables.h"

#include <QCoreApplication>
#include <QKeySequence>

#include "base/localized_string.h"
#include "kit/test_main.h"

using namespace norvex;

class StringTablesTest : public QObject {
  Q_OBJECT
 private slots:
  void everythingIsSaidInTheUsersLanguage() {
    installStringTables(QLocale("fr_CA"));
    QCOMPARE(localizedString("Open…"), QStringLiteral("Ouvrir…"));
    // As Qt asks for the kind of a folder in a list of files; its own tables lack it.
    QCOMPARE(QCoreApplication::translate("QAbstractFileIconProvider", "Folder", "All other platforms"),
             QStringLiteral("Dossier"));
  }

  /// Menus name keys as the manual and other programs do: Qt would say "Control+Mayúsculas+C".
  void keysHaveTheNamesThatStandOnThem_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("keys");
    QTest::newRow("German") << "de_DE"
                            << "Strg+Umschalt+C";
    QTest::newRow("French") << "fr_FR"
                            << "Ctrl+Maj+C";
    QTest::newRow("Spanish") << "es_ES" << QStringLiteral("Ctrl+Mayús+C");
    QTest::newRow("Chinese") << "zh_CN"
                             << "Ctrl+Shift+C";
  }
  void keysHaveTheNamesThatStandOnThem() {
    QFETCH(QString, locale);
    QFETCH(QString, keys);
    installStringTables(QLocale(locale));
    QCOMPARE(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C).toString(QKeySequence::NativeText), keys);
  }
};

NORVEX_TEST(StringTablesTest)
#include "string_tables_test.moc"
