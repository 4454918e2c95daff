// The sentences that a window translates are those that the programs say, and every language has them.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <cerrno>
#include <cstring>

#include "kit/test_main.h"

namespace {

const QString kRoot = QStringLiteral(NORVEX_SOURCE_DIR "/");
const QString kLiteral = QStringLiteral("\"(?:[^\"\\\\\\n]|\\\\.)*\"");
const QStringList kTables{"src/picture/told_sentences.h", "src/ui/check/figure_sentences.h"};

QString contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What reads like a sentence, and is told to no one who looks at a window.
const QStringList kUnheard{
    // Our own programs err.
    "an element of the document has more than %1 attributes",
    "only an SVG picture can be given as SVG",
    "the bitmap would have more than %1 pixels in a row",
    "there is no such kind of picture",
    "there is no way to talk to Ghostscript",
    "Ghostscript cannot be talked to",
    "Ghostscript cannot be waited for",
    "this cannot be done here",
    "this cannot be examined in a picture of this kind",
    "this picture process was made for another kind of picture",
    "this picture was opened for its facts alone",
    "what is known of this picture has to be drawn",
    "this picture was opened to be drawn",
    "this picture was opened to be drawn or to become a PDF",
    // Said by what stands in for a picture process.
    "pages cannot be composed here",
    "the picture process is not there",
    "there is no such page",
    // Shown as details, or on the command line.
    "exit code %1",
    "it draws no page",
    "line %1: %2",
    // Programs, names, words of a library that are looked for.
    "%1 by Tembrolix.",
    "errors were encountered",
    "every format that is written has its encoder",
    "gsave mark /PageSize [ 9 9 ] /bitrgb finddevice putdeviceprops setdevice newpath fill grestore",
    "out of memory",
    "rgb grey cmyk",
};

/// The texts of a source, those that follow one another as one.
QStringList textsOf(QString source) {
  static const QRegularExpression comment("^\\s*//.*$", QRegularExpression::MultilineOption);
  static const QRegularExpression literals("(?:" + kLiteral + "\\s*)+");
  static const QRegularExpression one(kLiteral);
  QStringList texts;
  for (auto it = literals.globalMatch(source.remove(comment)); it.hasNext();) {
    QString text;
    for (auto part = one.globalMatch(it.next().captured()); part.hasNext();) {
      const QString literal = part.next().captured();
      text += literal.mid(1, literal.size() - 2);
    }
    texts << text.replace("\\\"", "\"");
  }
  return texts;
}

QStringList keysOf(const QString& table) {
  QStringList keys;
  // A key that is too long for a line is several texts in a row.
  for (const QString& text : textsOf(contentOf(kRoot + table)))
    if (!text.endsWith(".h")) keys << text;
  return keys;
}

/// Everything that the programs may say.
QString saidTexts() {
  QString said;
  QDirIterator files(kRoot + "src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString path = files.next();
    if (kTables.contains(QDir(kRoot).relativeFilePath(path))) continue;
    said += textsOf(contentOf(path)).join(u'\n') + u'\n';
  }
  return said;
}

QSet<QString> translatedKeys(const QString& language) {
  QSet<QString> keys;
  QXmlStreamReader xml(contentOf(kRoot + "src/resources/norvex_" + language + ".ts"));
  QString context;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("name")) context = xml.readElementText();
    if (xml.name() == QLatin1String("source"))
      if (const QString key = xml.readElementText(); context == QLatin1String("Sentences")) keys << key;
  }
  return xml.hasError() ? QSet<QString>() : keys;
}

}  // namespace

class ToldSentencesTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    for (const QString& table : kTables) {
      const QStringList keys = keysOf(table);
      QVERIFY2(keys.size() > 40, qPrintable(table));
      keys_ += keys;
    }
  }

  /// What a sentence is put together of stands in the sources, part by part. (Boxes are named after what is
  /// said of them.)
  void everySentenceIsSaidSomewhere() {
    static const QRegularExpression place("%[1-9]|(?=%%HiResBoundingBox)");
    QString said = saidTexts();
    for (const int code : {ENOENT, EACCES, EIO, EMFILE})
      said += QString::fromLocal8Bit(std::strerror(code)) + u'\n';
    QVERIFY(said.size() > 10000);
    QStringList unsaid;
    for (const QString& key : keys_)
      for (const QString& part : key.split(place))
        if (!said.contains(part.trimmed())) unsaid << key + ": " + part;
    QVERIFY2(unsaid.isEmpty(), qPrintable(unsaid.join('\n')));
  }

  void everyLanguageHasThem_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "de", "es", "fr", "ja", "zh_CN"}) QTest::newRow(language) << language;
  }
  void everyLanguageHasThem() {
    QFETCH(QString, language);
    QSet<QString> translated = translatedKeys(language);
    for (const QString& key : keys_) QVERIFY2(translated.contains(key), qPrintable(key));
    for (const QString& key : keys_) translated.remove(key);
    QVERIFY2(translated.isEmpty(), qPrintable("nobody says: " + translated.values().join('\n')));
  }

  /// What reads like a sentence and is said where a window hears it has its key, whoever says it: an error, a
  /// remark, a reason within another sentence.
  void everySentenceHasItsKey() {
    static const QRegularExpression sentence(
        "^(?:%1|[a-z]+|Ghostscript|PostScript)[,:]?(?: [A-Za-z0-9%!’“”\\[\\](),;:.=/-]+){2,}$");
    static const QRegularExpression ours(
        "ErrorKind::(?:Protocol|Cancelled),\\s*QStringLiteral\\((?:\\s*" + kLiteral +
        ")+|(?:traceStep|localizedString|runtime_error|Pipeline)\\(\\s*(?:" + kLiteral + "\\s*)+");
    QSet<QString> missing;
    int seen = 0;
    for (const QString& path : sourcesThatWindowsHear())
      for (const QString& text : textsOf(contentOf(path).remove(ours))) {
        if (!sentence.match(text).hasMatch()) continue;
        ++seen;
        if (!hasKey(text)) missing << text;
      }
    QVERIFY(seen > 200);
    for (const QString& text : kUnheard)
      QVERIFY2(missing.remove(text), qPrintable("has its key, or is not said any more: " + text));
    QVERIFY2(missing.isEmpty(), qPrintable(missing.values().join('\n')));
  }

  /// What a check finds is put together of texts that stand in keys.
  void everyFindingHasItsKey() {
    static const QRegularExpression place("%[1-9]"), words("[a-z]+ [a-z]+ ");
    const QString keys = keys_.join('\n');
    QStringList missing;
    int seen = 0;
    QDirIterator files(kRoot + "src/check", {"*_rules.cpp"}, QDir::Files);
    while (files.hasNext())
      for (const QString& text : textsOf(contentOf(files.next()))) {
        if (!words.match(text).hasMatch()) continue;  // a name, a comment of a file
        ++seen;
        for (const QString& part : text.split(place, Qt::SkipEmptyParts))
          if (!keys.contains(part.trimmed())) missing << text;
      }
    QVERIFY(seen > 40);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
  }

 private:
  /// A key, or what is put together of the parts of one.
  bool hasKey(const QString& text) const {
    if (keys_.contains(text)) return true;
    // A library's words in brackets or behind a colon are taken off before, and shown as details.
    static const QRegularExpression quoted(" \\((?:line %1: )?%[12]\\)$|: %1$| \\($|: ?$");
    if (text.startsWith("the picture cannot be drawn: "))
      return true;  // "… holds something that cannot be drawn"
    return keys_.contains(QString(text).remove(quoted));
  }

  /// What reads, draws, checks, writes and prints. (Windows look up what they say themselves; what rules find
  /// is looked at below.)
  static QStringList sourcesThatWindowsHear() {
    static const QRegularExpression rooms(
        "^(?:base|display|document|encoders|metadata|picture|picture_check|print|protocol|types|worker)/|"
        "^check/profile");
    QStringList paths;
    QDirIterator files(kRoot + "src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      const QString path = QDir(kRoot + "src").relativeFilePath(files.next());
      if (rooms.match(path).hasMatch() && !kTables.contains("src/" + path)) paths << kRoot + "src/" + path;
    }
    return paths;
  }

  QStringList keys_;
};

NORVEX_TEST(ToldSentencesTest)
#include "told_sentences_test.moc"
