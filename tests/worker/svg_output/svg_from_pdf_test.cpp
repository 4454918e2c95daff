#include <QBuffer>
#include <QRegularExpression>

#include "kit/test_main.h"
#include "worker/kit/made_font.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/svg_output_kit.h"
#include "worker/pages/pdf_engine.h"

using namespace norvex;
using namespace norvex::engine;
using kit::MadeSvg;
using kit::onePage;
using kit::stream;

namespace {

const QByteArray kFont = "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>";

QByteArray page(const QByteArray& contents, const QByteArray& resources = {},
                const QList<QByteArray>& more = {}) {
  return onePage(contents, "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R >> " + resources + " >>",
                 QList<QByteArray>{kFont} + more);
}

QByteArray jpegOf(const QImage& image) {
  QBuffer buffer;
  image.save(&buffer, "JPEG", 90);
  return buffer.data();
}

Result<EngineBytes> composed(const QByteArray& pdf, ComposeRequest request) {
  EngineContext context{};
  auto opened = openPdf(pdf, context);
  if (!opened) return opened.error();
  request.format = VectorFormat::Svg;
  return (*opened)->compose(request);
}

}  // namespace

class SvgFromPdfTest : public QObject {
  Q_OBJECT
 private slots:
  void itsSizeIsThePagesInPoints() {
    const MadeSvg made(onePage("0 0 9 9 re f", "/MediaBox [0 0 200.5 100.25]"));
    QVERIFY(made.svg().contains(" width=\"200.5pt\" height=\"100.25pt\" viewBox=\"0 0 200.5 100.25\""));
  }

  void whatIsFilledAndStrokedIsOneElement() {
    QCOMPARE(MadeSvg(page("1 0 0 rg 4 w 10 10 50 50 re B")).count("<path"), 1);
    QCOMPARE(MadeSvg(page("1 0 0 rg 4 w 10 10 50 50 re f 10 10 50 51 re S")).count("<path"), 2);
  }

  void linesOfOneKindAreOneElement() {
    QByteArray lines = "0 0 1 RG ";
    for (int i = 0; i < 50; ++i) lines += QByteArray::number(i) + " 0 m 10 90 l S ";
    QCOMPARE(MadeSvg(page(lines)).count("<path"), 1);
    QCOMPARE(MadeSvg(page("0 0 m 9 9 l S 1 0 0 RG 0 9 m 9 0 l S")).count("<path"), 2);
    // See-through lines are darker where they cross.
    QCOMPARE(MadeSvg(page("/H gs 0 0 m 9 9 l S 0 9 m 9 0 l S", "/ExtGState << /H << /CA 0.5 >> >>"))
                 .count("<path"),
             2);
  }

  void aClipThatHidesNothingIsLeftOut() {
    QCOMPARE(MadeSvg(page("0 0 200 100 re W n 10 10 20 20 re f")).count("clip-path"), 0);
    QVERIFY(MadeSvg(page("15 0 200 100 re W n 10 10 20 20 re f")).count("clip-path") > 0);
  }

  void whatLiesOutsideIsLeftOut() {
    const MadeSvg made(page("300 10 20 20 re f 0 0 50 50 re W n 60 60 20 20 re f"));
    QCOMPARE(made.count("<path"), 0);
  }

  void gradientsStayGradients() {
    const MadeSvg made(
        page("/A sh /R sh",
             "/Shading << /A << /ShadingType 2 /ColorSpace /DeviceRGB /Coords [0 0 200 0] /Function 6 0 R "
             ">> /R << /ShadingType 3 /ColorSpace /DeviceRGB /Coords [50 50 0 50 50 40] /Function 6 0 R "
             ">> >>",
             {"<< /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >>"}));
    QCOMPARE(made.count("<linearGradient"), 1);
    QCOMPARE(made.count("<radialGradient"), 1);
    QCOMPARE(made.count("<image"), 0);
    QCOMPARE(made.report().regionsRasterised, 0);
  }

