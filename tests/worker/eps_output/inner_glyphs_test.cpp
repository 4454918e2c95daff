// Fonts whose glyphs are drawings and show other glyphs, in the EPS that is made of a PDF.
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <set>
#include <string>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/eps_output/inner_glyphs.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using kit::Converted;
using kit::difference;
using kit::drawn;
using kit::onePage;

namespace {

const QByteArray kSquare = "0 1 0 rg 120 20 60 60 re f ";

// A page with the square and the text "A" in the font /F, object 5; more objects from 6.
QByteArray pageWithFont(const QByteArray& font, const QList<QByteArray>& more) {
  return onePage(kSquare + "1 0 0 rg BT /F 80 Tf 10 10 Td (A) Tj ET",
                 "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R >> >>",
                 QList<QByteArray>{font} + more);
}

// A font whose glyph "A" is object `glyph`. `resources`: entries, or another dictionary.
QByteArray type3(int glyph, const QByteArray& resources) {
  return "<< /Type /Font /Subtype /Type3 /FontBBox [0 0 9 9] /FontMatrix [.1 0 0 .1 0 0] /FirstChar 65 "
         "/LastChar 65 /Widths [10] /Encoding << /Differences [65 /A] >> /CharProcs << /A " +
         QByteArray::number(glyph) + " 0 R >> /Resources " +
         (resources.endsWith(" R") ? resources : "<< " + resources + " >>") + " >>";
}

// A red square, and more.
QByteArray glyphOf(const QByteArray& drawing) {
  return kit::stream("10 0 d0 1 0 0 rg 0 0 9 9 re f " + drawing);
}

QString tooManyOthers() {
  return QStringLiteral("glyphs that show too many others were left out");
}

}  // namespace

class InnerGlyphsTest : public QObject {
  Q_OBJECT
 private slots:
  void glyphsThatShowThemselvesAreLeftOutAndTold() {
    const auto font = [](int glyph, int inner) {
      return type3(glyph, "/Font << /F " + QByteArray::number(inner) + " 0 R >>");
    };
    const QByteArray glyph = glyphOf("BT /F 4 Tf (A) Tj ET");
    const QStringList told{"glyphs that show themselves were left out"};
    Converted alone(pageWithFont(font(6, 5), {glyph}));
    QCOMPARE(alone.report().warnings, told);
    QVERIFY(!alone.byGhostscript().isNull());
    Converted inTurns(pageWithFont(font(6, 7), {glyph, font(8, 5), glyph}));
    QCOMPARE(inTurns.report().warnings, told);
    QVERIFY(!inTurns.byGhostscript().isNull());
    Converted plain(pageWithFont(font(6, 7), {glyph, font(8, 9), glyph, "null"}));
    QCOMPARE(plain.report().warnings, QStringList());
  }

