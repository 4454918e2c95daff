// Text that stays text in an SVG.
#include <ft2build.h>
#include FT_FREETYPE_H

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/svg_output_kit.h"
#include "worker/web_fonts/web_font.h"

using namespace norvex;
using namespace norvex::engine;
using kit::MadeSvg;
using kit::onePage;
using kit::stream;

namespace {

const QByteArray kFont = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>";
const QByteArray kBold = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica-Bold >>";

QByteArray page(const QByteArray& contents, const QByteArray& font = kFont,
                const QList<QByteArray>& more = {}) {
  return onePage(contents, "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R /G 6 0 R >> >>",
                 QList<QByteArray>{font, kBold} + more);
}

/// Codes of a font with these meanings, as a document tells them; object 7.
QByteArray meanings(const QByteArray& lines) {
  return stream(
      "/CIDInit /ProcSet findresource begin 12 dict begin begincmap 1 begincodespacerange <00> <ff> "
      "endcodespacerange " +
      QByteArray::number(lines.count('\n') + 1) + " beginbfchar\n" + lines + "\nendbfchar endcmap end end");
}
const QByteArray kTold = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /ToUnicode 7 0 R >>";

/// In a font of one character, `a`, whose file is OpenType.
QByteArray pageInOwnFont(const QByteArray& contents, const QByteArray& file) {
  const QByteArray described =
      "<< /Type /Font /Subtype /TrueType /BaseFont /Own /FirstChar 97 /LastChar 97 /Widths [600] "
      "/Encoding /WinAnsiEncoding /FontDescriptor << /Type /FontDescriptor /FontName /Own /Flags 32 "
      "/FontBBox [0 0 500 700] /ItalicAngle 0 /Ascent 700 /Descent 0 /CapHeight 700 /StemV 80 /FontFile3 7 "
      "0 R >> >>";
  return page(contents, described, {stream(file, "/Subtype /OpenType")});
}

/// A triangle with these sides as the only character.
WebFont triangle(double width, double height) {
  WebFont font;
  font.outlines = {{{{OutlineStep::Move, {QPointF(0, 0)}},
                     {OutlineStep::Line, {QPointF(width, 0)}},
                     {OutlineStep::Line, {QPointF(0, height)}}},
                    600}};
  font.shownBy = {{U'a', 0}};
  return font;
}

/// The texts of an SVG, each in one piece, as a reader finds them.
QStringList texts(const QByteArray& svg) {
  QStringList found;
  QXmlStreamReader xml(svg);
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"text")
      found << xml.readElementText(QXmlStreamReader::IncludeChildElements);
  return found;
}

QList<double> numbers(const QByteArray& svg, const char* attribute) {
  const auto match =
      QRegularExpression(QStringLiteral("<t(?:ext|span)[^>]* %1=\"([^\"]*)\"").arg(QLatin1String(attribute)))
          .match(QString::fromUtf8(svg));
  QList<double> values;
  for (const QString& value : match.captured(1).split(u' ', Qt::SkipEmptyParts)) values << value.toDouble();
  return values;
}

/// The fonts that an SVG carries.
QList<QByteArray> fonts(const QByteArray& svg) {
  QList<QByteArray> found;
  auto matches =
      QRegularExpression(QStringLiteral("data:font/woff;base64,([^)]*)")).globalMatch(QString::fromUtf8(svg));
  while (matches.hasNext()) found << QByteArray::fromBase64(matches.next().captured(1).toLatin1());
  return found;
}

/// The characters that a font shows.
QString shownBy(const QByteArray& font) {
  FT_Library library = nullptr;
  FT_Face face = nullptr;
  QString all;
  FT_Init_FreeType(&library);
  if (FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(font.constData()), FT_Long(font.size()), 0,
                         &face) == 0) {
    FT_UInt glyph = 0;
    for (FT_ULong c = FT_Get_First_Char(face, &glyph); glyph != 0; c = FT_Get_Next_Char(face, c, &glyph)) {
      const char32_t character = char32_t(c);
      all += QString::fromUcs4(&character, 1);
    }
    FT_Done_Face(face);
  }
  FT_Done_FreeType(library);
  return all;
}

}  // namespace

class SvgTextLinesTest : public QObject {
  Q_OBJECT
 private slots:
  void textStaysTextWhereThatIsWished() {
    const QByteArray pdf = page("BT /F 40 Tf 10 30 Td (Words) Tj ET");
    QCOMPARE(texts(MadeSvg::withText(pdf).svg()), QStringList{"Words"});
    QCOMPARE(MadeSvg::withText(pdf).count("<use"), 0);
    QCOMPARE(texts(MadeSvg(pdf).svg()), QStringList());
  }