  // Of two stops at the very end cairo keeps the inner one, and what Inkscape writes goes on for ever.
  void aGradientThatEndsHasTwoStopsAtNoEnd() {
    const auto gradient = [](const QByteArray& entries) {
      return page("/S sh",
                  "/Shading << /S << /ColorSpace /DeviceRGB /Function << /FunctionType 2 /Domain [0 1] /C0 "
                  "[1 0 0] /C1 [0 0 1] /N 1 >> " +
                      entries + " >> >>");
    };
    const MadeSvg both(gradient("/ShadingType 2 /Coords [50 0 150 0]"));
    QVERIFY2(both.svg().contains("x1=\"49\"") && both.svg().contains("x2=\"151\""), both.svg());
    QCOMPARE(both.count("<stop"), 4);
    QCOMPARE(both.count("offset=\"0\"") + both.count("offset=\"1\""), 0);
    const MadeSvg aslant(gradient("/ShadingType 2 /Coords [50 20 150 60]"));
    QVERIFY2(aslant.svg().contains("x1=\"49\" y1=\"80.4\" x2=\"151\" y2=\"39.6\""), aslant.svg());
    const MadeSvg one(gradient("/ShadingType 2 /Coords [50 0 150 0] /Extend [true false]"));
    QVERIFY2(one.svg().contains("x1=\"50\"") && one.svg().contains("x2=\"151\""), one.svg());
    QCOMPARE(one.count("offset=\"0\""), 1);
    const MadeSvg circles(gradient("/ShadingType 3 /Coords [80 50 0 100 50 40]"));
    QVERIFY2(circles.svg().contains("r=\"40.4\"") && circles.svg().contains("cx=\"100.2\""), circles.svg());
    QCOMPARE(circles.count("offset=\"1\""), 0);
    const MadeSvg endless(gradient("/ShadingType 2 /Coords [50 0 150 0] /Extend [true true]"));
    QCOMPARE(endless.count("offset=\"0\"") + endless.count("offset=\"1\""), 2);
  }

  // Some readers slow down under a matrix of the gradient's own.
  void aGradientHasAMatrixOnlyWhereItIsSeenToBeStretched() {
    const auto made = [](const QByteArray& matrix) {
      return MadeSvg(page(
          matrix + " cm /S sh",
          "/Shading << /S << /ShadingType 3 /ColorSpace /DeviceRGB /Coords [60 50 0 60 50 40] /Extend "
          "[true true] /Function << /FunctionType 2 /Domain [0 1] /C0 [1 0 0] /C1 [0 0 1] /N 1 >> >> >>"));
    };
    QCOMPARE(made("0.5 0.5 -0.5 0.5 40 0").count("gradientTransform"), 0);
    QCOMPARE(made("1 0 0 1.0001 0 0").count("gradientTransform"), 0);
    QCOMPARE(made("1 0 0 1.001 0 0").count("gradientTransform"), 1);
    const MadeSvg third(made("0.333333333 0 0 0.333333333 0 0"));
    QVERIFY2(third.svg().contains(" cx=\"20\" cy=\"83.33333\" r=\"13.33333\""), third.svg());
  }

  // What Inkscape writes as PDF shows neither mirrored patterns nor slanted clips in them.
  void aTurnedPatternIsNeitherMirroredNorClippedTwice() {
    const QByteArray cell = stream("1 0.5 0 rg 0 0 8 8 re f",
                                   "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 12 9] /XStep 12 "
                                   "/YStep 9 /Resources << >> /Matrix [0.8 0.6 -0.6 0.8 0 0]");
    const MadeSvg made(page("/Pattern cs /P scn 10 10 180 80 re f", "/Pattern << /P 6 0 R >>", {cell}));
    QVERIFY2(
        made.svg().contains("y=\"-9\" width=\"12\" height=\"9\" patternTransform=\"matrix(.8 -.6 .6 .8 "),
        made.svg());
    QCOMPARE(made.count("clip-path"), 0);
  }

