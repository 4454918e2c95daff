// Sentences that come in English with something at their places, and the same in another language.
#include "base/sentence.h"

#include <QHash>
#include <QTranslator>

#include <array>

#include "kit/test_main.h"

using namespace norvex;

namespace {

/// Another language, as long as it lives.
class Words final : public QTranslator {
 public:
  explicit Words(const QHash<QByteArray, QString>& words) : words_(words) {
    QCoreApplication::installTranslator(this);
  }
  ~Words() override { QCoreApplication::removeTranslator(this); }
  [[nodiscard]] QString translate(const char* context, const char* key, const char*, int) const override {
    return QByteArray(context) == sentenceTable ? words_.value(key) : QString();
  }
  [[nodiscard]] bool isEmpty() const override { return false; }

 private:
  const QHash<QByteArray, QString> words_;
};

}  // namespace

class SentenceTest : public QObject {
  Q_OBJECT
 private slots:
  void wordsBecomeASentence() {
    QCOMPARE(asSentence(" the file is empty "), QString("The file is empty."));
    QCOMPARE(asSentence("The file is empty."), QString("The file is empty."));
    QCOMPARE(asSentence(QStringLiteral("ファイルは空です。")), QStringLiteral("ファイルは空です。"));
    QCOMPARE(asSentence("  "), QString());
  }

