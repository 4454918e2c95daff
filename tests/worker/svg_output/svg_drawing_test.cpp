// A page and the SVG made of it, drawn beside one another: Poppler draws the one, librsvg the other.
#include "kit/test_main.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/svg_output_kit.h"

using namespace norvex;
using kit::MadeSvg;
using kit::onePage;
using kit::stream;

namespace {

constexpr double kTolerance = 0.01 * 255;  // mean of a channel
constexpr double kTiles = 0.03 * 255;      // librsvg draws a tile in pixels of its own and stretches them
constexpr double kVisible = 0.02 * 255;    // what each page differs from an empty one by

const QByteArray kFont = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>";
const QByteArray kRedToBlue = "<< /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >>";
const QByteArray kBent = "<< /FunctionType 2 /Domain [0 1] /C0 [1 1 0] /C1 [0 0.2 0.4] /N 2.5 >>";

// What the rows below name as resources; objects 5 to 7.
QByteArray page(const QByteArray& contents, const QByteArray& resources = {},
                const QList<QByteArray>& more = {}) {
  const QByteArray mask =
      stream("/G1 sh",
             "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /Group << /S /Transparency /CS "
             "/DeviceGray >> /Resources << /Shading << /G1 << /ShadingType 2 /ColorSpace /DeviceGray "
             "/Coords [0 0 200 0] /Function << /FunctionType 2 /Domain [0 1] /C0 [0] /C1 [1] /N 1 >> "
             ">> >> >>");
  const QByteArray group =
      stream("1 0 0 rg 20 20 80 60 re f 0 0 1 rg 60 40 80 50 re f",
             "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /Group << /S /Transparency >>");
  return onePage(
      contents,
      "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R >> /XObject << /Group 7 0 R >> /ExtGState "
      "<< /Half << /ca 0.5 /CA 0.5 >> /Multiply << /BM /Multiply >> /Mask << /SMask << /S /Luminosity /G 6 "
      "0 R >> >> >> " +
          resources + " >>",
      QList<QByteArray>{kFont, mask, group} + more);
}

QByteArray shading(const QByteArray& entries) {
  return page("/S sh", "/Shading << /S << /ColorSpace /DeviceRGB " + entries + " >> >>");
}

QByteArray tiles(const QByteArray& entries) {
  return page("/Pattern cs /P scn 10 10 180 80 re f", "/Pattern << /P 8 0 R >>",
              {stream("1 0.5 0 rg 0 0 8 8 re f 0 0.4 0 rg 2 2 9 4 re f",
                      "/PatternType 1 /PaintType 1 /TilingType 1 /Resources << >> " + entries)});
}

QByteArray image(const QByteArray& contents, const QByteArray& more = {}) {
  return page(
      contents, "/XObject << /I 8 0 R /K 9 0 R >>",
      {stream(
           "\xff\x10\x10\x10\xff\x10\x10\x10\xff\x80\x80\x10",
           "/Type /XObject /Subtype /Image /Width 2 /Height 2 /BitsPerComponent 8 /ColorSpace /DeviceRGB " +
               more),
       stream(
           QByteArray("\x40\xff\xff\x00", 4),
           "/Type /XObject /Subtype /Image /Width 2 /Height 2 /BitsPerComponent 8 /ColorSpace /DeviceGray")});
}

}  // namespace

