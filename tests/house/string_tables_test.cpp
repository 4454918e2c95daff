// The string tables: every text that the sources look up stands in the English one, and the other languages
// say the same with the same placeholders.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "kit/test_main.h"

namespace {

const QString kFolder = QStringLiteral(NORVEX_SOURCE_DIR "/src/resources/");

QString textOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Context and key to translation.
QHash<std::pair<QString, QString>, QString> tableOf(const QString& language) {
  QHash<std::pair<QString, QString>, QString> table;
  QXmlStreamReader xml(textOf(kFolder + "norvex_" + language + ".ts"));
  QString context, key;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("name")) context = xml.readElementText();
    if (xml.name() == QLatin1String("source")) key = xml.readElementText();
    if (xml.name() == QLatin1String("translation")) table[{context, key}] = xml.readElementText();
  }
  return xml.hasError() ? QHash<std::pair<QString, QString>, QString>() : table;
}

QStringList otherLanguages() {
  QStringList languages;
  for (const QString& name : QDir(kFolder).entryList({"norvex_*.ts"}))
    if (name != QLatin1String("norvex_en.ts")) languages << name.mid(7).chopped(3);
  return languages;
}

QStringList placeholders(const QString& text) {
  static const QRegularExpression pattern("%[0-9]");
  QStringList found;
  for (const QRegularExpressionMatch& match : pattern.globalMatch(text)) found << match.captured();
  found.sort();
  return found;
}

