// What an examination finds of a page that a printer stumbles over.
#include <utility>

#include "kit/test_main.h"
#include "worker/examine/page_colour.h"
#include "worker/examine/page_examination.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

// Half: see-through; Multiply: blends; Over: overprints; Mask: masked softly.
const QByteArray kStates =
    "/ExtGState << /Half << /ca 0.5 /CA 0.5 >> /Multiply << /BM /Multiply >> /Over << /op true /OP true >> "
    ">> "
    "/Font << /F << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> ";

PageContents contents(const QByteArray& page, const QByteArray& resources, const QList<QByteArray>& more) {
  const Result<PageContents> found = onlyPageContents(
      kit::onePage(page, "/MediaBox [0 0 200 100] /Resources << " + resources + " >>", more), {});
  return found ? *found : PageContents();
}

PageContents drawn(const QByteArray& page, const QByteArray& resources = {},
                   const QList<QByteArray>& more = {}) {
  return contents(page, kStates + resources, more);
}

QByteArray image(const QByteArray& entries) {
  return kit::stream("x", "/Type /XObject /Subtype /Image /Width 1 /Height 1 " + entries);
}

}  // namespace

class PageFindingsTest : public QObject {
  Q_OBJECT
 private slots:
  void whatShowsWhatLiesBelowIsTransparent() {
    QVERIFY(!drawn("10 10 20 20 re f 1 w 0 0 m 9 9 l S").transparency);
    QCOMPARE(drawn("/Half gs 10 10 20 30 re f").transparency, QRectF(10, 10, 20, 30));
    QCOMPARE(drawn("/Multiply gs 10 10 20 30 re f").transparency, QRectF(10, 10, 20, 30));
    QVERIFY(!drawn("/Half gs 300 10 20 30 re f").transparency);  // not on the page
  }

  void aShadingIsTransparentLikeAnythingElse() {
    const QByteArray shading =
        "/Shading << /S << /ShadingType 2 /ColorSpace /DeviceGray /Coords [0 0 200 0] /Function << "
        "/FunctionType 2 /N 1 /Domain [0 1] /C0 [0] /C1 [1] >> >> >>";
    QVERIFY(!drawn("/S sh", shading).transparency);
    QVERIFY(drawn("/Half gs /S sh", shading).transparency);
    QVERIFY(drawn("/Multiply gs /S sh", shading).transparency);
  }

  void anImageIsTransparentByItsMaskAlone() {
    const auto of = [](const QByteArray& state, const QByteArray& entries) {
      return drawn("q " + state + " 20 0 0 20 10 10 cm /I Do Q", "/XObject << /I 5 0 R >>",
                   {image(entries), image("/ColorSpace /DeviceGray /BitsPerComponent 8")})
          .transparency.has_value();
    };
    const QByteArray grey = "/ColorSpace /DeviceGray /BitsPerComponent 8 ";
    QVERIFY(!of({}, grey));
    QVERIFY(of({}, grey + "/SMask 6 0 R"));
    QVERIFY(of("/Half gs", grey));
    QVERIFY(of("/Multiply gs", grey));
    QVERIFY(!of({}, "/ImageMask true /SMask 6 0 R"));  // a stencil has none
  }

  void whatSticksOutIsMeasured() {
    QVERIFY(!drawn("1 0 0 rg -1 -1 202 102 re f").outside);
    const auto outside = drawn("1 0 0 rg -5 10 20 20 re f 190 10 13 20 re f").outside;
    QVERIFY(outside);
    QCOMPARE(outside->value, 5.0);
    QCOMPARE(outside->rect, QRectF(-5, 10, 20, 20));
    QCOMPARE(drawn("1 0 0 rg 10 50 20 57 re f").outside->value, 7.0);
    QVERIFY(!drawn("1 g -5 10 20 20 re f").outside);  // white is no loss
    QVERIFY(!drawn("BT /F 12 Tf -9 10 Td (a) Tj ET").outside);
    for (const QByteArray place : {"-8 10", "10 -8", "188 10", "10 88"})
      QCOMPARE(drawn("q 20 0 0 20 " + place + " cm /I Do Q", "/XObject << /I 5 0 R >>",
                     {image("/ColorSpace /DeviceGray /BitsPerComponent 8")})
                   .outside->value,
               8.0);
  }

  void whiteThatOverprintsVanishes() {
    QVERIFY(drawn("/Over gs 0 0 0 0 k 10 10 20 20 re f").whiteOverprint);
    QVERIFY(!drawn("0 0 0 0 k 10 10 20 20 re f").whiteOverprint);
    QVERIFY(!drawn("/Over gs 0 0 0 1 k 10 10 20 20 re f").whiteOverprint);
    QVERIFY(!drawn("/Over gs 1 1 1 rg 10 10 20 20 re f").whiteOverprint);
  }

  void smallBlackTextThatKnocksOutIsTold() {
    const auto of = [](const QByteArray& state, const QByteArray& size) {
      return drawn(state + " BT /F " + size + " Tf 10 10 Td (a) Tj ET").blackKnocksOut.has_value();
    };
    QVERIFY(of("0 0 0 1 k", "12"));
    QVERIFY(!of("0 0 0 1 k", "12.5"));
    QVERIFY(!of("/Over gs 0 0 0 1 k", "12"));
    QVERIFY(!of("0 1 0 1 k", "12"));
  }