class SvgDrawingTest : public QObject {
  Q_OBJECT
 private slots:
  void itLooksLikeThePage_data() {
    QTest::addColumn<QByteArray>("pdf");
    const auto row = [](const char* name, const QByteArray& pdf) { QTest::newRow(name) << pdf; };
    row("filled",
        page("0.8 0.1 0.1 rg 20 20 m 180 30 l 150 90 l h f 0 0 1 rg 10 60 m 60 110 80 10 120 80 c f"));
    row("even-odd", page("20 10 160 80 re 50 30 100 40 re f*"));
    row("stroked",
        page("6 w 0 0.5 0 RG 1 J 1 j 20 20 m 100 90 l 180 20 l S 0 J 0 j 8 w 30 10 m 100 40 l 170 10 l S"));
    row("bevelled and square", page("9 w 2 J 2 j 20 20 m 100 80 l 180 20 l S"));
    row("mitred no longer", page("9 w 1.2 M 20 20 m 100 80 l 180 20 l S"));
    row("dashed", page("5 w [12 6 3 6] 4 d 10 20 m 190 20 l S 1 J [0 10] 0 d 10 60 m 190 60 l S"));
    row("stretched line", page("q 4 0 0 1 0 0 cm 5 w 5 10 m 40 90 l S Q"));
    row("filled and stroked", page("0.9 0.9 0.2 rg 4 w 30 20 140 60 re B"));
    row("clipped", page("100 10 m 180 90 l 20 90 l h W n 0.2 0.2 0.8 rg 0 0 200 100 re f"));
    row("clipped twice",
        page("40 0 120 100 re W n 100 0 m 200 100 l 0 100 l h W* n 1 0 0 rg 0 0 200 100 re f"));
    row("clipped by a curve",
        page("0 0 m 0 130 200 130 200 0 c 0 0 l h W n 0.2 0.2 0.8 rg 0 0 200 100 re f"));
    row("turned", page("q 0.8 0.6 -0.6 0.8 60 -20 cm 0 0.6 0.6 rg 20 20 120 40 re f Q"));
    row("axial", shading("/ShadingType 2 /Coords [40 0 160 60] /Extend [true true] /Function " + kBent));
    row("axial that ends", shading("/ShadingType 2 /Coords [50 0 150 0] /Function " + kRedToBlue));
    row("radial",
        shading("/ShadingType 3 /Coords [100 50 0 100 50 60] /Extend [true true] /Function " + kBent));
    row("radial with a hole",
        shading("/ShadingType 3 /Coords [100 50 15 100 50 45] /Function " + kRedToBlue));
    row("radial aside",
        shading("/ShadingType 3 /Coords [80 50 5 100 50 45] /Extend [true false] /Function " + kBent));
    row("radial inwards", shading("/ShadingType 3 /Coords [100 50 45 100 50 10] /Function " + kRedToBlue));
    row("two circles",
        shading("/ShadingType 3 /Coords [50 50 10 150 50 30] /Extend [true false] /Function " + kBent));
    row("two circles of another domain",
        shading("/ShadingType 3 /Coords [50 50 10 150 50 30] /Domain [0 2] /Function << /FunctionType 2 "
                "/Domain [0 2] /C0 [0 0 0.5] /C1 [0.5 0.4 0.2] /N 1 >>"));
    row("function of the place",
        page("/S sh",
             "/Shading << /S << /ShadingType 1 /ColorSpace /DeviceRGB /Domain [0 1 0 1] /Matrix [200 0 0 100 "
             "0 0] "
             "/Function 8 0 R >> >>",
             {stream("{ 2 copy mul }", "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1]")}));
    row("gradient in a line", page("/Pattern CS /P SCN 20 w 20 20 m 180 80 l S",
                                   "/Pattern << /P << /PatternType 2 /Shading << /ShadingType 2 /ColorSpace "
                                   "/DeviceRGB /Coords [0 0 200 0] /Function " +
                                       kRedToBlue + " >> >> >>"));
    row("gradient in text",
        page("/Pattern cs /P scn BT /F 60 Tf 10 30 Td (Svg) Tj ET",
             "/Pattern << /P << /PatternType 2 /Shading << /ShadingType 2 /ColorSpace /DeviceRGB "
             "/Coords [0 0 200 0] /Function " +
                 kRedToBlue + " >> >> >>"));
    row("tiles", tiles("/BBox [0 0 12 9] /XStep 12 /YStep 9"));
    row("tiles that overlap", tiles("/BBox [0 0 11 8] /XStep 9 /YStep 7"));
    row("tiles apart", tiles("/BBox [0 0 11 8] /XStep 30 /YStep 20"));
    row("tiles aslant", tiles("/BBox [0 0 11 8] /XStep 11 /YStep 8 /Matrix [0.8 0.6 -0.6 0.8 0 0]"));
    row("tiles of tiles",
        page("/Pattern cs /P scn 60 20 130 70 re f", "/Pattern << /P 8 0 R >>",
             {stream("/Pattern cs /Q scn 0 0 30 30 re f",
                     "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 30 30] /XStep 40 /YStep 35 "
                     "/Resources << /Pattern << /Q 9 0 R >> >>"),
              stream("1 0 0 rg 0 0 8 8 re f",
                     "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 8 8] /XStep 10 /YStep 10 "
                     "/Resources << >>")}));
    row("image", image("q 160 0 0 80 20 10 cm /I Do Q"));
    row("turned image", image("q 60 40 -40 60 80 0 cm /I Do Q"));
    row("half an image", image("/Half gs q 160 0 0 80 20 10 cm /I Do Q"));
    row("image with a mask",
        image("0 0 0 rg 0 0 100 100 re f q 160 0 0 80 20 10 cm /I Do Q", "/SMask 9 0 R"));
    const QByteArray masked = "0.9 0.9 0.2 rg 0 0 200 100 re f q 160 0 0 80 20 10 cm /I Do Q";
    const auto withMask = [&](const QByteArray& size, const QByteArray& shades) {
      return page(masked, "/XObject << /I 8 0 R >>",
                  {stream(QByteArray("\xFF\0\0\0\xFF\0\0\0\xFF\xFF\xFF\xFF", 12),
                          "/Type /XObject /Subtype /Image /Width 2 /Height 2 /BitsPerComponent 8 /ColorSpace "
                          "/DeviceRGB /SMask 9 0 R"),
                   stream(shades, "/Type /XObject /Subtype /Image " + size +
                                      " /BitsPerComponent 8 /ColorSpace /DeviceGray")});
    };
    row("image with a finer mask",
        withMask("/Width 4 /Height 4", QByteArray("\0\x40\x80\xFF", 4).repeated(4)));
    row("image with a coarser mask", withMask("/Width 1 /Height 1", "\x60"));
    row("image with a mask that is fine along one axis",
        withMask("/Width 1 /Height 3000", QByteArray(1000, '\x20') + QByteArray(2000, '\xFF')));
    row("image with a mask that fits nowhere", withMask("/Width 3 /Height 1", QByteArray("\x20\xFF\x60")));
    row("image with colours left out",
        image("0 1 1 rg 0 0 200 100 re f q 160 0 0 80 20 10 cm /I Do Q", "/Mask [200 255 0 64 0 64]"));
    row("image with a grey left out",
        page("0 1 1 rg 0 0 200 100 re f q 160 0 0 80 20 10 cm /I Do Q", "/XObject << /I 8 0 R >>",
             {stream("\x1b\xe4",
                     "/Type /XObject /Subtype /Image /Width 4 /Height 2 /BitsPerComponent 2 "
                     "/ColorSpace /DeviceGray /Mask [1 2]")}));
    row("stencil", page("0 0 0.8 rg q 160 0 0 80 20 10 cm BI /W 4 /H 2 /IM true /BPC 1 ID \xa0\x50 EI Q"));
    row("soft mask", page("/Mask gs 0.8 0 0 rg 10 10 180 80 re f"));
    row("soft mask with a transfer function",
        page("/Bent gs 0.8 0 0 rg 10 10 180 80 re f",
             "/ExtGState << /Bent << /SMask << /S /Luminosity /G 6 0 R /TR << /FunctionType 2 /Domain [0 1] "
             "/C0 [1] /C1 [0] /N 1 >> >> >> >>"));
    row("soft mask of a group", page("/Mask gs /Group Do"));
    row("mask of opacity",
        onePage(
            "0 1 0 rg 50 0 30 100 re f /M gs 0.8 0 0 rg 10 10 180 80 re f",
            "/MediaBox [0 0 200 100] /Resources << /ExtGState << /M << /SMask << /S /Alpha /G 5 0 R >> >> >> "
            ">>",
            {stream(
                "/H gs 0 g 20 20 100 60 re f 0 0 1 rg 60 40 120 50 re f",
                "/Type /XObject /Subtype /Form /BBox [0 0 200 100] /Group << /S /Transparency >> /Resources "
                "<< /ExtGState << /H << /ca 0.6 >> >> >>")}));
    row("opacity", page("0 0 0 rg 0 0 90 100 re f /Half gs 1 0 0 rg 20 20 160 60 re f"));
    row("group", page("/Half gs /Group Do"));
    row("blended", page("1 1 0 rg 20 20 120 60 re f /Multiply gs 0 1 1 rg 60 10 120 60 re f"));
    row("blended through a clip",
        page("1 1 0 rg 20 20 120 60 re f 100 5 m 190 95 l 40 80 l h W n /Multiply gs 0 1 1 rg 60 10 120 60 "
             "re f 1 0 1 rg 0 40 200 50 re f"));
    row("blended through a mask", page("1 1 0 rg 20 20 120 60 re f /Multiply gs /Mask gs 0 1 1 rg 60 10 120 "
                                       "60 re f"));
    row("blended group", page("1 1 0 rg 20 20 120 60 re f /Multiply gs /Group Do"));
    row("text", page("0.2 0.2 0.2 rg BT /F 40 Tf 10 50 Td (Words,) Tj 0 -40 Td 80 Tz 3 Tc (words) Tj ET"));
    row("text narrower than the font that stands in",
        page("BT /N 60 Tf 10 30 Td (mmmm) Tj ET",
             "/Font << /N << /Type /Font /Subtype /TrueType /BaseFont /NobodyHasIt /FirstChar 109 /LastChar "
             "109 /Widths [500] /Encoding /WinAnsiEncoding >> >>"));
    row("text aslant", page("BT /F 40 Tf 0.9 0.3 -0.3 0.9 20 20 Tm (Words) Tj ET"));
    row("text in outline", page("2 w 1 0 0 RG 1 1 0 rg BT /F 70 Tf 2 Tr 10 30 Td (Svg) Tj ET"));
    row("text that clips", page("BT /F 80 Tf 7 Tr 10 20 Td (Svg) Tj ET 0 0.5 1 rg 0 0 200 60 re f"));
  }
  void itLooksLikeThePage() {
    QFETCH(QByteArray, pdf);
    const MadeSvg made(pdf);
    QVERIFY(!made.error());
    const QImage before = kit::drawn(pdf);
    QImage empty = before;
    empty.fill(Qt::white);
    QVERIFY2(kit::difference(before, empty) > kVisible, "the page shows something");
    const double different = kit::difference(before, made.picture());
    QVERIFY2(different < (made.count("<pattern") > 0 ? kTiles : kTolerance),
             qPrintable(QString::number(different) + '\n' + made.svg().left(3000)));
  }

