// Which glyphs of a PDF's fonts stay in the EPS that is made of it.
#include <QFile>

#include "kit/test_main.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;

namespace {

const QByteArray kDescriptor =
    "<< /Type /FontDescriptor /FontName /DejaVuSans /Flags 32 /FontBBox [-1021 -463 1793 1232] /ItalicAngle "
    "0 "
    "/Ascent 928 /Descent -236 /CapHeight 730 /StemV 80 /FontFile2 7 0 R >>";
const QByteArray kByCode =
    "<< /Type /Font /Subtype /TrueType /BaseFont /DejaVuSans /Encoding /WinAnsiEncoding /FontDescriptor 6 0 "
    "R "
    ">>";

QByteArray fileOf(const QByteArray& font) {
  return kit::stream(font, "/Length1 " + QByteArray::number(font.size()));
}

/// A page of 200 x 100 points with the font /A, object 5, of this file, object 7.
QByteArray page(const QByteArray& contents, const QByteArray& font, const QByteArray& file,
                const QByteArray& resources = {}, const QList<QByteArray>& more = {}) {
  return kit::onePage(contents,
                      "/MediaBox [0 0 200 100] /Resources << /Font << /A 5 0 R >> " + resources + " >>",
                      QList<QByteArray>{font, kDescriptor, fileOf(file)} + more);
}

/// By glyph numbers, through the map in object 8.
const QByteArray kByMap =
    "<< /Type /Font /Subtype /Type0 /BaseFont /DejaVuSans /Encoding /Identity-H /DescendantFonts [<< /Type "
    "/Font /Subtype /CIDFontType2 /BaseFont /DejaVuSans /CIDSystemInfo << /Registry (Adobe) /Ordering "
    "(Identity) /Supplement 0 >> /CIDToGIDMap 8 0 R /FontDescriptor 6 0 R /DW 600 >>] >>";

/// `count` numbers from `first` on, of two bytes each.
QByteArray mapFrom(int first, int count) {
  QByteArray map;
  for (int i = first; i < first + count; ++i) map += QByteArray(1, char(i >> 8)) + char(i);
  return map;
}

}  // namespace

class ShownGlyphsTest : public QObject {
  Q_OBJECT

  QByteArray dejaVu_;

 private slots:
  void init() {
    QFile file("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    if (!file.open(QIODevice::ReadOnly)) QSKIP("no DejaVu Sans");
    dejaVu_ = file.readAll();
  }

  /// Nothing can be told of its glyphs, and the page is handed on with what it has besides.
  void aFontThatIsNoneDoesNoHarm() {
    for (const QByteArray& file : {QByteArray("no font at all"), dejaVu_.left(200), dejaVu_.left(12)}) {
      kit::Converted converted(
          page("1 0 0 rg 100 20 60 60 re f BT /A 24 Tf 20 60 Td (ABC) Tj ET", kByCode, file));
      QVERIFY2(!converted.eps().isEmpty(), qPrintable(converted.error().message));
      QVERIFY(converted.eps().contains("100 20"));
    }
  }

  /// The generator writes a glyph for each entry of a map, whoever shows it.
  void aMapEndsWithTheLastCharacterThatIsShown() {
    const auto converted = [&](int entries) {
      return kit::Converted(page("BT /A 24 Tf 20 60 Td <004400450046> Tj ET", kByMap, dejaVu_, {},
                                 {kit::stream(mapFrom(0, entries))}))
          .eps();
    };
    const QByteArray exact = converted(0x47), longer = converted(0x10000);
    QVERIFY(!exact.isEmpty() && exact.size() < 100'000);
    QCOMPARE(longer.size(), exact.size());
  }

  void glyphsAreThoseThatTheMapLeadsTo() {
    const QByteArray pdf = page("BT /A 40 Tf 20 30 Td <000000010002> Tj ET", kByMap, dejaVu_, {},
                                {kit::stream(mapFrom(0x24, 3))});
    kit::Converted moved(pdf);
    const double away = kit::difference(moved.byGhostscript(), kit::drawn(pdf));
    QVERIFY2(away < 3, qPrintable(QString::number(away)));
    QVERIFY(kit::difference(kit::drawn(pdf), kit::drawn(page("", kByCode, dejaVu_))) > 6);
  }

  /// A pattern is looked into only where it may show text.
  void whatATilingPatternShowsStays() {
    const QByteArray text = "BT /A 40 Tf 2 10 Td (MMW) Tj ET";
    const QByteArray fonts = "/Resources << /Font << /A 5 0 R >> >>";
    const QByteArray pattern =
        "/PatternType 1 /PaintType 1 /TilingType 1 /BBox [0 0 100 50] /XStep 100 /YStep 50 ";
    const QByteArray form = kit::stream(text, "/Type /XObject /Subtype /Form /BBox [0 0 100 50] " + fonts);
    for (const QByteArray& tile :
         {kit::stream(text, pattern + fonts),
          kit::stream("/X Do", pattern + "/Resources << /XObject << /X 9 0 R >> >>")}) {
      const QByteArray pdf = page("/Pattern cs /P scn 0 0 200 100 re f BT /A 4 Tf (i) Tj ET", kByCode,
                                  dejaVu_, "/Pattern << /P 8 0 R >>", {tile, form});
      kit::Converted converted(pdf);
      const double away = kit::difference(converted.byGhostscript(), kit::drawn(pdf));
      QVERIFY2(away < 6, qPrintable(QString::number(away)));
      QVERIFY(converted.eps().size() < 300'000);
    }
  }
};

NORVEX_TEST(ShownGlyphsTest)
#include "shown_glyphs_test.moc"
