// The header dictionary of PostScript sources that are text.
#include "metadata/eps_header.h"

#include "base/metadata_log.h"
#include "kit/test_main.h"
#include "metadata/text_encoding.h"

using namespace norvex;

namespace {

const QByteArray kUtf8Mark("\xEF\xBB\xBF");
const QString kJapanese = QString::fromUtf8("日本語");

QByteArray eps(const QByteArray& lines) {
  return "%!PS-Adobe-3.0 EPSF-3.0\n" + lines + "%%EndComments\nshowpage\n";
}

QString text(const HeaderDictionary& dictionary, const QString& key) {
  return dictionary.contains(key) ? dictionary.value(key).toString() : "(absent)";
}

qint64 number(const HeaderDictionary& dictionary) {
  return dictionary.value(header::EncodingNumber, 0).toLongLong();
}

QByteArray encoded(const QString& string, qint64 encodingNumber) {
  return encodeText(string, encodingNumber).value();
}

const QStringList kTextKeys{header::Title, header::Creator,   header::CreationDate,
                            header::For,   header::Copyright, header::Description};

}  // namespace

class EpsHeaderTest : public QObject {
  Q_OBJECT
 private slots:
  void noSourceGivesTheEmptyDictionary() {
    QVERIFY(epsHeader(QByteArray()).isEmpty());
    QVERIFY(epsHeader(QByteArray("")).isEmpty());
  }

  void plainAsciiIsUtf8() {
    const HeaderDictionary dictionary = epsHeader(eps("%%Title: plain\n"));
    QCOMPARE(text(dictionary, header::Encoding), "utf-8");
    QCOMPARE(number(dictionary), 4);
    QCOMPARE(text(dictionary, header::Title), "plain");
  }

  void everyCommentLandsUnderItsKey() {
    const HeaderDictionary dictionary = epsHeader(
        eps("%%Title: (t)\n%%Creator: c d\n%%CreationDate: 1/2/2014 10:11\n%%For: f\n%%Copyright: (c) 2014\n"
            "%%Routing: route 66\n"));
    QCOMPARE(text(dictionary, header::Title), "(t)");
    QCOMPARE(text(dictionary, header::Creator), "c d");
    QCOMPARE(text(dictionary, header::CreationDate), "1/2/2014 10:11");
    QCOMPARE(text(dictionary, header::For), "f");
    QCOMPARE(text(dictionary, header::Copyright), "(c) 2014");
    QCOMPARE(text(dictionary, header::Description), "route 66");
    QCOMPARE(dictionary.size(), 8);
    QCOMPARE(dictionary.value(header::EncodingNumber).typeId(), QMetaType::LongLong);
  }

  void aMissingCommentIsTheEmptyText() {
    const HeaderDictionary dictionary = epsHeader(eps("%%Title: t\n"));
    QVERIFY(dictionary.contains(header::Copyright));
    QCOMPARE(text(dictionary, header::Copyright), "");
    for (const QString& key : kTextKeys) QVERIFY2(dictionary.contains(key), qPrintable(key));
  }

  void parenthesesAndTrailingBlanksStay() {
    const HeaderDictionary dictionary = epsHeader(eps("%%Title: (My picture)   \n"));
    QCOMPARE(text(dictionary, header::Title), "(My picture)   ");
  }

  void aPercentSignEndsTheValue() {
    QCOMPARE(text(epsHeader(eps("%%Title: 50% gray\n")), header::Title), "50");
  }

  void anEmptyTitleBeforeACommentStaysEmpty() {
    const HeaderDictionary dictionary = epsHeader(eps("%%Title:\n%%Creator: x\n"));
    QCOMPARE(text(dictionary, header::Title), "");
    QCOMPARE(text(dictionary, header::Creator), "x");
  }