  void linesOfGlyphsThatAreDrawingsHaveTheColourOfTheText() {
    const QByteArray type3 =
        "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 10 10] /FontMatrix [0.1 0 0 0.1 0 0] /FirstChar 65 "
        "/LastChar 65 /Widths [10] /Encoding << /Differences [65 /a] >> /CharProcs << /a 9 0 R >> /Resources "
        "<< >> >>";
    const MadeSvg made(page("/Half gs 1 0 0 rg 0 0 1 RG BT /T 80 Tf 10 10 Td (A) Tj ET",
                            "/Font << /T 8 0 R >>", {type3, stream("10 0 0 0 10 10 d1 4 w 2 2 m 8 2 l S")}));
    const QImage shown = made.picture();
    QVERIFY(!shown.isNull());
    QCOMPARE(shown.pixel(100, 148), qRgb(255, 127, 127));
  }

  void glyphsThatAreDrawingsLookLikeThem() {
    const QByteArray type3 =
        "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 10 10] /FontMatrix [0.1 0 0 0.1 0 0] /FirstChar 65 "
        "/LastChar "
        "66 /Widths [10 10] /Encoding << /Type /Encoding /Differences [65 /a /b] >> /CharProcs << /a 9 0 R "
        "/b 10 0 R "
        ">> /Resources << >> >>";
    const QByteArray pdf =
        page("1 0 0 rg BT /T 30 Tf 10 40 Td (AABA) Tj 0 0 1 rg (A) Tj ET", "/Font << /T 8 0 R >>",
             {type3, stream("10 0 0 0 8 8 d1 0 0 8 8 re 2 2 4 4 re f*"),
              stream("10 0 d0 0 1 0 rg 0 0 m 8 0 l 4 8 l f")});
    const MadeSvg made(pdf);
    QVERIFY(kit::difference(kit::drawn(pdf), made.picture()) < kTolerance);
    // Two colours of the one, one of the other.
    QCOMPARE(made.count("<g id="), 3);
    QCOMPARE(made.count("<use"), 5);
  }
};

NORVEX_TEST(SvgDrawingTest)
#include "svg_drawing_test.moc"