  void aFontHoldsWhatIsShownAlone() {
    const QList<QByteArray> carried =
        fonts(MadeSvg::withText(page("BT /F 40 Tf 10 30 Td (deed) Tj ET")).svg());
    QCOMPARE(carried.size(), 1);
    QCOMPARE(shownBy(carried.first()), QString("de"));
  }

  void everyCharacterHasItsPlace() {
    const QByteArray svg = MadeSvg::withText(page("BT /F 40 Tf 3 Tc 10 30 Td (Wo) Tj ET")).svg();
    QCOMPARE(numbers(svg, "x"), (QList<double>{10, 10 + 0.944 * 40 + 3}));
    QCOMPARE(numbers(svg, "y"), QList<double>{70});
    QCOMPARE(numbers(svg, "font-size"), QList<double>{40});
  }

  void aPlaceUnderATurnIsThatOfTheTurnedLine() {
    const QByteArray svg = MadeSvg::withText(page("BT /F 20 Tf 0 2 -2 0 50 10 Tm (Wo) Tj ET")).svg();
    QVERIFY(svg.contains("matrix(0 -1 1 0 50 90)"));
    QCOMPARE(numbers(svg, "x"), (QList<double>{0, 0.944 * 40}));
    QCOMPARE(numbers(svg, "font-size"), QList<double>{40});
  }

  void aGapIsASpaceAndABreakIsNone() {
    QCOMPARE(texts(MadeSvg::withText(page("BT /F 12 Tf 10 30 Td [(two) -400 (words)] TJ ET")).svg()),
             QStringList{"two words"});
    QCOMPARE(texts(MadeSvg::withText(page("BT /F 12 Tf 10 30 Td [(k) 20 (erned)] TJ ET")).svg()),
             QStringList{"kerned"});
    QCOMPARE(texts(MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (one) Tj 0 -14 Td (two) Tj ET")).svg()),
             (QStringList{"one", "two"}));
    QCOMPARE(texts(MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (one) Tj 120 0 Td (two) Tj ET")).svg()),
             (QStringList{"one", "two"}));
  }

  void aLineInTwoFontsIsOneText() {
    const QByteArray svg =
        MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (half ) Tj /G 12 Tf (bold) Tj ET")).svg();
    QCOMPARE(texts(svg), QStringList{"half bold"});
    QCOMPARE(fonts(svg).size(), 2);
    QVERIFY(svg.contains("font-weight=\"bold\""));
  }

  void whatIsShownByTwoOutlinesIsFoundAllTheSame() {
    const QByteArray svg = MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (aAa) Tj ET", kTold,
                                                  {meanings("<61> <0061>\n<41> <0061>")}))
                               .svg();
    QCOMPARE(texts(svg), QStringList{"aaa"});
    QCOMPARE(fonts(svg).size(), 2);
    for (const QByteArray& font : fonts(svg)) QCOMPARE(shownBy(font), QString("a"));
  }

