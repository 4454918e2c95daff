// Paths, colours, groups, patterns, gradients and images of Illustrator's files, beside the PostScript that
// draws the same.
#include "worker/kit/illustrator_artwork.h"
#include "kit/test_main.h"
#include "worker/kit/drawn_eps.h"

using namespace norvex;
using kit::artwork;
using kit::drawnEps;
using kit::withBox;

namespace {

void row(const char* name, const QByteArray& body, const QByteArray& program, const QByteArray& setup = {}) {
  QTest::newRow(name) << artwork(body, setup) << withBox(program);
}

const QByteArray kSquare = "10 10 m 60 10 L 60 60 L 10 60 L 10 10 L ";
const QByteArray kSquarePath = "10 10 moveto 60 10 lineto 60 60 lineto 10 60 lineto closepath ";
const QByteArray kHole = "20 20 m 40 20 L 40 40 L 20 40 L 20 20 L ";
const QByteArray kHolePath = "20 20 moveto 40 20 lineto 40 40 lineto 20 40 lineto closepath ";

const QByteArray kGradients =
    "2 Bn\n%AI5_BeginGradient: (Plain)\n(Plain) 0 2 Bd\n[\n<FFFE>\n0 %_Br\n[\n0 0 50 100 %_BS\n%_0 0 50 100 "
    "Bs\n"
    "1 0 50 0 %_BS\nBD\n%AI5_EndGradient\n"
    "(Three) 0 3 Bd\n[\n0 1 1 0 1 50 100 %_Bs\n0 0 1 0 1 50 50 %_Bs\n1 0 0 0 1 50 0 %_Bs\nBD\n"
    "(Round) 1 2 Bd\n[\n0 0 0 1 1 0 0 2 50 100 %_Bs\n0 0 0 0 0 0 1 2 50 0 %_Bs\nBD\n";
const QByteArray kThree =
    "<< /ShadingType 2 /ColorSpace /DeviceCMYK /Coords [ %1 10 %2 10 ] /Extend [ true true ] /Function << "
    "/FunctionType 3 /Domain [ 0 1 ] /Bounds [ .5 ] /Encode [ 0 1 0 1 ] /Functions [ << /FunctionType 2 "
    "/Domain [ 0 1 ] "
    "/C0 [ 1 0 0 0 ] /C1 [ 0 0 1 0 ] /N 1 >> << /FunctionType 2 /Domain [ 0 1 ] /C0 [ 0 0 1 0 ] /C1 [ 0 1 1 "
    "0 ] /N 1 >> ] "
    ">> >> shfill ";

}  // namespace

class IllustratorArtworkTest : public QObject {
  Q_OBJECT
 private slots:
  void pathsArePaintedAsTheirOperatorsSay_data();
  void pathsArePaintedAsTheirOperatorsSay() { compare(); }
  void coloursAreThoseOfTheirOperators_data();
  void coloursAreThoseOfTheirOperators() { compare(); }
  void groupsAndLayersBoundWhatIsDrawn_data();
  void groupsAndLayersBoundWhatIsDrawn() { compare(); }
  void patternsAndGradientsFill_data();
  void patternsAndGradientsFill() { compare(); }
  void imagesAndPlacedFilesAreDrawn_data();
  void imagesAndPlacedFilesAreDrawn() { compare(); }

 private:
  void compare() {
    QFETCH(QByteArray, ai);
    QFETCH(QByteArray, program);
    const kit::DrawnEps drawn = drawnEps(ai), expected = drawnEps(program);
    QVERIFY2(drawn.error.isEmpty(), qPrintable(drawn.error));
    QCOMPARE(drawn.remarks, QStringList());
    QVERIFY2(expected.error.isEmpty(), qPrintable(expected.error));
    const int different = kit::differentPixels(drawn.image, expected.image, 6);
    QVERIFY2(different == 0, qPrintable(QStringLiteral("%1 pixels differ").arg(different)));
    QVERIFY(kit::paintedPixels(expected.image) > 50);
  }
  static void columns() {
    QTest::addColumn<QByteArray>("ai");
    QTest::addColumn<QByteArray>("program");
  }
};

