// Sentences that come in English with something at their places, and the same in another language.
#include "base/sentence.h"

#include <QTranslator>

#include <array>

#include "kit/test_main.h"

using namespace norvex;

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
    class German final : public QTranslator {
     public:
      QString translate(const char* context, const char* key, const char*, int) const override {
        if (QByteArray(context) != sentenceTable) return {};
        const QByteArray words(key);
        if (words == "%1 bytes of %2 are missing") return QStringLiteral("%2 fehlen %1 Byte.");
        return words == "its preview" ? QStringLiteral("der Vorschau") : QString();
      }
      bool isEmpty() const override { return false; }
    } german;
    const std::array keys{"%1 bytes of %2 are missing", "its preview", "it is %1"};
    QCoreApplication::installTranslator(&german);
    QCOMPARE(translatedSentence(QStringLiteral("3 bytes of its preview are missing"), keys),
             QStringLiteral("der Vorschau fehlen 3 Byte."));
    QCOMPARE(translatedSentence(QStringLiteral("3 bytes of a%1b are missing"), keys),
             QStringLiteral("a%1b fehlen 3 Byte."));
    QCOMPARE(translatedSentence(QStringLiteral("it is old"), keys), QStringLiteral("it is old"));
    QCOMPARE(translatedSentence(QStringLiteral("no key of ours"), keys), QStringLiteral("no key of ours"));
    QCoreApplication::removeTranslator(&german);
  }
};

NORVEX_TEST(SentenceTest)
#include "sentence_test.moc"