  void aLineInNoInkIsNone() {
    const QByteArray none =
        "/ColorSpace << /N [/Separation /None /DeviceGray << /FunctionType 2 /N 1 /Domain [0 1] /C0 [0] /C1 "
        "[1] >>] >>";
    QVERIFY(!drawn("/N CS 1 SCN 0.1 w 10 10 m 20 10 l S", none).thinnestLine);
    QVERIFY(drawn("0.1 w 10 10 m 20 10 l S", none).thinnestLine);
  }

  void aColourModelIsToldWhereItIsUsedFirst() {
    const PageContents page = drawn(
        "1 0 0 rg 9 9 5 5 re f 20 20 5 5 re f 0 1 0 0 k 30 30 5 5 re f 1 0 0 0 k "
        "40 40 5 5 re f");
    QCOMPARE(page.rgb, QRectF(9, 9, 5, 5));
    QCOMPARE(page.cmyk, QRectF(30, 30, 5, 5));
    QVERIFY(!drawn("1 0 0 rg 9 9 5 5 re f").cmyk);
  }

  void aProfileIsOfTheModelThatItsPartsMake() {
    const auto of = [](const QByteArray& parts) {
      const PageContents page = drawn("/C cs 0.5 sc 9 9 5 5 re f", "/ColorSpace << /C [/ICCBased 5 0 R] >>",
                                      {kit::stream("", "/N " + parts)});
      return std::pair(page.rgb.has_value(), page.cmyk.has_value());
    };
    QCOMPARE(of("1"), std::pair(false, false));
    QCOMPARE(of("3"), std::pair(true, false));
    QCOMPARE(of("4"), std::pair(false, true));
  }

  // Of the line, not of the area.
  void aLineHasTheColourThatWasSetForIt() {
    QCOMPARE(drawn("/DeviceCMYK CS 1 1 0 0 SC 9 9 20 20 re S").mostInk->value, 200.0);
    QCOMPARE(drawn("/DeviceCMYK CS /DeviceCMYK cs 1 1 0 0 SC 9 9 20 20 re f").mostInk->value, 100.0);
  }

  void aSpaceBeginsWithItsDarkestColour() {
    for (const ColourModel model : {ColourModel::Grey, ColourModel::Cmyk, ColourModel::Spot}) {
      QCOMPARE(initialColourOf(ColourSpace{model}).ink, 100.0);
      QVERIFY(!initialColourOf(ColourSpace{model}).isWhite);
    }
    QVERIFY(!initialColourOf(ColourSpace{ColourModel::Rgb}).isWhite);
  }

  // What it says is a place in a table.
  void aPlaceInATableIsNoColour() {
    ColourSpace table{ColourModel::Rgb}, pattern{ColourModel::Grey};
    QVERIFY(colourOf(table, {5, 5, 5}).isWhite);
    table.isIndexed = pattern.isPattern = true;
    QVERIFY(!colourOf(table, {5, 5, 5}).isWhite);
    QVERIFY(!colourOf(pattern, {1}).isWhite);
  }

  void theGlyphsOfAFontOfDrawingsAreAsLargeAsItsBox() {
    const QByteArray font =
        "/Font << /T << /Type /Font /Subtype /Type3 /FontBBox [0 -1 9 4] /FontMatrix [0.1 0 0 0.1 0 0] "
        "/FirstChar 97 /LastChar 97 /Widths [9] /Encoding << /Differences [97 /a] >> /CharProcs << /a 5 0 R "
        ">> "
        ">> >>";
    const PageContents page = contents("BT /T 30 Tf 10 10 Td (a) Tj ET", font, {kit::stream("9 0 d0")});
    QVERIFY(page.smallestText);
    QCOMPARE(page.smallestText->value, 15.0);
  }

  // Six capital letters and a plus stand before the name of a part of a font.
  void aPartOfAFontIsKnownByItsName() {
    const auto isSubset = [](const QByteArray& name) {
      const PageContents page =
          contents("", "/Font << /A << /Type /Font /Subtype /TrueType /BaseFont /" + name + " >> >>", {});
      return page.fonts.size() == 1 && page.fonts[0].subset;
    };
    QVERIFY(isSubset("ABCDEF+Own"));
    QVERIFY(!isSubset("HELVETICA"));
    QVERIFY(!isSubset("ABCDEF+"));
    QVERIFY(!isSubset("ABCdEF+Own"));
    QVERIFY(!isSubset("Own"));
  }

  void inkIsNeverLessThanNone() {
    const auto inkOf = [](ColourModel model, const std::vector<double>& parts) {
      return colourOf(ColourSpace{model}, parts).ink;
    };
    QCOMPARE(inkOf(ColourModel::Grey, {1.5}), 0.0);
    QCOMPARE(inkOf(ColourModel::Grey, {-0.5}), 100.0);
    QCOMPARE(inkOf(ColourModel::Cmyk, {-1, -1, 0, 0}), 0.0);
    QCOMPARE(inkOf(ColourModel::Cmyk, {2, 2, 2, 2}), 400.0);
    QCOMPARE(inkOf(ColourModel::Spot, {-1}), 0.0);
  }
};

NORVEX_TEST(PageFindingsTest)
#include "page_findings_test.moc"