/// The keys that are written out where they are looked up; neighbouring literals are one.
QStringList keysOf(const QString& source) {
  static const QRegularExpression call(R"(localizedString\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\s*\))");
  static const QRegularExpression literal(R"re("((?:[^"\\]|\\.)*)")re");
  QStringList keys;
  for (const QRegularExpressionMatch& match : call.globalMatch(source)) {
    QString key;
    for (const QRegularExpressionMatch& part : literal.globalMatch(match.captured(1)))
      key += part.captured(1);
    keys << key.replace("\\\"", "\"").replace("\\n", "\n");
  }
  return keys;
}

}  // namespace

class StringTablesTest : public QObject {
  Q_OBJECT
 private slots:
  void everyTextOfTheSourcesStandsInTheEnglishTable() {
    const auto english = tableOf("en");
    QStringList missing;
    int looked = 0;
    QDirIterator files(NORVEX_SOURCE_DIR "/src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
      for (const QString& key : keysOf(textOf(files.next()))) {
        ++looked;
        if (!english.contains({"Localizable", key})) missing << key;
      }
    QVERIFY(looked > 150);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join("\n")));
  }

  void everyTextOfTheInterfaceFileStandsInTheEnglishTable() {
    const auto english = tableOf("en");
    QXmlStreamReader xml(textOf(kFolder + "MainWindowController.ui"));
    int looked = 0;
    while (!xml.atEnd()) {
      if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("string")) continue;
      const QString key = xml.readElementText();
      if (key.isEmpty()) continue;
      ++looked;
      QVERIFY2(english.contains({"MainWindowController", key}), qPrintable(key));
    }
    QVERIFY(looked > 50);
  }

  void everyMessageIsOneTextAndItsTranslation() {
    int looked = 0;
    const QStringList languages = otherLanguages() << QStringLiteral("en");
    for (const QString& language : languages) {
      static const QRegularExpression message("<message>(.*?)</message>",
                                              QRegularExpression::DotMatchesEverythingOption);
      for (const auto& match : message.globalMatch(textOf(kFolder + "norvex_" + language + ".ts"))) {
        const QString inside = match.captured(1);
        ++looked;
        QVERIFY2(inside.count("<source>") == 1 && inside.count("<translation>") == 1,
                 qPrintable(language + inside));
      }
    }
    QVERIFY(looked > 2500);
  }

  void theOtherLanguagesAreThere() {
    for (const char* language : {"de", "es", "fr", "ja", "zh_CN"})
      QVERIFY2(otherLanguages().contains(language), language);
  }

  void aTranslationKeepsThePlaceholdersAndSaysSomething_data() {
    QTest::addColumn<QString>("language");
    for (const QString& language : otherLanguages()) QTest::newRow(qPrintable(language)) << language;
  }
  void aTranslationKeepsThePlaceholdersAndSaysSomething() {
    QFETCH(QString, language);
    const auto english = tableOf("en"), own = tableOf(language);
    for (auto entry = own.begin(); entry != own.end(); ++entry) {
      const QString key = entry.key().second;
      QVERIFY2(english.contains(entry.key()), qPrintable("nobody asks for: " + key));
      QVERIFY2(!entry->trimmed().isEmpty(), qPrintable(key));
      QVERIFY2(placeholders(*entry) == placeholders(english.value(entry.key())), qPrintable(key));
      QVERIFY2(english.value(entry.key()).count(u'&') == entry->count(u'&'), qPrintable(key));
      const bool asks = english.value(entry.key()).endsWith(u'…');
      QVERIFY2(asks == entry->endsWith(u'…'), qPrintable(key));
    }
  }

  /// What a table lacks is shown in English.
  void aTableLacksLittle_data() { aTranslationKeepsThePlaceholdersAndSaysSomething_data(); }
  void aTableLacksLittle() {
    QFETCH(QString, language);
    const auto english = tableOf("en"), own = tableOf(language);
    QStringList missing;
    for (auto entry = english.begin(); entry != english.end(); ++entry)
      if (!own.contains(entry.key())) missing << entry.key().second;
    if (!missing.isEmpty()) qInfo("%s lacks: %s", qPrintable(language), qPrintable(missing.join(" | ")));
    QVERIFY2(missing.size() * 4 < english.size(), qPrintable(QString::number(missing.size())));
  }

  /// An ordinary one lets a mark begin the next line.
  void frenchMarksStandBehindSpacesThatDoNotBreak() {
    static const QRegularExpression breaking(QStringLiteral(" [:;?!»]|« "));
    const auto french = tableOf("fr");
    QVERIFY(french.size() > 500);
    for (const QString& text : french) QVERIFY2(!text.contains(breaking), qPrintable(text));
  }

  void noTwoCommandsOfAMenuShareALetter_data() { aTranslationKeepsThePlaceholdersAndSaysSomething_data(); }
  void noTwoCommandsOfAMenuShareALetter() {
    QFETCH(QString, language);
    const auto own = tableOf(language);
    QStringList letters;
    for (const char* menu : {"&File", "&Edit", "&View", "&Help"}) {
      const QString title = own.value({"MainWindowController", menu});
      const QString letter = title.section(u'&', 1).left(1).toLower();
      QVERIFY2(!letter.isEmpty() && !letters.contains(letter), qPrintable(title));
      letters << letter;
    }
  }

  void noTwoControlsOfADialogShareALetter_data() {
    QTest::addColumn<QString>("language");
    QTest::newRow("en") << "en";
    for (const QString& language : otherLanguages()) QTest::newRow(qPrintable(language)) << language;
  }
  void noTwoControlsOfADialogShareALetter() {
    QFETCH(QString, language);
    static const QStringList page{"Pap&er:",   "Portra&it",        "&Landscape",
                                  "&Scaling:", "&Fit on one page", "Hea&der and footer"};
    static const QStringList margins{
        "T&op:", "&Bottom:", "Lef&t:", "&Right:", "&Horizontally", "&Vertically"};
    static const QStringList printing{"P&rinter:", "&Copies:", "&All", "Fro&m", "Pa&ges:", "&Print"};
    static const QStringList preferences{
        "&Window fits picture", "Chec&kerboard behind new pictures", "Di&m what is outside of the selection",
        "&Unit of lengths:",    "&Reload changed files by itself",   "R&emember files",
        "C&lear History"};
    const QStringList saving = QStringList(printing).replaceInStrings("&Print", "Sa&ve…");
    const auto own = tableOf(language);
    for (const QStringList& dialog : {page + margins, page + printing, page + saving, preferences,
                                      QStringList{"&Remove Keys", "&Default Keys", "All De&faults"}}) {
      QHash<QString, QString> texts;
      for (const QString& key : dialog) {
        const QString text = own.value({"Localizable", key});
        const QString letter = text.section(u'&', 1).left(1).toLower();
        QVERIFY2(!letter.isEmpty(), qPrintable(key));
        QVERIFY2(!texts.contains(letter), qPrintable(text + " | " + texts.value(letter)));
        texts.insert(letter, text);
      }
    }
  }
};

NORVEX_TEST(StringTablesTest)
#include "string_tables_test.moc"
