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

  /// A failure that a window may tell has its key; what is left out says that our own programs err, or is
  /// told on the command line alone.
  void everyFailureHasItsKey() {
    static const QRegularExpression failure("ErrorKind::(\\w+),\\s*QStringLiteral\\(\\s*((?:" + kLiteral +
                                            "\\s*)+)\\)");
    const QSet<QString> keys(keys_.begin(), keys_.end());
    QStringList missing;
    int seen = 0;
    for (const char* room : {"base", "picture", "print", "worker/pdf", "worker/postscript", "worker/svg"}) {
      QDirIterator files(kRoot + "src/" + room, {"*.cpp", "*.h"}, QDir::Files);
      while (files.hasNext())
        for (auto it = failure.globalMatch(contentOf(files.next())); it.hasNext();) {
          const QRegularExpressionMatch match = it.next();
          const QString kind = match.captured(1), key = textsOf(match.captured(2)).value(0);
          ++seen;
          const bool isTakenApart = key.contains(" (%1)") || key.endsWith(": %1") || key.contains("(line %1");
          if (kind == "Cancelled" || kind == "Protocol" || isTakenApart || keys.contains(key)) continue;
          missing << key;
        }
    }
    QVERIFY(seen > 60);
    const QSet<QString> ours{"there is no such kind of picture",
                             "the bitmap would have more than %1 pixels in a row",
                             "this picture was opened to be drawn",
                             "this picture was opened to be drawn or to become a PDF",
                             "an element of the document has more than %1 attributes",
                             "there is no way to talk to Ghostscript",
                             "Ghostscript cannot be talked to",
                             "Ghostscript cannot be waited for"};
    for (const QString& key : ours) missing.removeAll(key);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
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
  QStringList keys_;
};

NORVEX_TEST(ToldSentencesTest)
#include "told_sentences_test.moc"
