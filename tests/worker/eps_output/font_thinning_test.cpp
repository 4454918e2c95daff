#include <sys/resource.h>

#include <QFile>

#include <algorithm>
#include <set>

#include "kit/forked_check.h"
#include "kit/test_main.h"
#include "worker/eps_output/font_thinning.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_font.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;
using kit::cff, kit::composed, kit::outline, kit::trueType;

namespace {

QByteArray tableOf(const QByteArray& font, const char* tag) {
  const int count = quint8(font[5]);
  for (int i = 0; i < count; ++i) {
    const QByteArray entry = font.mid(12 + 16 * i, 16);
    if (entry.startsWith(tag))
      return font.mid(entry.mid(8, 4).toHex().toInt(nullptr, 16),
                      entry.mid(12, 4).toHex().toInt(nullptr, 16));
  }
  return {};
}

/// The most memory that this process had so far, KiB.
qint64 peakMemory() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

const QList<QByteArray> kOutlines{outline('a'), outline('b'), composed({1, 4}),
                                  outline('d'), outline('e'), outline('f')};

}  // namespace

class FontThinningTest : public QObject {
  Q_OBJECT
 private slots:
  void outlinesThatAreNotShownAreEmptied() {
    const auto thin = thinnedFont(trueType(kOutlines), {3});
    QVERIFY(thin);
    QCOMPARE(tableOf(*thin, "glyf"), kOutlines[0] + kOutlines[3]);
    QCOMPARE(tableOf(*thin, "loca"), kit::bigEndian(0, 4) + kit::bigEndian(16, 4) + kit::bigEndian(16, 4) +
                                         kit::bigEndian(16, 4) + kit::bigEndian(32, 4));
    QCOMPARE(tableOf(*thin, "maxp"), kit::bigEndian(0x10000, 4) + kit::bigEndian(4, 2));
    QCOMPARE(tableOf(*thin, "hmtx").size(), 16);
    QCOMPARE(tableOf(*thin, "hhea").right(2), kit::bigEndian(4, 2));
  }

  void partsOfOutlinesStay() {
    const auto thin = thinnedFont(trueType(kOutlines), {2});
    QVERIFY(thin);
    const QByteArray glyf = tableOf(*thin, "glyf");
    for (const int glyph : {0, 1, 2, 4}) QVERIFY(glyf.contains(kOutlines[glyph]));
    for (const int glyph : {3, 5}) QVERIFY(!glyf.contains(kOutlines[glyph]));
  }

  void outlinesThatAreMadeOfThemselvesEnd() {
    QVERIFY(thinnedFont(trueType({outline('a'), composed({2}), composed({1, 70}), outline('d')}), {1}));
  }

  // Two thousand glyphs whose outlines are all the same megabyte.
  void outlinesThatLieOverEachOtherAreNotAddedUp() {
    QByteArray font =
        trueType(QList<QByteArray>(2000, QByteArray()) + QList<QByteArray>{QByteArray(1 << 20, 'a')});
    const qsizetype places = font.indexOf(tableOf(font, "loca"));
    for (int glyph = 1; glyph < 2001; glyph += 2)
      font.replace(places + 4 * glyph, 4, kit::bigEndian(1 << 20, 4));
    std::set<int> shown;
    for (int glyph = 0; glyph < 2000; ++glyph) shown.insert(glyph);
    const int megabytes = kit::inForkedChild([&] {
      const qint64 before = peakMemory();
      if (thinnedFont(font, shown)) return 255;
      return int(std::min<qint64>(254, (peakMemory() - before) >> 10));
    });
    QVERIFY2(megabytes >= 0 && megabytes < 100, qPrintable(QString::number(megabytes)));
  }

  void charstringsThatAreNotShownAreEmptied() {
    const auto thin = thinnedFont(cff({"none", "first", "second", "third"}), {2, 900});
    QVERIFY(thin);
    const QByteArray expected = kit::cffIndex({"none", "\x0e", "second", "\x0e"});
    QVERIFY(thin->contains(expected));
    QCOMPARE(thin->size(), cff({"none", "first", "second", "third"}).size());
  }