  void whatStandsAtThePlacesIsFound_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("no place") << "the file is empty"
                              << "the file is empty" << QStringList();
    QTest::newRow("at the end") << "bytes behind %%EOF: 12"
                                << "bytes behind %%EOF: %1" << QStringList{"12"};
    QTest::newRow("at the beginning") << "quit has no place here"
                                      << "%1 has no place here" << QStringList{"quit"};
    QTest::newRow("in the middle, in another order")
        << "page 7 of the book \"A %1 B\""
        << "page %2 of the book \"%1\"" << QStringList{"A %1 B", "7"};
    QTest::newRow("the words of the place inside it")
        << "it is cut off: 3 bytes of a: b: c are missing"
        << "it is cut off: %1 bytes of %2 are missing" << QStringList{"3", "a: b: c"};
    QTest::newRow("beside one another") << "ab"
                                        << "%1%2" << QStringList{"a", "b"};
  }
  void whatStandsAtThePlacesIsFound() {
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    QFETCH(QStringList, found);
    const auto arguments = argumentsIn(text, pattern);
    QVERIFY(arguments.has_value());
    QCOMPARE(*arguments, found);
    QCOMPARE(filledIn(pattern, *arguments), text);
  }

  void anotherSentenceIsNone_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("pattern");
    QTest::newRow("another") << "the file is full"
                             << "the file is empty";
    QTest::newRow("shorter") << "the file"
                             << "the file is empty";
    QTest::newRow("longer") << "the file is empty today"
                            << "the file is empty";
    QTest::newRow("nothing at the place") << "page  of 2"
                                          << "page %1 of 2";
    QTest::newRow("nothing at the end") << "page "
                                        << "page %1";
    QTest::newRow("nothing at two places") << "a"
                                           << "%1%2";
    QTest::newRow("behind the last place") << "page 1 of 2 or so"
                                           << "page %1 of 2";
    QTest::newRow("nothing") << ""
                             << "page %1";
  }
  void anotherSentenceIsNone() {
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    QVERIFY(!argumentsIn(text, pattern));
  }

  void aSentenceAndANameAtItsPlaceAreTranslated() {
    const Words german(
        {{"%1 bytes of %2 are missing", "%2 fehlen %1 Byte."}, {"its preview", "der Vorschau"}});
    const std::array keys{"%1 bytes of %2 are missing", "its preview", "it is %1"};
    QCOMPARE(translatedSentence(QStringLiteral("3 bytes of its preview are missing"), keys),
             QStringLiteral("der Vorschau fehlen 3 Byte."));
    QCOMPARE(translatedSentence(QStringLiteral("3 bytes of a%1b are missing"), keys),
             QStringLiteral("a%1b fehlen 3 Byte."));
    QCOMPARE(translatedSentence(QStringLiteral("it is old"), keys), QStringLiteral("it is old"));
    QCOMPARE(translatedSentence(QStringLiteral("no key of ours"), keys), QStringLiteral("no key of ours"));
  }

  void ofTwoSentencesThatFitTheOneThatSaysMoreIsMeant() {
    const Words german({{"it claims to keep %1", "Es will %1 einhalten."},
                        {"it claims to keep %1 and has no intent", "Es will %1 einhalten, ohne Absicht."}});
    const std::array keys{"it claims to keep %1", "it claims to keep %1 and has no intent"};
    QCOMPARE(translatedSentence("it claims to keep X-1a and has no intent", keys),
             QString("Es will X-1a einhalten, ohne Absicht."));
    QCOMPARE(translatedSentence("it claims to keep X-1a", keys), QString("Es will X-1a einhalten."));
  }

  void aNameThatADocumentGivesIsNoWordOfOurs() {
    const Words german({{"the %1 image", "das Bild (%1)"}, {"the ink %1", "die Farbe %1"}, {"grey", "grau"}});
    const std::array keys{"the %1 image", "the ink %1", "grey"};
    const std::array naming{"the ink %1"};
    QCOMPARE(translatedSentence("the ink grey", keys, naming), QString("die Farbe grey"));
    QCOMPARE(translatedSentence("the grey image", keys, naming), QString("das Bild (grau)"));
  }

  void aSentenceWithinAnotherHasNoFullStop() {
    const Words other({{"it failed (%1)", "Es ging nicht (%1)."},
                       {"it failed: %1", QStringLiteral("失敗：%1。")},
                       {"No space", "Kein Platz."},
                       {"no reason", QStringLiteral("理由なし。")}});
    const std::array keys{"it failed (%1)", "it failed: %1", "No space", "no reason"};
    QCOMPARE(translatedSentence("it failed (No space)", keys), QString("Es ging nicht (Kein Platz)."));
    QCOMPARE(translatedSentence("it failed: no reason", keys), QStringLiteral("失敗：理由なし。"));
    QCOMPARE(translatedSentence("No space", keys), QString("Kein Platz."));
  }

  void aReasonBehindAColonIsASentenceOfItsOwn() {
    const Words german({{"it failed: %1", "Es ging nicht: %1."},
                        {"it failed (%1)", "Es ging nicht (%1)."},
                        {"line %1: %2", "Zeile %1: %2."},
                        {"the box %1 is empty", "Der Rahmen %1 ist leer."}});
    const std::array keys{"it failed: %1", "it failed (%1)", "line %1: %2", "the box %1 is empty"};
    const std::array naming{"it failed: %1"};
    QCOMPARE(translatedSentence("it failed: the box A is empty", keys),
             QString("Es ging nicht: Der Rahmen A ist leer."));
    QCOMPARE(translatedSentence("line 3: it failed: the box A is empty", keys),
             QString("Zeile 3: Es ging nicht: Der Rahmen A ist leer."));
    QCOMPARE(translatedSentence("it failed (the box A is empty)", keys),
             QString("Es ging nicht (the box A is empty)."));
    QCOMPARE(translatedSentence("it failed: the box A is empty", keys, naming),
             QString("Es ging nicht: the box A is empty."));
    QCOMPARE(translatedSentence("it failed: nobody knows", keys), QString("Es ging nicht: nobody knows."));
  }

  void wordsOfOursWithCommasAreTranslatedOneByOne() {
    const Words german(
        {{"it forbids %1", "Es verbietet: %1."}, {"printing", "Drucken"}, {"copying", "Kopieren"}});
    const std::array keys{"it forbids %1", "printing", "copying"};
    QCOMPARE(translatedSentence("it forbids copying", keys), QString("Es verbietet: Kopieren."));
    const QString both = QLocale().createSeparatedList({"Drucken", "Kopieren"});
    QCOMPARE(translatedSentence("it forbids printing, copying", keys), "Es verbietet: " + both + '.');
    QCOMPARE(translatedSentence("it forbids printing, joking", keys),
             QString("Es verbietet: printing, joking."));
  }
};

NORVEX_TEST(SentenceTest)
#include "sentence_test.moc"