  /// Whatever a glyph draws with may show it again.
  void glyphsThatShowThemselvesThroughOthersAreLeftOutAndTold_data() {
    QTest::addColumn<QByteArray>("drawing");
    QTest::addColumn<QByteArray>("resources");
    QTest::addColumn<QByteArray>("other");
    const QByteArray fonts = "/Resources << /Font << /F 5 0 R >> >> ", show = "BT /F 10 Tf (A) Tj ET";
    QTest::newRow("a form") << QByteArray("/X Do") << QByteArray("/XObject << /X 7 0 R >>")
                            << kit::stream(show, "/Type /XObject /Subtype /Form /BBox [0 0 9 9] " + fonts);
    QTest::newRow("a form that takes the font of the glyph")
        << QByteArray("/X Do") << QByteArray("/XObject << /X 7 0 R >> /Font << /F 5 0 R >>")
        << kit::stream(show, "/Type /XObject /Subtype /Form /BBox [0 0 9 9]");
    QTest::newRow("a pattern")
        << QByteArray("/Pattern cs /X scn 0 0 9 9 re f") << QByteArray("/Pattern << /X 7 0 R >>")
        << kit::stream(
               show, "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 9 9] /XStep 9 /YStep 9 " + fonts);
    QTest::newRow("a graphics state")
        << QByteArray("BT /X gs (A) Tj ET") << QByteArray("/ExtGState << /X 7 0 R >>")
        << QByteArray("<< /Font [5 0 R 10] >>");
    QTest::newRow("a name in codes") << QByteArray("BT /#46 10 Tf (A) Tj ET")
                                     << QByteArray("/Font << /F 5 0 R >>") << QByteArray("null");
  }
  void glyphsThatShowThemselvesThroughOthersAreLeftOutAndTold() {
    QFETCH(QByteArray, drawing);
    QFETCH(QByteArray, resources);
    QFETCH(QByteArray, other);
    Converted converted(pageWithFont(type3(6, resources), {glyphOf(drawing), other}));
    QCOMPARE(converted.report().warnings, QStringList{"glyphs that show themselves were left out"});
    const QImage image = converted.byGhostscript();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixel(280, 100), qRgb(0, 255, 0));  // the square beside the letter
    QCOMPARE(image.pixel(30, 170), qRgb(255, 0, 0));   // and what the glyph draws itself
  }

  /// What strokes or clips to the outlines of other fonts leaves drawings as they are, and the letters behind
  /// them are stroked again.
  void glyphsArePaintedInEveryTextMode_data() {
    QTest::addColumn<int>("mode");
    for (const int mode : {0, 1, 2}) QTest::addRow("%d", mode) << mode;
  }
  void glyphsArePaintedInEveryTextMode() {
    QFETCH(int, mode);
    const QByteArray pdf = onePage("0 0 1 RG 1 0 0 rg BT " + QByteArray::number(mode) +
                                       " Tr /F 8 Tf 10 10 Td (A) Tj /H 80 Tf 100 0 Td (I) Tj ET",
                                   "/MediaBox [0 0 200 100] /Resources << /Font << /F 5 0 R /H 7 0 R >> >>",
                                   {type3(6, {}), kit::stream("10 0 0 0 9 9 d1 0 0 9 9 re f"),
                                    "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"});
    Converted converted(pdf);
    const QImage image = converted.byGhostscript();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixel(30, 170), qRgb(255, 0, 0));  // the glyph's middle
    QVERIFY2(difference(image, drawn(pdf)) < 1, qPrintable(QString::number(difference(image, drawn(pdf)))));
  }

  /// Generators hand one dictionary of resources to pages and fonts.
  void aFontThatCouldShowItselfAndDoesNotIsLeftAlone() {
    Converted converted(onePage(kSquare + "BT /F 8 Tf 10 10 Td (A) Tj ET",
                                "/MediaBox [0 0 200 100] /Resources 7 0 R",
                                {type3(6, "7 0 R"), glyphOf(""), "<< /Font << /F 5 0 R >> >>"}));
    QCOMPARE(converted.report().warnings, QStringList());
    const QImage image = converted.byGhostscript();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixel(30, 170), qRgb(255, 0, 0));
  }

  void theBytesOfAnImageAreNoNameInCodes() {
    const QByteArray image = "BI /W 2 /H 2 /CS /G /BPC 8 ID <#4A EI ";
    Converted converted(onePage(kSquare + "BT /F 8 Tf 10 10 Td (A) Tj ET",
                                "/MediaBox [0 0 200 100] /Resources 7 0 R",
                                {type3(6, "7 0 R"), glyphOf(image), "<< /Font << /F 5 0 R >> >>"}));
    QCOMPARE(converted.report().warnings, QStringList());
  }

  /// What reads a font reads all fonts of its resources: with hundreds that share one dictionary, each within
  /// each, memory ran out.
  void aFontHoldsNoFontsThatItsGlyphsDoNotUse() {
    const QByteArray pdf =
        onePage(kSquare + "BT /F 8 Tf 10 10 Td (A) Tj ET", "/MediaBox [0 0 200 100] /Resources 7 0 R",
                {type3(6, "7 0 R"), glyphOf("BT /G 4 Tf (A) Tj ET"),
                 "<< /Font << /F 5 0 R /G 8 0 R >> /ProcSet [/PDF] >>", type3(9, "7 0 R"), glyphOf("")});
    QPDF qpdf;
    qpdf.processMemoryFile("made", pdf.constData(), size_t(pdf.size()));
    QCOMPARE(engine::boundInnerGlyphs(qpdf), QStringList());
    const auto fontsOf = [&](int object) {
      return qpdf.getObjectByID(object, 0).getKey("/Resources").getKey("/Font").getKeys();
    };
    QCOMPARE(fontsOf(5), (std::set<std::string>{"/G"}));
    QCOMPARE(fontsOf(8), std::set<std::string>());
    QVERIFY(qpdf.getObjectByID(8, 0).getKey("/Resources").hasKey("/ProcSet"));
    QCOMPARE(qpdf.getObjectByID(7, 0).getKey("/Font").getKeys(), (std::set<std::string>{"/F", "/G"}));
  }

  /// The page shows the font as before; its glyphs have resources of their own then.
  void aFontThatShowsItselfIsStillShownByThePage() {
    Converted converted(
        onePage(kSquare + "BT /F 8 Tf 10 10 Td (A) Tj ET", "/MediaBox [0 0 200 100] /Resources 7 0 R",
                {type3(6, "7 0 R"), glyphOf("BT /F 4 Tf (A) Tj ET"), "<< /Font << /F 5 0 R >> >>"}));
    QCOMPARE(converted.report().warnings, QStringList{"glyphs that show themselves were left out"});
    const QImage image = converted.byGhostscript();
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixel(30, 170), qRgb(255, 0, 0));
  }

  /// Each level shows the next so many times: some levels, and nobody waits for the end.
  void glyphsThatShowTooManyOthersAreLeftOutAndTold() {
    const auto levels = [](int count, int times) {
      QList<QByteArray> objects;
      for (int i = 0; i < count; ++i) {
        const bool isLast = i == count - 1;
        objects << type3(6 + 2 * i,
                         isLast ? QByteArray() : "/Font << /F " + QByteArray::number(7 + 2 * i) + " 0 R >>")
                << glyphOf(isLast ? QByteArray() : "BT /F 10 Tf (" + QByteArray(times, 'A') + ") Tj ET");
      }
      return Converted(pageWithFont(objects.takeFirst(), objects)).report().warnings;
    };
    QCOMPARE(levels(3, 10), QStringList());
    QCOMPARE(levels(3, limits::maximumInnerGlyphs / 100), QStringList{tooManyOthers()});
    QCOMPARE(levels(8, 10), QStringList{tooManyOthers()});
    const QByteArray many(limits::maximumInnerGlyphs + 1, 'A');
    const QByteArray form =
        kit::stream("BT /F 10 Tf (" + many + ") Tj ET", "/Type /XObject /Subtype /Form /BBox [0 0 9 9]");
    Converted lent(pageWithFont(type3(6, "/XObject << /X 7 0 R >> /Font << /F 8 0 R >>"),
                                {glyphOf("/X Do"), form, type3(9, {}), glyphOf({})}));
    QCOMPARE(lent.report().warnings, QStringList{tooManyOthers()});
  }
};

NORVEX_TEST(InnerGlyphsTest)
#include "inner_glyphs_test.moc"