void IllustratorArtworkTest::pathsArePaintedAsTheirOperatorsSay_data() {
  columns();
  row("f closes and fills", "0.5 g 10 10 m 60 10 l 60 60 L f",
      ".5 setgray 10 10 moveto 60 10 lineto 60 60 lineto fill");
  row("F fills", "0.2 g " + kSquare + "F", ".2 setgray " + kSquarePath + "fill");
  row("S strokes what is open", "1 G 0 G 4 w 10 10 m 60 10 L 60 60 L S",
      "4 setlinewidth 10 10 moveto 60 10 lineto 60 60 lineto stroke");
  row("s closes it", "0 G 4 w 10 10 m 60 10 L 60 60 L s",
      "4 setlinewidth 10 setmiterlimit 10 10 moveto 60 10 lineto 60 60 lineto closepath 4 setmiterlimit "
      "stroke");
  row("B fills and strokes", "0.5 g 0 G 4 w 10 10 m 60 10 L 60 60 L B",
      "10 10 moveto 60 10 lineto 60 60 lineto gsave .5 setgray fill grestore 4 setlinewidth stroke");
  row("b closes it, too", "0.5 g 0 G 4 w 4 M 10 10 m 60 10 L 60 60 L b",
      "10 10 moveto 60 10 lineto 60 60 lineto closepath gsave .5 setgray fill grestore 4 setlinewidth 4 "
      "setmiterlimit "
      "stroke");
  row("n and N paint nothing", "0 g " + kSquare + "n " + kSquare + "N 30 30 m 50 30 L 50 50 L f",
      "30 30 moveto 50 30 lineto 50 50 lineto fill");
  row("curves", "0 g 10 10 m 10 40 40 70 60 60 c 80 50 60 10 v 40 0 10 10 y f",
      "10 10 moveto 10 40 40 70 60 60 curveto 60 60 80 50 60 10 curveto 40 0 10 10 10 10 curveto fill");
  row("curves with smooth points", "0 g 10 10 m 10 40 40 70 60 60 C 80 50 60 10 V 40 0 10 10 Y f",
      "10 10 moveto 10 40 40 70 60 60 curveto 60 60 80 50 60 10 curveto 40 0 10 10 10 10 curveto fill");
  row("lines", "6 w 1 j 1 J [12 9]3 d 0 G 1 i 10 20 m 80 20 L 50 60 L S 2 j 2 J []0 d 20 70 m 60 70 L S",
      "6 setlinewidth 1 setlinejoin 1 setlinecap [12 9] 3 setdash 10 20 moveto 80 20 lineto 50 60 lineto "
      "stroke "
      "2 setlinejoin 2 setlinecap [ ] 0 setdash 20 70 moveto 60 70 lineto stroke");
  row("miter limit", "8 w 1.2 M 10 10 m 80 20 L 10 30 L S",
      "8 setlinewidth 1.2 setmiterlimit 10 10 moveto 80 20 lineto 10 30 lineto stroke");
  row("guides are not drawn", "0 g " + kSquare + "(N) * 30 30 m 50 30 L 50 50 L f",
      "30 30 moveto 50 30 lineto 50 50 lineto fill");
}