  void anEmptyValueTakesTheNextLine() {
    const HeaderDictionary dictionary =
        epsHeader("%!PS-Adobe-3.0 EPSF-3.0\n%%Title: \t\n\n  next line\n%%For:\r\rme\r");
    QCOMPARE(text(dictionary, header::Title), "next line");
    QCOMPARE(text(dictionary, header::For), "me");
    QCOMPARE(text(epsHeader(eps("%%Title:\nat its very beginning\n")), header::Title),
             "at its very beginning");
  }

  void aTitleBehindEndCommentsIsFound() {
    const HeaderDictionary dictionary = epsHeader(eps("") + "(%%Title: in the body) show\n");
    QCOMPARE(text(dictionary, header::Title), "in the body) show");
  }

  void theFirstOccurrenceCounts() {
    const HeaderDictionary dictionary = epsHeader(eps("%%Title: one\n%%Title: two\n") + "%%Title: three\n");
    QCOMPARE(text(dictionary, header::Title), "one");
  }

  void aKeywordAtTheVeryEndHasNoValue() {
    QCOMPARE(text(epsHeader("%!PS\n%%Title:"), header::Title), "");
    QCOMPARE(text(epsHeader("%!PS\n%%Title"), header::Title), "");
    QCOMPARE(text(epsHeader("%!PS\n%%Title: \n\n"), header::Title), "");
  }

  void everyLineEndEndsAValue_data() {
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR") << QByteArray("\r");
    QTest::newRow("CR LF") << QByteArray("\r\n");
  }
  void everyLineEndEndsAValue() {
    QFETCH(QByteArray, lineEnd);
    QByteArray source = eps("%%Title: a b\n%%Creator:\n%%For: you\n");
    const HeaderDictionary dictionary = epsHeader(source.replace("\n", lineEnd));
    QCOMPARE(text(dictionary, header::Title), "a b");
    QCOMPARE(text(dictionary, header::Creator), "");
    QCOMPARE(text(dictionary, header::For), "you");
  }

  void blanksOfUnicodeAreSkippedBeforeAValue() {
    const QString source = "%!PS\n%%Title: " + QString(QChar(0x3000)) + QChar(0xA0) + kJapanese + "\n";
    QCOMPARE(text(epsHeader(source.toUtf8()), header::Title), kJapanese);
  }

  void utf8WithAndWithoutMark() {
    const QByteArray source = eps("%%Title: " + kJapanese.toUtf8() + "\n");
    QTest::ignoreMessage(QtInfoMsg, "complete UTF-8");
    const HeaderDictionary marked = epsHeader(kUtf8Mark + source);
    QCOMPARE(marked, epsHeader(source));
    QCOMPARE(text(marked, header::Title), kJapanese);
    QCOMPARE(text(marked, header::Encoding), "utf-8");
  }

  void utf16InBothOrders() {
    QString source = QString::fromLatin1(eps("%%For: "));
    source.insert(source.indexOf("%%End"), kJapanese + "\n");
    const QByteArray big = encoded(source, encoding::Utf16);
    QVERIFY(big.startsWith("\xFE\xFF"));
    QByteArray little = big;
    for (qsizetype i = 0; i + 1 < little.size(); i += 2) std::swap(little[i], little[i + 1]);
    for (const QByteArray& bytes : {big, little}) {
      const HeaderDictionary dictionary = epsHeader(bytes);
      QCOMPARE(text(dictionary, header::Encoding), "utf-16");
      QCOMPARE(number(dictionary), 10);
      QCOMPARE(text(dictionary, header::For), kJapanese);
    }
  }

  void eucJpIsTriedFirst() {
    const HeaderDictionary dictionary =
        epsHeader(eps("%%Title: " + encoded(kJapanese, encoding::EucJp) + "\n"));
    QCOMPARE(text(dictionary, header::Encoding), "euc-jp");
    QCOMPARE(number(dictionary), 3);
    QCOMPARE(text(dictionary, header::Title), kJapanese);
  }