  // Bytes behind it may look like an operator.
  void theDictionaryEndsWhereItsListDoes() {
    const QList<QByteArray> glyphs{"none", "first", "second", "third"};
    QByteArray font = cff(glyphs);
    const qsizetype outlines = font.size() - kit::cffIndex(glyphs).size();
    font.insert(outlines, QByteArray("\x8b\x11").repeated(40));
    const QByteArray place = '\x1d' + kit::bigEndian(quint32(outlines), 4) + char(17);
    font.replace(place, '\x1d' + kit::bigEndian(quint32(outlines) + 80, 4) + char(17));
    const auto thin = thinnedFont(font, {2});
    QVERIFY(thin);
    QVERIFY(thin->contains(kit::cffIndex({"none", "\x0e", "second", "\x0e"})));
  }

  void nothingIsDoneWhereNothingIsSpared() {
    QVERIFY(!thinnedFont(trueType(kOutlines), {0, 1, 2, 3, 4, 5}));
    QVERIFY(!thinnedFont(cff({"none", "first"}), {1}));
    QVERIFY(!thinnedFont("no font", {}));
    QVERIFY(!thinnedFont({}, {}));
  }

  void damagedFontsAreHarmless() {
    quint32 seed = 4711;
    for (const QByteArray& font : {trueType(kOutlines), cff({"none", "first", "second", "third"}),
                                   QByteArray("OTTO") + trueType(kOutlines).mid(4).replace("glyf", "CFF ")}) {
      for (qsizetype length = 0; length < font.size(); ++length)
        if (const auto thin = thinnedFont(font.left(length), {1})) QCOMPARE(thin->size(), length);
      for (int i = 0; i < 5000; ++i) {
        QByteArray broken = font;
        for (int k = 0; k < 3; ++k) {
          seed = seed * 1664525u + 1013904223u;
          broken[qsizetype(seed >> 8) % broken.size()] = char(seed >> 24);
        }
        if (const auto thin = thinnedFont(broken, {1, 2})) QCOMPARE(thin->size(), broken.size());
      }
    }
  }

  // A whole font file of 750 KB, which would be written twice in hexadecimal digits, in a PDF that shows a
  // few of its characters, by code and by glyph number.
  void aPageHoldsTheOutlinesThatItShows() {
    QFile file("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    if (!file.open(QIODevice::ReadOnly)) QSKIP("no DejaVu Sans");
    const QByteArray data = file.readAll();
    const QByteArray descriptor =
        "<< /Type /FontDescriptor /FontName /DejaVuSans /Flags 32 /FontBBox [-1021 -463 1793 1232] "
        "/ItalicAngle 0 /Ascent 928 /Descent -236 /CapHeight 730 /StemV 80 /FontFile2 7 0 R >>";
    const QByteArray pdf =
        kit::onePage("BT /A 24 Tf 20 60 Td (ABC \xc4) Tj /B 24 Tf 0 -40 Td <004400450046> Tj ET",
                     "/MediaBox [0 0 200 100] /Resources << /Font << /A 5 0 R /B 8 0 R >> >>",
                     {"<< /Type /Font /Subtype /TrueType /BaseFont /DejaVuSans /Encoding /WinAnsiEncoding "
                      "/FontDescriptor 6 0 R >>",
                      descriptor, kit::stream(data, "/Length1 " + QByteArray::number(data.size())),
                      "<< /Type /Font /Subtype /Type0 /BaseFont /DejaVuSans /Encoding /Identity-H "
                      "/DescendantFonts [<< /Type /Font "
                      "/Subtype /CIDFontType2 /BaseFont /DejaVuSans /CIDSystemInfo << /Registry (Adobe) "
                      "/Ordering (Identity) "
                      "/Supplement 0 >> /CIDToGIDMap /Identity /FontDescriptor 6 0 R /DW 600 >>] >>"});
    kit::Converted converted(pdf);
    QVERIFY2(converted.eps().size() < 300000, qPrintable(QString::number(converted.eps().size())));
    const double away = kit::difference(converted.byGhostscript(), kit::drawn(pdf));
    QVERIFY2(away < 3, qPrintable(QString::number(away)));
  }
};

NORVEX_TEST(FontThinningTest)
#include "font_thinning_test.moc"