  void aLigatureIsFoundByItsLetters() {
    const QByteArray svg =
        MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (oXe) Tj ET", kTold,
                               {meanings("<6f> <006f>\n<58> <006600660069>\n<65> <0065>")}))
            .svg();
    QCOMPARE(texts(svg), QStringList{"offie"});
    const QByteArray one =
        MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (X) Tj ET", kTold, {meanings("<58> <FB01>")})).svg();
    QCOMPARE(texts(one), QStringList{"fi"});
    QCOMPARE(numbers(one, "x"), (QList<double>{10, 10}));
  }

  void aCharacterWithoutMeaningIsShownAndThatIsTold() {
    const MadeSvg made = MadeSvg::withText(
        page("BT /F 12 Tf 10 30 Td (aX) Tj ET", kTold, {meanings("<61> <0061>\n<58> <FFFD>")}));
    const QString text = texts(made.svg()).value(0);
    QCOMPARE(text.size(), 2);
    QCOMPARE(text.at(0), QChar(u'a'));
    QCOMPARE(text.at(1).category(), QChar::Other_PrivateUse);
    QVERIFY(made.report().warnings.join(u' ').contains("does not tell the meaning"));
    QVERIFY(MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (a) Tj ET")).report().warnings.isEmpty());
  }

  void whatReadersWouldJoinOrTurnAroundStandsAlone() {
    const QByteArray svg = MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (abc) Tj ET", kTold,
                                                  {meanings("<61> <0628>\n<62> <0627>\n<63> <0063>")}))
                               .svg();
    QCOMPARE(texts(svg), (QStringList{QString(QChar(0x628)), QString(QChar(0x627)), "c"}));
  }

  void textIsNoMarkup() {
    QCOMPARE(texts(MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (<a&b>) Tj ET")).svg()),
             QStringList{"<a&b>"});
  }

  void textAboveAScanIsFoundAndNotSeen() {
    const MadeSvg made = MadeSvg::withText(page("BT /F 12 Tf 3 Tr 10 30 Td (scan) Tj ET"));
    QCOMPARE(texts(made.svg()), QStringList{"scan"});
    QVERIFY(made.svg().contains("<text fill=\"none\""));
    QVERIFY(made.report().warnings.isEmpty());
  }

  void textInOutlineStaysOutlineAndThatIsTold() {
    const MadeSvg made = MadeSvg::withText(page("BT /F 40 Tf 1 Tr 10 30 Td (line) Tj ET"));
    QCOMPARE(texts(made.svg()), QStringList());
    QVERIFY(made.count("<path") > 0);
    QVERIFY(made.report().warnings.join(u' ').contains("stays outlines"));
  }

  void aFontThatMayNotBeEmbeddedStaysOutlines() {
    QByteArray free = *openTypeFont(triangle(500, 700)), restricted = free;
    const qsizetype entry = free.indexOf("OS/2");
    qsizetype at = 0;
    for (int i = 0; i < 4; ++i) at = at << 8 | quint8(free[entry + 8 + i]);
    restricted[at + 9] = 2;  // its rights: none
    const auto textsOf = [](const QByteArray& file) {
      const MadeSvg made = MadeSvg::withText(pageInOwnFont("BT /F 40 Tf 10 30 Td (a) Tj ET", file));
      return std::pair(texts(made.svg()), made.count("<use") + made.count("<path"));
    };
    QCOMPARE(textsOf(free).first, QStringList{"a"});
    QCOMPARE(textsOf(restricted).first, QStringList());
    QVERIFY(textsOf(restricted).second > 0);
  }

  void whatLiesOutsideIsLeftOut() {
    const QByteArray svg = MadeSvg::withText(page("BT /F 12 Tf 500 30 Td (far) Tj ET")).svg();
    QCOMPARE(texts(svg), QStringList());
    QCOMPARE(fonts(svg).size(), 0);
  }

  void whatReachesInFromFarOutsideIsKept() {
    const QByteArray tall = *openTypeFont(triangle(500, 6000)), low = *openTypeFont(triangle(500, 700));
    const QByteArray below = "BT /F 20 Tf 10 -80 Td (a) Tj ET";  // 20 points of 120 are on the page
    QCOMPARE(texts(MadeSvg::withText(pageInOwnFont(below, tall)).svg()), QStringList{"a"});
    QCOMPARE(texts(MadeSvg::withText(pageInOwnFont(below, low)).svg()), QStringList());
  }

  // What readers show in another font may leave marks anywhere around its em.
  void whatStandsWithinAnEmOfThePageIsKept() {
    const auto kept = [](const QByteArray& place) {
      return texts(MadeSvg::withText(page("BT /F 12 Tf " + place + " Td (a) Tj ET")).svg()).size();
    };
    QCOMPARE(kept("10 111"), 1);  // one em below its line
    QCOMPARE(kept("10 113"), 0);
    QCOMPARE(kept("10 -23"), 1);  // two above it
    QCOMPARE(kept("10 -25"), 0);
    QCOMPARE(kept("-23 50"), 1);
    QCOMPARE(kept("-25 50"), 0);
    QCOMPARE(kept("211 50"), 1);
    QCOMPARE(kept("213 50"), 0);
  }

  void aCharacterOfNoWidthStaysInItsLine() {
    const QByteArray accents =
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /FirstChar 97 /LastChar 98 /Widths [0 500] >>";
    const QByteArray svg = MadeSvg::withText(page("BT /F 12 Tf 10 30 Td (ab) Tj ET", accents)).svg();
    QCOMPARE(texts(svg), QStringList{"ab"});
    QCOMPARE(numbers(svg, "x"), (QList<double>{10, 10}));
  }

  void anOutlineStaysAboveTheTextBeforeIt() {
    const QByteArray svg =
        MadeSvg::withText(
            page("BT /F 12 Tf 10 30 Td (a) Tj 1 Tr (b) Tj 0 Tr (c) Tj ET 1 0 0 rg 0 0 9 9 re f"))
            .svg();
    const qsizetype first = svg.indexOf(">a<"), outline = svg.indexOf("<path", first),
                    last = svg.indexOf(">c<");
    QVERIFY(first > 0 && outline > first && last > outline && svg.indexOf("fill=\"#f00\"") > last);
  }

  void theSamePageGivesTheSameBytes() {
    const QByteArray pdf = page("BT /F 12 Tf 10 30 Td (half ) Tj /G 12 Tf (bold) Tj ET");
    QCOMPARE(MadeSvg::withText(pdf).svg(), MadeSvg::withText(pdf).svg());
  }
};

NORVEX_TEST(SvgTextLinesTest)
#include "svg_text_lines_test.moc"