  void shiftJisThatIsNoEucJp() {
    const QString title = QString::fromUtf8("テスト表");  // its bytes 83 65 … and 95 5C are no EUC-JP
    const HeaderDictionary dictionary =
        epsHeader(eps("%%Title: " + encoded(title, encoding::ShiftJis) + "\n"));
    QCOMPARE(text(dictionary, header::Encoding), "shift_jis");
    QCOMPARE(number(dictionary), 8);
    QCOMPARE(text(dictionary, header::Title), title);
  }

  void shiftJisThatIsEucJpTooIsEucJp() {
    // Half-width katakana in Shift JIS are pairs of bytes above A0, which EUC-JP reads as kanji.
    const QByteArray both = encoded(QString::fromUtf8("ｱｲｳｴ"), encoding::ShiftJis);
    QVERIFY(isDecodable(both, encoding::EucJp));
    QCOMPARE(number(epsHeader(eps("%%Title: " + both + "\n"))), 3);
  }

  void undecodableTextLeavesTheSixKeysOut() {
    QTest::ignoreMessage(QtInfoMsg, "Corvane can't get EPSHeader because string encoding is bad.");
    const HeaderDictionary dictionary = epsHeader(eps("%%Title: \xFF\xFE\xFF\x80\n"));
    QCOMPARE(text(dictionary, header::Encoding), "iso-8859-6");
    QCOMPARE(number(dictionary), 1);
    QCOMPARE(dictionary.size(), 2);
  }

  void declaredUtf8DecodesTheWholeFileAgain() {
    // Valid as EUC-JP but not as UTF-8: the second decoding fails, and its name and number stand.
    const QByteArray source =
        eps("%APL_DSC_Encoding: UTF8\n%%Title: " + encoded(kJapanese, encoding::EucJp) + "\n");
    QTest::ignoreMessage(QtInfoMsg, "Corvane can't get EPSHeader because string encoding is bad.");
    const HeaderDictionary dictionary = epsHeader(source);
    QCOMPARE(text(dictionary, header::Encoding), "utf-8");
    QCOMPARE(number(dictionary), 4);
    QCOMPARE(dictionary.size(), 2);
  }

  void aDeclaredEncodingThatAgreesChangesNothing() {
    const HeaderDictionary dictionary =
        epsHeader(eps("%APL_DSC_Encoding: UTF8\n%%Title: " + kJapanese.toUtf8() + "\n"));
    QCOMPARE(number(dictionary), 4);
    QCOMPARE(text(dictionary, header::Title), kJapanese);
  }

  void anUnknownDeclaredEncodingChangesNothing() {
    const HeaderDictionary dictionary = epsHeader(eps("%APL_DSC_Encoding: MacJapanese\n%%Title: t\n"));
    QCOMPARE(number(dictionary), 4);
    QCOMPARE(text(dictionary, header::Title), "t");
  }

  void declaredUtf16ReadsTheBytesAsUtf16() {
    QByteArray source = eps("%APL_DSC_Encoding: UTF16\n%%Title: t\n");
    if (source.size() % 2 != 0) source.append('\n');
    const HeaderDictionary dictionary = epsHeader(source);
    QCOMPARE(text(dictionary, header::Encoding), "utf-16");
    QCOMPARE(text(dictionary, header::Title), "");  // pairs of letters make no keyword
  }

  void whatIsDecodedAgainBeginsWithItsMark() {
    // With the three bytes of the mark there are pairs; without them one byte would be left over, and there
    // would be no text.
    QByteArray source = eps("%APL_DSC_Encoding: UTF16\n%%Title: t\n");
    if (source.size() % 2 == 0) source.append('\n');
    QTest::ignoreMessage(QtInfoMsg, "complete UTF-8");
    const HeaderDictionary even = epsHeader(kUtf8Mark + source);
    QCOMPARE(number(even), 10);
    QCOMPARE(text(even, header::Title), "");
    QTest::ignoreMessage(QtInfoMsg, "complete UTF-8");
    QTest::ignoreMessage(QtInfoMsg, "Corvane can't get EPSHeader because string encoding is bad.");
    const HeaderDictionary odd = epsHeader(kUtf8Mark + source + '\n');
    QCOMPARE(number(odd), 10);
    QCOMPARE(text(odd, header::Title), "(absent)");
  }