void IllustratorArtworkTest::coloursAreThoseOfTheirOperators_data() {
  columns();
  row("grey", "0.25 g 0.75 G 6 w " + kSquare + "b",
      kSquarePath + "gsave .25 setgray fill grestore .75 setgray 6 setlinewidth stroke");
  row("CMYK", "1 0.5 0 0.1 k 0 1 1 0 K 6 w " + kSquare + "b",
      kSquarePath + "gsave 1 .5 0 .1 setcmykcolor fill grestore 0 1 1 0 setcmykcolor 6 setlinewidth stroke");
  row("RGB", "0.9 0.5 0.1 Xa 0 0 1 XA 6 w " + kSquare + "b",
      kSquarePath + "gsave .9 .5 .1 setrgbcolor fill grestore 0 0 1 setrgbcolor 6 setlinewidth stroke");
  row("RGB behind CMYK", "0.1 0.5 0.9 0 0.9 0.5 0.1 Xa " + kSquare + "f",
      kSquarePath + ".9 .5 .1 setrgbcolor fill");
  const QByteArray spot =
      "[ /Separation (Warm) cvn /DeviceCMYK { dup 0 mul exch dup .8 mul exch dup .6 mul exch .2 mul } ] "
      "setcolorspace ";
  row("a spot colour", "0 0.8 0.6 0.2 (Warm) 0 x " + kSquare + "f",
      spot + "1 setcolor " + kSquarePath + "fill");
  row("its tint is what is told to be missing", "0 0.8 0.6 0.2 (Warm) 0.7 x " + kSquare + "f",
      spot + ".3 setcolor " + kSquarePath + "fill");
  row("stroked with two tints",
      "8 w 0 0.8 0.6 0.2 (Warm) 0 X " + kSquare + "s 0 0.8 0.6 0.2 (Warm) 0.5 X 75 10 m 75 60 L S",
      "8 setlinewidth 4 setmiterlimit " + spot + "1 setcolor " + kSquarePath +
          "stroke .5 setcolor 75 10 moveto 75 60 lineto stroke");
  row("of CMYK, newer", "0 0.8 0.6 0.2 (Warm) 0.7 0 Xx " + kSquare + "f",
      spot + ".3 setcolor " + kSquarePath + "fill");
  row("of RGB", "0.2 0.4 0.6 (Sea) 0.5 1 Xx " + kSquare + "f",
      ".6 .7 .8 setrgbcolor " + kSquarePath + "fill");
  row("stroked of RGB", "9 w 0 0 0 0 0.2 0.4 0.6 (Sea) 0 1 XX " + kSquare + "s",
      "9 setlinewidth 4 setmiterlimit .2 .4 .6 setrgbcolor " + kSquarePath + "stroke");
  row("a palette is not the artwork's",
      "0 0 Pb\nPn\nPc\n1 0 0 0 k\nPc\nBb\n2 (Plain) 0 0 0 0 1 0 0 1 0 0 Bg\n0 BB\nPc\nPB\n" + kSquare + "f",
      kSquarePath + "fill", kGradients);
  row("overprinting leaves colours as they are", "1 O 1 R 0 1 0 0 k 1 0 0 0 K 8 w " + kSquare + "b",
      kSquarePath + "gsave 0 1 0 0 setcmykcolor fill grestore 1 0 0 0 setcmykcolor 8 setlinewidth stroke");
}

void IllustratorArtworkTest::groupsAndLayersBoundWhatIsDrawn_data() {
  columns();
  row("a group", "u 0 g u " + kSquare + "f U U", kSquarePath + "fill");
  row("a compound path has holes", "0 g 1 XR *u " + kSquare + "f " + kHole + "f *U",
      kSquarePath + kHolePath + "eofill");
  row("with the other rule they fill", "0 g 0 XR *u " + kSquare + "f " + kHole + "f *U",
      kSquarePath + "fill");
  row("its strokes go round both", "0.7 g 0 G 3 w 1 XR *u " + kSquare + "b " + kHole + "b *U",
      "4 setmiterlimit " + kSquarePath + kHolePath +
          "gsave .7 setgray eofill grestore 3 setlinewidth stroke");
  row("clipping", "q " + kHole + "h W n 0 g " + kSquare + "f Q 70 10 m 90 10 L 90 30 L f",
      kHolePath + "fill 70 10 moveto 90 10 lineto 90 30 lineto fill");
  row("clipping to a compound path",
      "q 1 XR *u " + kSquare + "h W n " + kHole + "h W n *U 0.3 g 0 0 m 50 0 L 50 80 L 0 80 L f Q",
      ".3 setgray " + kSquarePath + kHolePath + "eoclip newpath 0 0 50 80 rectfill");
  row("hidden layers are not drawn",
      kSquare + "f LB 0 1 1 1 0 0 0 0 0 0 Lb (Hidden) Ln 0 0 m 99 0 L 99 80 L f", kSquarePath + "fill");
  row("nor those that are not printed",
      "LB 1 1 1 0 0 0 0 0 0 0 Lb 0 0 m 99 0 L 99 80 L f LB 1 1 1 1 0 0 0 0 0 0 Lb " + kSquare + "f",
      kSquarePath + "fill");
}

