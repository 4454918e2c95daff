// The manual in its languages: it calls things what the windows call them, and names the same keys
// everywhere.
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include "kit/test_main.h"

namespace {

const QString kFolder = QStringLiteral(NORVEX_SOURCE_DIR "/src/resources/");

QString textOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What the windows say in a language, without the letters of the keyboard.
QSet<QString> shownTexts(const QString& language) {
  static const QRegularExpression letter("\\(&.\\)");
  QSet<QString> texts;
  QXmlStreamReader xml(textOf(kFolder + "norvex_" + language + ".ts"));
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("translation"))
      texts << xml.readElementText().remove(letter).remove('&').simplified();
  return texts;
}

/// What stands between the marks of `pattern` in a page, as plain text.
QStringList partsOf(const QString& html, const QRegularExpression& pattern) {
  QStringList parts;
  for (const QRegularExpressionMatch& match : pattern.globalMatch(html))
    parts << match.captured(1).replace("&gt;", ">").simplified();
  return parts;
}

/// The keys that a page names, called what an English keyboard calls them.
QStringList keysOf(QString html) {
  static const QRegularExpression key("((?:(?:Ctrl|Shift|Alt)\\+)+(?:\\w+|[+−])|\\bF[0-9]+\\b|Escape)");
  static const std::pair<const char*, const char*> names[]{
      {"Strg", "Ctrl"},    {"Umschalt", "Shift"}, {"Maj", "Shift"},
      {"Mayús", "Shift"},  {"Eingabe", "Return"}, {"Entrée", "Return"},
      {"Intro", "Return"}, {"回车键", "Return"},  {"Échap", "Escape"}};
  for (const auto& [own, english] : names) html.replace(own, english);
  static const QRegularExpression shortEscape("\\bEsc\\b");
  html.replace(shortEscape, "Escape");
  QStringList keys = partsOf(html, key);
  keys.sort();
  return keys;
}

}  // namespace

class ManualTest : public QObject {
  Q_OBJECT
 private slots:
  void everyLanguageOfTheWindowsHasAManual() {
    const QStringList tables = QDir(kFolder).entryList({"norvex_*.ts"});
    QVERIFY(tables.size() > 1);
    for (const QString& table : tables) {
      const QString language = table.mid(7).chopped(3);
      QVERIFY2(QDir(kFolder + "manual/" + language).exists(), qPrintable(language));
    }
  }

  void whatItNamesIsCalledSoInTheWindows_data() { languages(); }
  void whatItNamesIsCalledSoInTheWindows() {
    QFETCH(QString, language);
    static const QRegularExpression name("<i>(.*?)</i>", QRegularExpression::DotMatchesEverythingOption);
    const QSet<QString> shown = shownTexts(language);
    const QDir folder(kFolder + "manual/" + language);
    QStringList unknown;
    int looked = 0;
    for (const QString& page : folder.entryList({"*.html"})) {
      const QStringList names = partsOf(textOf(folder.filePath(page)), name);
      const QStringList english = partsOf(textOf(kFolder + "manual/en/" + page), name);
      QVERIFY2(names.size() == english.size(), qPrintable(page + ": " + names.join(" | ")));
      for (const QString& path : names)
        for (const QString& step : path.split(" > ")) {
          ++looked;
          if (!shown.contains(step)) unknown << page + ": " + step;
        }
    }
    QVERIFY(looked > 20);
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join('\n')));
  }

  void everyLanguageNamesTheSameKeys_data() { languages(); }
  void everyLanguageNamesTheSameKeys() {
    QFETCH(QString, language);
    int looked = 0;
    for (const QString& page : QDir(kFolder + "manual/en").entryList({"*.html"})) {
      const QStringList english = keysOf(textOf(kFolder + "manual/en/" + page));
      looked += int(english.size());
      QCOMPARE(keysOf(textOf(kFolder + "manual/" + language + '/' + page)).join(' '), english.join(' '));
    }
    QVERIFY(looked > 20);
  }

 private:
  static void languages() {
    QTest::addColumn<QString>("language");
    for (const QString& language : QDir(kFolder + "manual").entryList(QDir::Dirs | QDir::NoDotAndDotDot))
      QTest::newRow(qPrintable(language)) << language;
  }
};

NORVEX_TEST(ManualTest)
#include "manual_test.moc"
