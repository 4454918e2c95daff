// The decoders and encoders behind the encoding numbers.
#include "metadata/text_encoding.h"

#include <QSet>

#include "base/non_lossy_ascii.h"
#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

QByteArray bytes(std::initializer_list<int> values) {
  QByteArray all;
  for (const int value : values) all.append(char(value));
  return all;
}

const QString kJapanese = QString::fromUtf8("日本語テスト");

}  // namespace

class TextEncodingTest : public QObject {
  Q_OBJECT
 private slots:
  void namesAndNumbersArePaired_data() {
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QString>("name");
    QTest::newRow("ascii") << qint64(1) << "iso-8859-6";
    QTest::newRow("euc") << qint64(3) << "euc-jp";
    QTest::newRow("utf8") << qint64(4) << "utf-8";
    QTest::newRow("non-lossy") << qint64(7) << "us-ascii";
    QTest::newRow("sjis") << qint64(8) << "shift_jis";
    QTest::newRow("utf16") << qint64(10) << "utf-16";
  }
  void namesAndNumbersArePaired() {
    QFETCH(qint64, number);
    QFETCH(QString, name);
    QCOMPARE(encodingName(number), name);
    QCOMPARE(encodingNumberOf(name).value_or(0), number);
    QCOMPARE(encodingNumberOf(name.toUpper()).value_or(0), number);
  }

  void aNumberWithoutADecoderDecodesNothing() {
    for (const qint64 number : {qint64(0), qint64(2), qint64(5), encoding::None}) {
      QVERIFY(!decodeText("abc", number));
      QVERIFY(!isDecodable("abc", number));
      QVERIFY(!encodeText(u"abc", number));
      QVERIFY(encodingName(number).isEmpty());
    }
    QVERIFY(!encodingNumberOf(u"latin1"));
  }

  /// What the converter cannot count is not given to it. Nobody has written to the room that this takes.
  void aTextBeyondWhatCanBeCountedIsNotDecoded() {
    const QByteArray bytes(limits::maximumConvertedLength + 1, Qt::Uninitialized);
    QVERIFY(!decodeNamedText(bytes, "Shift_JIS"));
  }

  void everyEncodingOfTheListDecodesAndIsThereOnce() {
    const QStringList& names = encodingNames();
    for (const char* known : {"UTF-8", "ISO-8859-1", "windows-1252", "macintosh", "Shift_JIS", "EUC-JP"})
      QVERIFY2(names.contains(QLatin1String(known)), known);
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
    for (const QString& name : names)
      QVERIFY2(decodeNamedText("", name.toLatin1()) && !name.contains(' '), qPrintable(name));
  }
  void aNameThatNobodyKnowsDecodesNothing() { QVERIFY(!decodeNamedText("abc", "no such encoding")); }
  void aTextMayBeLongerThanItsBytes() {
    // A window of SCSU beyond the first plane: each byte is a character of two units.
    const auto text = decodeNamedText(bytes({0x0B, 0x01, 0xEC}) + QByteArray(40, char(0x80)), "SCSU");
    QCOMPARE(text.value_or(QString()), QString::fromUcs4(U"\U0001F600", 1).repeated(40));
  }

  void emptyBytesAreTheEmptyTextInEveryEncoding() {
    for (const qint64 number : {1, 3, 4, 7, 8, 10}) {
      const auto text = decodeText(QByteArrayView(), number);
      QVERIFY2(text && text->isEmpty(), qPrintable(QString::number(number)));
    }
  }

  void textsSurviveTheRoundTrip_data() {
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("ascii") << qint64(1) << "%!PS (a\\b)~\r\n\t";
    QTest::newRow("euc") << qint64(3) << kJapanese + " (a) ｱｲｳ";
    QTest::newRow("utf8") << qint64(4) << QString::fromUtf8("é€😀 日本");
    QTest::newRow("non-lossy") << qint64(7) << QString::fromUtf8("a\\b é 日本 😀 \\u0041 \\101");
    QTest::newRow("sjis") << qint64(8) << kJapanese + " (a) ｱｲｳ 表ソ能";
    QTest::newRow("utf16") << qint64(10) << QString::fromUtf8("é€😀 日本");
  }
  void textsSurviveTheRoundTrip() {
    QFETCH(qint64, number);
    QFETCH(QString, text);
    const auto encoded = encodeText(text, number);
    QVERIFY(encoded);
    QCOMPARE(decodeText(*encoded, number).value_or("nothing"), text);
    QVERIFY(isDecodable(*encoded, number));
  }

  void theFirstAndTheLastOfARangeAreOfIt() {
    QCOMPARE(decodeText(bytes({0xA1, 0xA1, 0x8E, 0xA1, 0x8E, 0xDF}), encoding::EucJp).value_or("none"),
             QString::fromUtf16(u"\u3000\uFF61\uFF9F"));
    for (const int beyond : {0xA0, 0xE0}) QVERIFY(!decodeText(bytes({0x8E, beyond}), encoding::EucJp));
    QCOMPARE(decodeText(bytes({0x8F, 0xB0, 0xA1, 0xB0, 0xA1}), encoding::EucJp).value_or("none"),
             QString::fromUtf16(u"\u4E02\u4E9C"));  // three bytes, and two
    QCOMPARE(
        decodeText(bytes({0x81, 0x40, 0x81, 0xFC, 0xA1, 0xDF, 0x9F, 0xFC, 0xE0, 0x40}), encoding::ShiftJis)
            .value_or("none"),
        QString::fromUtf16(u"\u3000\u25EF\uFF61\uFF9F\u6ECC\u6F3E"));
    for (const int beyond : {0x3F, 0x7F, 0xFD})
      QVERIFY(!decodeText(bytes({0x81, beyond}), encoding::ShiftJis));
  }

