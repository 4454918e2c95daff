// The text of the source pane.
#include "metadata/source_text.h"

#include "kit/test_main.h"
#include "metadata/binary_eps.h"
#include "metadata/header_dictionary.h"
#include "metadata/text_encoding.h"

using namespace norvex;
using namespace norvex::testdata;

class SourceTextTest : public QObject {
  Q_OBJECT
 private slots:
  void aPdfHasNoText() {
    QCOMPARE(sourceText(PictureKind::Pdf, "%PDF-1.4 text", encoding::Utf8), "");
    QCOMPARE(sourceText(PictureKind::Pdf, "%PDF-1.4 text", encoding::None), "");
  }

  void noPictureHasNoText() { QCOMPARE(sourceText({}, "text", encoding::Utf8), ""); }

  void theUtf8MarkIsLeftOut() {
    const QByteArray source = "%!PS\n% " + QString::fromUtf8("é").toUtf8();
    const QString plain = sourceText(PictureKind::Eps, source, encoding::Utf8);
    QCOMPARE(plain, QString::fromUtf8("%!PS\n% é"));
    QCOMPARE(sourceText(PictureKind::Eps, "\xEF\xBB\xBF" + source, encoding::Utf8), plain);
    QCOMPARE(sourceText(PictureKind::Svg, QByteArray("\xEF\xBB\xBF<svg/>"), encoding::Utf8), "<svg/>");
  }

  void theUtf16MarkIsLeftToTheDecoder() {
    // Without its mark this text could not be told from big-endian: its zero bytes say nothing.
    const QByteArray little("\xFF\xFE\xE5\x65\x2C\x67");
    QCOMPARE(sourceText(PictureKind::Eps, little, encoding::Utf16), QString::fromUtf8("日本"));
    const QByteArray big("\xFE\xFF\x65\xE5\x67\x2C");
    QCOMPARE(sourceText(PictureKind::Svg, big, encoding::Utf16), QString::fromUtf8("日本"));
  }

  void thirtyBytesThatBeginLikeBinaryEpsAreText() {
    const QByteArray source = "\xC5\xD0" + QByteArray(28, '!');
    QCOMPARE(source.size(), 30);
    const QString text = sourceText(PictureKind::Eps, source, encoding::ShiftJis);
    QCOMPARE(text.size(), 30);
    QVERIFY(text.endsWith(QString(28, '!')));
  }

  void exactlyTheBytesOfTheSectionAreDecoded() {
    const QByteArray section = "[" + QByteArray(998, 'p') + "]";
    const QByteArray source = dosHeader(32, 1000, 0, 0) + "ab" + section + "tail";
    QCOMPARE(source.indexOf(section), 32);
    QCOMPARE(sourceText(PictureKind::Eps, source, encoding::Utf8), QString::fromLatin1(section));
  }

  void theSectionIsCountedFromBehindTheMark() {
    const QByteArray source = "\xEF\xBB\xBF" + binaryEps("%!PS text");
    QCOMPARE(sourceText(PictureKind::Eps, source, encoding::Utf8), "%!PS text");
  }

  void onlyEpsHasABinaryHeader() {
    const QByteArray source = binaryEps("%!PS text");
    QCOMPARE(sourceText(PictureKind::Svg, source, encoding::Utf8), "");
  }

  void invalidTextIsTheEmptyText() {
    QCOMPARE(sourceText(PictureKind::Eps, "%!PS\nvalid, then \xFF", encoding::Utf8), "");
    QCOMPARE(sourceText(PictureKind::Eps, "%!PS \xE9", encoding::Ascii), "");
  }

  void anUnknownNumberIsTheEmptyText() {
    QCOMPARE(sourceText(PictureKind::Eps, "%!PS", 0), "");
    QCOMPARE(sourceText(PictureKind::Svg, "<svg/>", encoding::None), "");
  }

  void onlyTheGivenEncodingIsTried() {
    const QByteArray euc = encodeText(QString::fromUtf8("日本語"), encoding::EucJp).value();
    QCOMPARE(sourceText(PictureKind::Eps, euc, encoding::EucJp), QString::fromUtf8("日本語"));
    QCOMPARE(sourceText(PictureKind::Eps, euc, encoding::Utf8), "");
  }

  void aSourceReadsInAnEncodingThatIsChosen() {
    QCOMPARE(epsTextReadAs("macintosh", "% \x8E\n").value_or("-"), QString::fromUtf8("% é\n"));
    QCOMPARE(epsTextReadAs("macintosh", testdata::binaryEps("% \x8E\n", "II*")).value_or("-"),
             QString::fromUtf8("% é\n"));
    QVERIFY(!epsTextReadAs("Shift_JIS", "% \x8E\n"));
  }

  void lineEndsStayAsTheyAre() {
    QCOMPARE(sourceText(PictureKind::Eps, "a\rb\r\nc\n", encoding::Utf8), "a\rb\r\nc\n");
  }

  void aSectionOutsideTheFileIsCut() {
    QCOMPARE(sourceText(PictureKind::Eps, dosHeader(30, 4000000000u, 0, 0) + "%!PS", encoding::Utf8), "%!PS");
    QCOMPARE(sourceText(PictureKind::Eps, dosHeader(4000000000u, 5, 0, 0) + "nothing", encoding::Utf8), "");
  }

  void shortSourcesAreTexts() {
    QCOMPARE(sourceText(PictureKind::Eps, QByteArrayView(), encoding::Utf8), "");
    QCOMPARE(sourceText(PictureKind::Eps, "a", encoding::Utf8), "a");
    QCOMPARE(sourceText(PictureKind::Eps, "ab", encoding::Utf8), "ab");
  }
};

NORVEX_TEST(SourceTextTest)
#include "source_text_test.moc"
