#include "worker/eps_output/type1_font.h"

#include "kit/test_main.h"
#include "worker/eps_output/postscript_tokens.h"
#include "worker/kit/made_type1.h"

using namespace norvex;
using namespace norvex::engine;
using kit::madeType1;

namespace {

QByteArray programOf(const kit::Type1Parts& parts) {
  return parts.clear + parts.encrypted + '\n' + QByteArray(512, '0') + "\ncleartomark\n";
}

QByteArray segment(char kind, const QByteArray& bytes) {
  QByteArray header = QByteArray("\x80") + kind;
  for (int i = 0; i < 4; ++i) header += char(quint8(bytes.size() >> (8 * i)));
  return header + bytes;
}

QByteArray hiddenText(const Type1Program& program) {
  return eexecDecrypted(program.encrypted).mid(4);
}

}  // namespace

class Type1FontTest : public QObject {
  Q_OBJECT
 private slots:
  void whatDrawsIsRead() {
    const auto font = readType1Font(programOf(madeType1()));
    QVERIFY(font);
    QCOMPARE(font->name, QByteArray("Square"));
    QCOMPARE(font->matrix, (Type1Font::Numbers{"0.001", "0", "0", "0.001", "0", "0"}));
    QCOMPARE(font->box, (Type1Font::Numbers{"0", "0", "1000", "1000"}));
    QVERIFY(font->encoding);
    QCOMPARE(font->encoding->at(65), QByteArray("A"));
    QCOMPARE(font->information.front().second, QByteArray("made (here)"));
    QCOMPARE(font->outlines.size(), size_t(2));
    QCOMPARE(font->outlines.back().first, QByteArray("A"));
    QCOMPARE(font->subroutines.size(), size_t(1));
    QCOMPARE(font->hintArrays.front().second, (Type1Font::Numbers{"-10", "0", "800", "810"}));
  }

  void hexadecimalDigitsAndSegmentsAreReadAsWell() {
    const kit::Type1Parts parts = madeType1();
    const auto plain = readType1Font(programOf(parts));
    for (const QByteArray& program :
         {parts.clear + parts.encrypted.toHex(),
          segment(1, parts.clear) + segment(2, parts.encrypted) + segment(1, "0000\ncleartomark\n")}) {
      const auto font = readType1Font(program);
      QVERIFY(font);
      QCOMPARE(font->outlines, plain->outlines);
    }
  }

  void itIsReadAgainAsItWasWritten() {
    const auto font = readType1Font(programOf(madeType1()));
    const Type1Program written = writeType1Font(*font);
    const auto again = readType1Font(written.clearText + written.encrypted);
    QVERIFY(again);
    QCOMPARE(again->outlines, font->outlines);
    QCOMPARE(again->subroutines, font->subroutines);
    QCOMPARE(again->hintArrays, font->hintArrays);
    QCOMPARE(again->information, font->information);
    QCOMPARE(again->encoding, font->encoding);
  }

  void programsInTheFontAreLeftBehind() {
    const kit::MadeType1 hostile{"Square", "(HOSTILE) print\n/Hook {HOSTILE} def\n",
                                 "(HOSTILE) print\n/OtherSubrs [{HOSTILE} {} {} {}] def\n", "A"};
    const auto font = readType1Font(programOf(madeType1(hostile)));
    QVERIFY(font);
    const Type1Program written = writeType1Font(*font);
    QVERIFY(!written.clearText.contains("HOSTILE"));
    QVERIFY(!hiddenText(written).contains("HOSTILE"));
    QCOMPARE(font->outlines.size(), size_t(2));
  }

  void anEncodingWithoutEndEndsWhereTheEncryptedPartBegins() {
    kit::Type1Parts parts = madeType1();
    const qsizetype end = parts.clear.indexOf("readonly def", parts.clear.indexOf("/Encoding"));
    parts.clear = parts.clear.left(end) + "currentfile eexec\n";
    const auto font = readType1Font(programOf(parts));
    QVERIFY(font);
    QCOMPARE(font->encoding->at(65), QByteArray("A"));
    QCOMPARE(font->outlines.size(), size_t(2));
  }

  void valuesThatAreNoNumbersAreLeftBehind() {
    const kit::MadeType1 odd{"Square", "/FontMatrix [0.5 0 0 HOSTILE 0 0] def\n/PaintType HOSTILE def\n",
                             "/BlueScale HOSTILE def\n/StdHW [HOSTILE] def\n", "A"};
    const auto font = readType1Font(programOf(madeType1(odd)));
    QVERIFY(font);
    const Type1Program written = writeType1Font(*font);
    QVERIFY(!(written.clearText + hiddenText(written)).contains("HOSTILE"));
    QCOMPARE(font->matrix.first(), QByteArray("0.001"));
  }

  void textsCannotEndTheirString() {
    const auto font =
        readType1Font(programOf(madeType1({"Square", "/FullName (a\\) HOSTILE \\( \\\\) def\n", {}, "A"})));
    QVERIFY(font);
    QVERIFY(writeType1Font(*font).clearText.contains("/FullName (a\\) HOSTILE \\( \\\\) readonly def\n"));
  }

  void theEncryptedPartNeverLooksLikeDigits() {
    const Type1Program written = writeType1Font(*readType1Font(programOf(madeType1())));
    QVERIFY(quint8(written.encrypted.front()) > 0x7f);
  }

  void whatIsNoFontIsNone() {
    const kit::Type1Parts parts = madeType1();
    QVERIFY(!readType1Font({}));
    QVERIFY(!readType1Font("%!PS\n(HOSTILE) print\n"));
    QVERIFY(!readType1Font(parts.clear));
    QVERIFY(!readType1Font(parts.clear + QByteArray(300, 'x')));
    QVERIFY(!readType1Font("x" + programOf(parts)));
  }

  void aCutFontIsReadWithoutHarm() {
    const QByteArray program = programOf(madeType1());
    for (qsizetype length = 0; length < program.size(); ++length)
      if (const auto font = readType1Font(program.left(length)))
        QVERIFY(!writeType1Font(*font).encrypted.isEmpty());
  }

  void plainNamesEndNowhere() {
    QCOMPARE(plainName("A.sc-1"), QByteArray("A.sc-1"));
    QCOMPARE(plainName("a b(c)/d%e{f}<g>\n\x80"), QByteArray("a_b_c__d_e_f__g___"));
  }

  void numbersWithARadixAreRead() {
    QCOMPARE(smallNumber("8#101"), std::optional(65));
    QCOMPARE(smallNumber("65"), std::optional(65));
    for (const char* wrong : {"-1", "65536", "1#0", "99#1", "x", "", "8#9"}) QVERIFY(!smallNumber(wrong));
  }
};

NORVEX_TEST(Type1FontTest)
#include "type1_font_test.moc"