  void cellsThatAbutAreAPatternWhereverTheirBoxStands() {
    const auto made = [](const QByteArray& box) {
      return MadeSvg(
          page("/Pattern cs /P scn 10 10 180 80 re f", "/Pattern << /P 6 0 R >>",
               {stream("1 0.5 0 rg 0 4 8 8 re f", "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [" + box +
                                                      "] /XStep 12 /YStep 9 /Resources << >>")}));
    };
    QCOMPARE(made("0 4 12 13").count("<pattern"), 1);
    QCOMPARE(made("3 0 15 9").count("<pattern"), 1);
    QCOMPARE(made("0 4 12 12").count("<pattern"), 0);  // they do not
  }

  void stopsOfASpotColourHaveTheColourThatStandsForIt() {
    const MadeSvg made(page("/A sh",
                            "/Shading << /A << /ShadingType 2 /Extend [true true] /ColorSpace [/Separation "
                            "/Gold /DeviceRGB 7 0 R] /Coords [0 0 200 "
                            "0] /Function 6 0 R >> >>",
                            {"<< /FunctionType 2 /Domain [0 1] /C0 [0] /C1 [1] /N 1 >>",
                             "<< /FunctionType 2 /Domain [0 1] /C0 [1 1 1] /C1 [1 0.8 0] /N 1 >>"}));
    QCOMPARE(made.count("<linearGradient"), 1);
    QCOMPARE(made.count("<stop"), 2);
    QVERIFY(
        made.svg().contains("<stop offset=\"0\" stop-color=\"#fff\"/><stop offset=\"1\" "
                            "stop-color=\"#fc0\"/>"));
    // The space of several inks, halfway between its stops another colour than a straight line has.
    const MadeSvg several(
        page("/A sh",
             "/Shading << /A << /ShadingType 2 /Extend [true true] /ColorSpace [/DeviceN [/Gold /Blue] "
             "/DeviceRGB 7 0 R] /Coords [0 0 "
             "200 0] /Function 6 0 R >> >>",
             {"<< /FunctionType 2 /Domain [0 1] /C0 [0 1] /C1 [1 0] /N 1 >>",
              stream("{ 2 copy mul 4 mul }", "/FunctionType 4 /Domain [0 1 0 1] /Range [0 1 0 1 0 1]")}));
    QVERIFY(several.count("<stop") > 3);
    QVERIFY(several.svg().contains("<stop offset=\"0\" stop-color=\"#0f0\"/>"));
    QVERIFY(several.svg().contains("<stop offset=\"1\" stop-color=\"#f00\"/>"));
  }

  void aMeshBecomesAnImageAndThatIsTold() {
    const QByteArray triangle("\0\0\0\xff\0\0\0\xff\0\0\xff\0\0\x80\xff\0\0\xff", 18);
    const MadeSvg made(
        page("/M sh", "/Shading << /M 6 0 R >>",
             {stream(triangle,
                     "/ShadingType 4 /ColorSpace /DeviceRGB /BitsPerCoordinate 8 /BitsPerComponent 8 "
                     "/BitsPerFlag 8 /Decode [0 200 0 100 0 1 0 1 0 1]")}));
    QCOMPARE(made.count("<image"), 1);
    QCOMPARE(made.report().regionsRasterised, 1);
    QVERIFY(made.report().rasterisedAreaShare > 0.2);
    QVERIFY(std::abs(made.report().rasterisedDpi - 150) < 1);
  }

  void anImageIsThereOnce() {
    const MadeSvg made(
        page("q 20 0 0 20 0 0 cm /I Do Q q 40 0 0 20 50 0 cm /I Do Q q 20 9 -9 20 100 0 cm /I Do Q",
             "/XObject << /I 6 0 R >>",
             {stream("\xff\x10\x10\x10\xff\x10",
                     "/Type /XObject /Subtype /Image /Width 2 /Height 1 /BitsPerComponent 8 /ColorSpace "
                     "/DeviceRGB")}));
    QCOMPARE(made.count("data:image/png;base64,"), 1);
    QCOMPARE(made.count("<use"), 3);
  }