  void oneInvalidByteFailsTheWholeDecoding_data() {
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QByteArray>("encoded");
    QTest::newRow("ascii above 7F") << qint64(1) << bytes({'a', 0x80, 'b'});
    QTest::newRow("non-lossy above 7F") << qint64(7) << bytes({'a', 0xE9, 'b'});
    QTest::newRow("utf8 lone continuation") << qint64(4) << bytes({'a', 0x82, 'b'});
    QTest::newRow("utf8 overlong") << qint64(4) << bytes({0xC0, 0xAF});
    QTest::newRow("utf8 surrogate") << qint64(4) << bytes({0xED, 0xA0, 0x80});
    QTest::newRow("utf8 cut") << qint64(4) << bytes({'a', 0xE6, 0x97});
    QTest::newRow("utf8 above 10FFFF") << qint64(4) << bytes({0xF4, 0x90, 0x80, 0x80});
    QTest::newRow("euc cut") << qint64(3) << bytes({'a', 0xC6});
    QTest::newRow("euc control") << qint64(3) << bytes({0x83, 'e'});
    QTest::newRow("euc bad trail") << qint64(3) << bytes({0xC6, 0x41});
    QTest::newRow("sjis cut") << qint64(8) << bytes({'a', 0x83});
    QTest::newRow("sjis bad trail") << qint64(8) << bytes({0x83, 0x20});
    QTest::newRow("sjis A0") << qint64(8) << bytes({0xA0});
    QTest::newRow("utf16 odd") << qint64(10) << bytes({0xFE, 0xFF, 0, 'a', 0});
    QTest::newRow("utf16 lone surrogate") << qint64(10) << bytes({0xFE, 0xFF, 0xD8, 0x00, 0, 'a'});
  }
  void oneInvalidByteFailsTheWholeDecoding() {
    QFETCH(qint64, number);
    QFETCH(QByteArray, encoded);
    QVERIFY(!decodeText(encoded, number));
    QVERIFY(!isDecodable(encoded, number));
  }

  void aCharacterThatCannotBeSaidFailsTheEncoding() {
    QVERIFY(!encodeText(QString::fromUtf8("é"), encoding::Ascii));
    QVERIFY(!encodeText(QString::fromUtf8("😀"), encoding::ShiftJis));
    QVERIFY(!encodeText(QString::fromUtf8("😀"), encoding::EucJp));
    QVERIFY(!encodeText(QString(QChar(0xD800)), encoding::Utf8));
    QVERIFY(!encodeText(QString(QChar(0xD800)), encoding::Utf16));
  }

  void utf16TakesItsOrderFromTheMark() {
    QCOMPARE(decodeText(bytes({0xFE, 0xFF, 0, 'a', 0, 'b'}), encoding::Utf16).value_or("nothing"), "ab");
    QCOMPARE(decodeText(bytes({0xFF, 0xFE, 'a', 0, 'b', 0}), encoding::Utf16).value_or("nothing"), "ab");
  }

  void utf16WithoutAMarkIsBigEndianUnlessItsZerosSayOtherwise() {
    QCOMPARE(decodeText(bytes({0, 'a', 0, 'b'}), encoding::Utf16).value_or("nothing"), "ab");
    QCOMPARE(decodeText(bytes({'a', 0, 'b', 0}), encoding::Utf16).value_or("nothing"), "ab");
    QCOMPARE(decodeText(bytes({'a', 0}), encoding::Utf16).value_or("nothing"), "a");
    QCOMPARE(decodeText(bytes({0x65, 0xE5}), encoding::Utf16).value_or("nothing"), QString(QChar(0x65E5)));
  }

  void shiftJisKeepsTheBackslashAndTheTilde() {
    QCOMPARE(decodeText("a\\b~", encoding::ShiftJis).value_or("nothing"), "a\\b~");
  }

  void nonLossyEscapes() {
    QCOMPARE(decodeNonLossyAscii("\\u65E5\\u672c").value_or("nothing"), QString::fromUtf8("日本"));
    QCOMPARE(decodeNonLossyAscii("caf\\351").value_or("nothing"), QString::fromUtf8("café"));
    QCOMPARE(decodeNonLossyAscii("a\\\\b").value_or("nothing"), "a\\b");
    QCOMPARE(encodeNonLossyAscii(QString::fromUtf8("日é\\")), QByteArray("\\u65e5\\351\\\\"));
    QCOMPARE(encodeNonLossyAscii(QString(QChar(0x80))), QByteArray("\\200"));
  }

  void aBackslashThatBeginsNoEscapeStandsForItself() {
    for (const char* text : {"\\(", "\\u12", "\\u12G4", "\\12", "\\777", "\\", "\\n"})
      QCOMPARE(decodeNonLossyAscii(text).value_or("nothing"), QString::fromLatin1(text));
  }

  void everyUnitSurvivesNonLossyAscii() {
    QString all;
    for (int unit = 0; unit < 0x10000; ++unit) all.append(QChar(unit));
    const QByteArray encoded = encodeNonLossyAscii(all);
    QCOMPARE(decodeNonLossyAscii(encoded).value_or("nothing"), all);
  }
};

NORVEX_TEST(TextEncodingTest)
#include "text_encoding_test.moc"