void IllustratorArtworkTest::patternsAndGradientsFill_data() {
  columns();
  const QByteArray tiles =
      "%AI3_BeginPattern: (Bars)\n(Bars) 0 0 10 10 [\n%AI3_Tile\n(0 O 0 R 1 0 0 0 k 1 0 0 0 K) @\n_ &\n"
      "(0 O 0 R 0 0 1 0 k) @\n(\n800 Ar 0 J 0 j 1 w\n0 D\n0 0 m 5 0 L 5 10 L 0 10 L f\n) &\n] "
      "E\n%AI3_EndPattern\n";
  row("a pattern", "(Bars) 0 0 1 1 0 0 0 0 0 [1 0 0 1 0 0] p 10 10 m 60 10 L 60 60 L 10 60 L f",
      "1 0 0 0 setcmykcolor 10 10 50 50 rectfill 0 0 1 0 setcmykcolor 10 10 59 { 10 5 50 rectfill } for",
      tiles);
  row("moved and enlarged", "(Bars) 5 0 2 1 0 0 0 0 0 [1 0 0 1 0 0] p 5 10 m 65 10 L 65 60 L 5 60 L f",
      "1 0 0 0 setcmykcolor 5 10 60 50 rectfill 0 0 1 0 setcmykcolor 5 20 60 { 10 10 50 rectfill } for",
      tiles);
  row("turned", "(Bars) 0 0 1 1 90 0 0 0 0 [1 0 0 1 0 0] p 10 10 m 60 10 L 60 60 L 10 60 L f",
      "1 0 0 0 setcmykcolor 10 10 50 50 rectfill 0 0 1 0 setcmykcolor 10 10 59 { 10 exch 50 5 rectfill } for",
      tiles);
  row("mirrored", "(Bars) 0 0 1 1 0 1 90 0 0 [1 0 0 1 0 0] p 10 10 m 60 10 L 60 60 L 10 60 L f",
      "1 0 0 0 setcmykcolor 10 10 50 50 rectfill 0 0 1 0 setcmykcolor 15 10 60 { 10 5 50 rectfill } for",
      tiles);
  row("under a matrix", "(Bars) 0 0 1 1 0 0 0 0 0 [1 0 0 1 5 0] p 10 10 m 60 10 L 60 60 L 10 60 L f",
      "1 0 0 0 setcmykcolor 10 10 50 50 rectfill 0 0 1 0 setcmykcolor 15 10 60 { 10 5 50 rectfill } for",
      tiles);
  row("stroked with", "10 w (Bars) 0 0 1 1 0 0 0 0 0 [1 0 0 1 0 0] P 10 20 m 60 20 L S",
      "1 0 0 0 setcmykcolor 10 15 50 10 rectfill 0 0 1 0 setcmykcolor 10 10 59 { 15 5 10 rectfill } for",
      tiles);
  const QByteArray clipped = kSquarePath + "clip newpath ";
  QByteArray three = kThree;
  three.replace("%1", "10").replace("%2", "60");
  row("a linear gradient", kSquare + "Bb 1 (Three) 10 35 0 50 1 0 0 1 0 0 Bg f 0 BB", clipped + three,
      kGradients);
  row("within its instance", "Bb 2 (Three) 10 35 0 50 1 0 0 1 0 0 Bg " + kSquare + "f 0 BB", clipped + three,
      kGradients);
  row("turned", kSquare + "Bb 1 (Three) 35 10 90 50 1 0 0 1 0 0 Bg f 0 BB",
      clipped + "10 10 translate 90 rotate -10 -10 translate " + three, kGradients);
  row("where its ramps are placed",
      kSquare +
          "Bb 1 (Three) 0 0 0 9 1 0 0 1 0 0 Bg 999 0 0 -50 -989 60 Bc 25 0 0 -50 10 60 Bm "
          "25 0 0 -50 35 60 Bm 999 0 0 -50 60 60 Bc f 0 BB",
      clipped + three, kGradients);
  row("moved by its matrix, whose y points down", kSquare + "Bb 1 (Three) 5 30 0 50 1 0 0 1 5 7 Bg f 0 BB",
      clipped + three, kGradients);
  row("grey, in a compound path",
      "1 XR *u " + kSquare + "Bb 1 (Plain) 10 0 0 50 1 0 0 1 0 0 Bg f 0 BB " + kHole + "f *U",
      kSquarePath + kHolePath +
          "eoclip newpath << /ShadingType 2 /ColorSpace /DeviceGray /Coords [ 10 0 60 0 ] /Function "
          "<< /FunctionType 2 /Domain [ 0 1 ] /C0 [ 1 ] /C1 [ 0 ] /N 1 >> >> shfill",
      kGradients);
  row("round", kSquare + "Bb 0 0 0 0 Bh 1 (Round) 35 35 0 20 1 0 0 1 0 0 Bg f 0 BB",
      clipped +
          "<< /ShadingType 3 /ColorSpace /DeviceRGB /Coords [ 35 35 0 35 35 20 ] /Extend [ true true ] "
          "/Function "
          "<< /FunctionType 2 /Domain [ 0 1 ] /C0 [ 0 0 1 ] /C1 [ 1 0 0 ] /N 1 >> >> shfill",
      kGradients);
  row("round with a highlight",
      kSquare + "Bb 5 6 0 0 Bh 1 (Round) 35 35 0 20 1 0 0 1 0 0 Bg 20 0 0 -20 35 35 Bm f 0 BB",
      clipped +
          "<< /ShadingType 3 /ColorSpace /DeviceRGB /Coords [ 40 41 0 35 35 20 ] /Extend [ true true ] "
          "/Function "
          "<< /FunctionType 2 /Domain [ 0 1 ] /C0 [ 0 0 1 ] /C1 [ 1 0 0 ] /N 1 >> >> shfill",
      kGradients);
  row("and stroked", "0 G 6 w " + kSquare + "Bb 1 (Three) 10 35 0 50 1 0 0 1 0 0 Bg f 2 BB",
      "gsave " + clipped + three + "grestore " + kSquarePath + "6 setlinewidth 4 setmiterlimit stroke",
      kGradients);
  row("of a spot colour's tints", kSquare + "Bb 1 (Tints) 10 35 0 50 1 0 0 1 0 0 Bg f 0 BB",
      clipped +
          "<< /ShadingType 2 /ColorSpace /DeviceCMYK /Coords [ 10 0 60 0 ] /Function << /FunctionType 2 "
          "/Domain [ 0 1 ] "
          "/C0 [ 0 .4 .2 0 ] /C1 [ 0 .8 .4 0 ] /N 1 >> >> shfill",
      "(Tints) 0 2 Bd [ 0 0.8 0.4 0 (Warm) 0 3 50 100 %_Bs\n0 0.8 0.4 0 (Warm) 0.5 3 50 0 %_Bs\nBD");
  row("of two spot colours and a process colour", kSquare + "Bb 1 (Mix) 10 35 0 50 1 0 0 1 0 0 Bg f 0 BB",
      clipped + three,
      "(Mix) 0 3 Bd [ 0 1 1 0 (Warm) 0 3 50 100 %_Bs\n0 0 1 0 (Sun) 0 3 50 50 %_Bs\n1 0 0 0 1 50 0 "
      "%_Bs\nBD");
  row("of two spot colours in RGB", kSquare + "Bb 1 (Sea) 10 35 0 50 1 0 0 1 0 0 Bg f 0 BB",
      clipped +
          "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [ 10 0 60 0 ] /Function << /FunctionType 2 "
          "/Domain [ 0 1 ] /C0 [ .6 1 1 ] /C1 [ 1 1 0 ] /N 1 >> >> shfill",
      "(Sea) 0 2 Bd [ 0 0 0 0 1 1 0 (Sun) 0 4 50 100 %_Bs\n0 0 0 0 0.2 1 1 (Sky) 0.5 4 50 0 %_Bs\nBD");
}