  void aJpegStaysTheOriginal() {
    QImage image(32, 16, QImage::Format_RGB32);
    for (int y = 0; y < 16; ++y)
      for (int x = 0; x < 32; ++x) image.setPixel(x, y, qRgb(x * 8, y * 16, 99));
    const QByteArray jpeg = jpegOf(image);
    QVERIFY(!jpeg.isEmpty());
    const QByteArray entries =
        "/Type /XObject /Subtype /Image /Width 32 /Height 16 /BitsPerComponent 8 /Filter /DCTDecode ";
    const auto made = [&](const QByteArray& more) {
      return MadeSvg(
          page("q 64 0 0 32 0 0 cm /I Do Q", "/XObject << /I 6 0 R >>", {stream(jpeg, entries + more)}));
    };
    const MadeSvg plain = made("/ColorSpace /DeviceRGB");
    QCOMPARE(plain.count("data:image/jpeg;base64,"), 1);
    const qsizetype from = plain.svg().indexOf("base64,") + 7;
    const QByteArray held =
        QByteArray::fromBase64(plain.svg().mid(from, plain.svg().indexOf('"', from) - from));
    QCOMPARE(QImage::fromData(held), QImage::fromData(jpeg));
    // Its samples mean something else here: a reader of the file alone would show other colours.
    QCOMPARE(made("/ColorSpace /DeviceRGB /Decode [1 0 1 0 1 0]").count("data:image/jpeg"), 0);
  }

  void aCharacterIsThereOnce() {
    const MadeSvg made(page("BT /F 20 Tf 10 50 Td (AAAA) Tj /F 12 Tf 0 -30 Td (AA) Tj ET"));
    QCOMPARE(made.count("<path"), 1);
    QCOMPARE(made.count("<use"), 6);
  }

  /// A subset of a large font keeps the numbers of its characters, whichever glyph each is in the file.
  void aGlyphIsFoundByTheNumberOfItsCharacter() {
    const QByteArray pdf = onePage(
        "BT /F 50 Tf 20 20 Td <012C> Tj ET", "/MediaBox [0 0 100 100] /Resources << /Font << /F 5 0 R >> >>",
        {"<< /Type /Font /Subtype /Type0 /BaseFont /Name /Encoding /Identity-H /DescendantFonts [6 0 R] >>",
         "<< /Type /Font /Subtype /CIDFontType0 /BaseFont /Name /DW 1000 /CIDSystemInfo << /Registry "
         "(Adobe) /Ordering (Identity) /Supplement 0 >> /FontDescriptor 7 0 R >>",
         "<< /Type /FontDescriptor /FontName /Name /Flags 4 /FontBBox [0 0 1000 1000] /ItalicAngle 0 "
         "/Ascent 800 /Descent 0 /CapHeight 800 /StemV 80 /FontFile3 8 0 R >>",
         kit::stream(kit::squareOfCharacter(0x12C), "/Subtype /CIDFontType0C")});
    const QImage shown = MadeSvg(pdf).picture();
    QVERIFY(!shown.isNull());
    QCOMPARE(shown.pixel(80, 120), qRgb(0, 0, 0));         // the middle of the square
    QCOMPARE(shown.pixel(130, 120), qRgb(255, 255, 255));  // and beside it
  }

  void titleDescriptionAndOwnerAreCarriedOver() {
    PdfAttributes attributes;
    attributes.texts = {{"Title", "A & B"},   {"Subject", "What it shows"}, {"Author", "Ann"},
                        {"Creator", "Pen 2"}, {"CreationDate", "today"},    {"Copyright", "hers"}};
    const QByteArray svg = MadeSvg(page("0 0 9 9 re f"), attributes).svg();
    QVERIFY(svg.contains("<title>A &amp; B</title>"));
    QVERIFY(svg.contains("<desc>What it shows</desc>"));
    QVERIFY(svg.contains("<dc:creator>Ann</dc:creator>"));
    QVERIFY(svg.contains("<xmp:CreatorTool>Pen 2</xmp:CreatorTool>"));
    QVERIFY(svg.contains("<dc:date>today</dc:date>"));
    QVERIFY(svg.contains("<dc:rights>hers</dc:rights>"));
  }