  void theFirstDecodingOfUtf16SeesTheBytesAfterTheMark() {
    // The bytes behind the mark tell their own order; with the mark they would be read in the other one.
    QByteArray big = encoded(QString::fromLatin1(eps("%%Title: t\n")), encoding::Utf16);
    const HeaderDictionary dictionary = epsHeader(big.replace(0, 2, "\xFF\xFE"));
    QCOMPARE(number(dictionary), 10);
    QCOMPARE(text(dictionary, header::Title), "t");
  }

  void aSourceReadsInAnEncodingThatIsChosen() {
    const QByteArray source = eps("%APL_DSC_Encoding: UTF8\n%%Title: R\x8Esum\x8E\n%%For: x\n");
    HeaderDictionary found = epsHeader(source);
    found.insert(header::Preview, 7);  // whatever else is known stays
    const auto read = epsHeaderReadAs("macintosh", source, found);
    QVERIFY(read);
    QCOMPARE(text(*read, header::Title), QString::fromUtf8("Résumé"));
    QCOMPARE(text(*read, header::For), "x");
    QCOMPARE(text(*read, header::Copyright), "");
    QCOMPARE(text(*read, header::Encoding), "macintosh");
    QCOMPARE(number(*read), number(found));
    QCOMPARE(read->value(header::Preview), QVariant(7));
    QVERIFY(!epsHeaderReadAs("UTF-8", source, found));
    QVERIFY(!epsHeaderReadAs("no such encoding", source, found));
  }

  void shortSourcesAreTexts() {
    for (const char* bytes : {"%", "%!", "a", "\xC5\xD0"}) {
      QVERIFY(epsHeader(QByteArray(bytes)).contains(header::EncodingNumber));
    }
    QCOMPARE(number(epsHeader("\xFE\xFF")), 10);
  }

  void epsiPreviewIsABitmap() {
    const HeaderDictionary dictionary =
        epsHeader(eps("") + "%%BeginPreview: 8 2 1 2\n%FF\n%00\n%%EndPreview\n");
    const auto preview = dictionary.value(header::Preview).value<NSBitmapImageRep>();
    QCOMPARE(preview.data, QByteArray("\x00\xFF", 2));
    QCOMPARE(preview.pixelsWide, 8);
    QCOMPARE(preview.pixelsHigh, 2);
  }

  void anEpsiPreviewInUtf16IsRead() {
    const QByteArray source = eps("") + "%%BeginPreview: 8 1 1 1\n%A5\n%%EndPreview\n";
    const HeaderDictionary dictionary = epsHeader(encoded(QString::fromLatin1(source), encoding::Utf16));
    QCOMPARE(dictionary.value(header::Preview).value<NSBitmapImageRep>().data, QByteArray("\x5A"));
  }

  void everyCutOfASourceIsReadWithoutHarm() {
    const QByteArray source = eps("%APL_DSC_Encoding: UTF8\n%%Title: (x) %\n%%BoundingBox: 0 0 1 1\n") +
                              "%%BeginPreview: 80 24 4 24\n% 0123456789ABCDEF\n%xyz\n%%EndPreview\n";
    QTest::failOnWarning(QRegularExpression("."));
    for (qsizetype length = 1; length <= source.size(); ++length) {
      const HeaderDictionary dictionary = epsHeader(source.first(length));
      QCOMPARE(number(dictionary), 4);
    }
  }
};

NORVEX_TEST(EpsHeaderTest)
#include "eps_header_test.moc"
