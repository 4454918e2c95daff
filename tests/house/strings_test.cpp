// Every text that the window shows has its entry in the string table.
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include "kit/test_main.h"
#include "types/picture_format.h"

namespace {

const QString kRoot = QStringLiteral(NORVEX_SOURCE_DIR "/");
const QString kLiteral = QStringLiteral(R"re("(?:[^"\\\n]|\\.)*")re");

QString contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Context to keys.
QHash<QString, QSet<QString>> entries() {
  QHash<QString, QSet<QString>> all;
  const QString table = contentOf(kRoot + "src/resources/norvex_en.ts");
  QXmlStreamReader xml(table);
  QString context;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QLatin1String("name")) context = xml.readElementText();
    if (xml.name() == QLatin1String("source")) all[context].insert(xml.readElementText());
  }
  return xml.hasError() ? QHash<QString, QSet<QString>>() : all;
}

/// One or several literals in a row as the text that the compiler makes of them.
QString valueOf(const QString& literals) {
  static const QRegularExpression each(kLiteral);
  QString value;
  for (auto it = each.globalMatch(literals); it.hasNext();) {
    const QString literal = it.next().captured();
    value += literal.mid(1, literal.size() - 2);
  }
  return value.replace("\\\"", "\"").replace("\\n", "\n").replace("\\\\", "\\");
}

struct Source {
  QString path;  ///< from the root of the repository
  QString text;
};

QList<Source> sources() {
  QList<Source> all;
  QDirIterator it(kRoot + "src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
  while (it.hasNext()) {
    const QString path = it.next();
    static const QRegularExpression comment("^\\s*//.*$", QRegularExpression::MultilineOption);
    all << Source{QDir(kRoot).relativeFilePath(path), contentOf(path).remove(comment)};
  }
  return all;
}

/// Shown as they stand: names of files' own fields and of the program, which no language changes.
const QSet<QString> kAsTheyStand{"EPS",   "Bounds",    "ViewBox", "Include Preview",
                                 "Image", "Inspector", "Norvex",  "Norvex %1"};

}  // namespace

class StringsTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    entries_ = entries();
    sources_ = sources();
    QVERIFY(entries_.value("Localizable").size() > 150 && sources_.size() > 400);
  }

  void everyKeyThatIsLookedUpHasAnEntry() {
    static const QRegularExpression call("localizedString\\(\\s*((?:" + kLiteral + "\\s*)+)(?:,\\s*(\\w+))?");
    QStringList missing;
    int seen = 0;
    for (const Source& source : sources_)
      for (auto it = call.globalMatch(source.text); it.hasNext(); ++seen) {
        const QRegularExpressionMatch match = it.next();
        if (!match.captured(2).isEmpty()) continue;  // another table
        if (const QString key = valueOf(match.captured(1)); !entries_["Localizable"].contains(key))
          missing << source.path + ": " + key;
      }
    QVERIFY(seen > 150);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
  }

  /// Keys that stand in a table of their file: there every phrase is one.
  void everyPhraseOfAFileThatLooksUpWhatItListsHasAnEntry() {
    static const QRegularExpression call("localizedString\\(\\s*(?!const char)[^\"\\s]");
    static const QRegularExpression phrase("(\\w*)(\\(?)(" + kLiteral + ")");
    QStringList missing;
    int files = 0;
    for (const Source& source : sources_) {
      if (!source.path.endsWith(".cpp") || !call.match(source.text).hasMatch()) continue;
      ++files;
      for (auto it = phrase.globalMatch(source.text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const QString key = valueOf(match.captured(3));
        if (!match.captured(1).isEmpty() && !match.captured(2).isEmpty())
          continue;  // an argument: other tests
        if (key.isEmpty() || !key.at(0).isUpper()) continue;
        if (!entries_["Localizable"].contains(key) && !kAsTheyStand.contains(key))
          missing << source.path + ": " + key;
      }
    }
    QVERIFY(files > 5);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
  }

  void everyTitleOfAFormatHasAnEntry() {
    for (const norvex::FormatRow& row : norvex::formatTable)
      QVERIFY2(!*row.title || entries_["Localizable"].contains(QString::fromUtf8(row.title)), row.title);
  }

  void everyTextOfTheInterfaceFileHasAnEntry() {
    QXmlStreamReader xml(contentOf(kRoot + "src/resources/MainWindowController.ui"));
    QStringList missing;
    int seen = 0;
    while (!xml.atEnd()) {
      xml.readNext();
      if (!xml.isStartElement() || xml.name() != QLatin1String("string")) continue;
      const QString key = xml.readElementText();
      ++seen;
      if (!key.isEmpty() && !entries_["MainWindowController"].contains(key)) missing << key;
    }
    QVERIFY(!xml.hasError() && seen > 50);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
  }

  /// A phrase that is put into a control or a dialogue without being looked up is shown in English to all.
  void noPhraseIsShownWithoutBeingLookedUp() {
    static const QRegularExpression shown(
        "(?:set(?:Text|WindowTitle|ToolTip|PlaceholderText|AccessibleName|AccessibleDescription|LabelText|"
        "InformativeText|Title|StatusTip|Whats?This)|showMessage|add(?:Button|Item|Action|Menu|Tab|Row)|"
        "new Q(?:Label|Action|Menu|PushButton|CheckBox|RadioButton|GroupBox))"
        "\\(\\s*(?:\\w+, )?(?:QStringLiteral\\(|QLatin1String\\(|QString::fromLatin1\\(|tr\\()?((?:" +
        kLiteral + "\\s*)+)");
    QStringList wrong;
    int seen = 0;
    for (const Source& source : sources_) {
      if (source.path.startsWith("src/cli/") || source.path.startsWith("src/worker/")) continue;
      for (auto it = shown.globalMatch(source.text); it.hasNext(); ++seen) {
        const QString text = valueOf(it.next().captured(1));
        static const QRegularExpression word("[A-Za-z]{2}");
        if (word.match(text).hasMatch() && !kAsTheyStand.contains(text)) wrong << source.path + ": " + text;
      }
    }
    QVERIFY(seen > 5);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
  }

 private:
  QHash<QString, QSet<QString>> entries_;
  QList<Source> sources_;
};

NORVEX_TEST(StringsTest)
#include "strings_test.moc"