  void nothingThatADocumentSaysBecomesStructure() {
    PdfAttributes attributes;
    for (const char* key : {"Title", "Subject", "Author", "Creator"})
      attributes.texts.insert(key, QString("</title><script>alert(1)</script>]]>&lol;\"'\x01\u0085") +
                                       QChar(0xfffe) + QChar(0xd800));
    const MadeSvg made(page("0 0 9 9 re f"), attributes);
    QCOMPARE(made.count("<script"), 0);
    QCOMPARE(made.count("</title>"), 1);
    QVERIFY(!made.picture().isNull());
  }

  void nothingIsReferredToOutside() {
    const MadeSvg made(page("BT /F 20 Tf 10 50 Td (A) Tj ET q 20 0 0 20 0 0 cm /I Do Q",
                            "/XObject << /I 6 0 R >>",
                            {stream("\xff\x10\x10",
                                    "/Type /XObject /Subtype /Image /Width 1 /Height 1 /BitsPerComponent 8 "
                                    "/ColorSpace /DeviceRGB")}));
    static const QRegularExpression reference("href=\"(?!#|data:image/(png|jpeg);base64,)");
    QVERIFY(!reference.match(QString::fromUtf8(made.svg())).hasMatch());
    QVERIFY(made.svg().contains("href=\"#"));
  }

  void aCutHoldsWhatLiesInIt() {
    ComposeRequest request;
    request.rect = QRectF(-100, -50, 100, 100);  // the left half
    const auto cut = composed(page("1 0 0 rg 10 10 20 20 re f 0 0 1 rg 150 10 20 20 re f"), request);
    QVERIFY(cut);
    QVERIFY(cut->bytes.contains("viewBox=\"0 0 100 100\""));
    QVERIFY(cut->bytes.contains("#f00"));
    QVERIFY(!cut->bytes.contains("#00f"));
  }

  void aTurnedPageIsTurned() {
    ComposeRequest request;
    request.rect = QRectF(-50, -100, 100, 200);
    request.rotate = std::acos(-1.0) / 2;
    const auto turned = composed(page("1 0 0 rg 0 0 20 10 re f"), request);
    QVERIFY(turned);
    // A quarter to the left: what was at the lower left is at the lower right.
    QVERIFY2(turned->bytes.contains("d=\"M100 200v-20h-10v20z\"") || turned->bytes.contains("M100 200"),
             turned->bytes);
  }

  void morePathsThanAreGrantedAreALimit() {
    EngineContext context{};
    context.limits.memoryMiB = 1;
    QByteArray paths;
    for (int i = 0; i < 20000; ++i)
      paths += QByteArray::number(i % 199) + " 0 m 100 " + QByteArray::number(i % 97) + " l 3 7 l f ";
    const MadeSvg made(page(paths), {}, context);
    QVERIFY(made.error());
    QCOMPARE(made.error()->kind, ErrorKind::Limit);
  }

  void clipsWithinClipsAreALimit() {
    QByteArray clips;
    for (int i = 0; i < 400; ++i)
      clips += "0 0 m 200 0 l 100 " + QByteArray::number(100 - i * 0.1) + " l W n ";
    const MadeSvg made(page(clips + "0 0 200 100 re f"));
    QVERIFY(made.error());
    QCOMPARE(made.error()->kind, ErrorKind::Limit);
  }

  void cancelledWorkEnds() {
    EngineContext context{};
    context.cancel.cancel();
    const MadeSvg made(page("0 0 9 9 re f"), {}, context);
    QVERIFY(made.error());
    QCOMPARE(made.error()->kind, ErrorKind::Cancelled);
  }
};

NORVEX_TEST(SvgFromPdfTest)
#include "svg_from_pdf_test.moc"