void IllustratorArtworkTest::imagesAndPlacedFilesAreDrawn_data() {
  columns();
  row("an RGB image in hexadecimal lines",
      "%AI5_File:\n%AI5_BeginRaster\n(a.tif) 1 XG\n[20 0 0 20 10 60] 2 2 0 Xh\n[20 0 0 20 10 60] 0 0 2 2 2 2 "
      "8 3 0 0 0 0\n"
      "%%BeginData: 30 Hex Bytes\nXI\n%FF000000FF\n%000000FF808080\n%%EndData\nXH\n%AI5_EndRaster\nN\n0 g 60 "
      "10 m 90 10 L 90 30 L f",
      "1 0 0 setrgbcolor 10 40 20 20 rectfill 0 1 0 setrgbcolor 30 40 20 20 rectfill 0 0 1 setrgbcolor 10 20 "
      "20 20 rectfill "
      ".502 dup dup setrgbcolor 30 20 20 20 rectfill 0 setgray 60 10 moveto 90 10 lineto 90 30 lineto fill");
  row("a grey one, wider than high",
      "[10 0 0 10 10 60] 0 0 4 2 2 4 8 1 0 0 0 0 XI\n%00408000\n%C0FF0080\nXH\nN",
      "[ 16#00 16#40 16#80 16#00 ] { 255 div setgray 10 50 10 10 rectfill 10 0 translate } forall -40 -10 "
      "translate "
      "[ 16#C0 16#FF 16#00 16#80 ] { 255 div setgray 10 50 10 10 rectfill 10 0 translate } forall");
  row("a CMYK one in binary",
      "[40 0 0 40 10 60] 0 0 1 1 1 1 8 4 0 0 1 0\n%%BeginData: 4 Binary Bytes\nXI\n" +
          QByteArray("\x00\xFF\x00\x00", 4) + "\n%%EndData\nXH\n",
      "0 1 0 0 setcmykcolor 10 20 40 40 rectfill");
  row("a mask takes the colour", "1 0 0 Xa [10 0 0 10 10 60] 0 0 4 1 1 4 1 1 0 0 0 1 XI\n%50\nXH\n",
      "1 0 0 setrgbcolor 10 50 10 10 rectfill 30 50 10 10 rectfill");
  row("a placed file",
      "[0.5 0 0 0.5 10 10] 0 0 100 100 (in.eps) `\n%%BeginDocument: in.eps\n%!PS-Adobe-3.0 EPSF-3.0\n"
      "/m { moveto } def 1 0 0 setrgbcolor 0 0 200 60 rectfill showpage\n%%EndDocument\n~\n0.5 g 70 10 m 90 "
      "10 L 90 30 L f",
      "1 0 0 setrgbcolor 10 10 50 30 rectfill .5 setgray 70 10 moveto 90 10 lineto 90 30 lineto fill");
}

NORVEX_TEST(IllustratorArtworkTest)
#include "illustrator_artwork_test.moc"
