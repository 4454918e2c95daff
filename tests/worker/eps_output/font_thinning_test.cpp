#include <QFile>

#include "kit/test_main.h"
#include "worker/eps_output/font_thinning.h"
#include "worker/kit/eps_kit.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

QByteArray number(quint32 value, int bytes) {
  QByteArray text;
  for (int i = bytes - 1; i >= 0; --i) text += char(value >> (8 * i));
  return text;
}

// An outline of 16 bytes with one contour, or one composed of `parts`.
QByteArray outline(char mark) {
  return number(1, 2) + QByteArray(14, mark);
}
QByteArray composed(const QList<int>& parts) {
  QByteArray text = number(0xffff, 2) + QByteArray(8, '\0');
  for (qsizetype i = 0; i < parts.size(); ++i)
    text += number(i + 1 < parts.size() ? 0x21 : 0x1, 2) + number(quint32(parts[i]), 2) + QByteArray(4, '\0');
  return text + QByteArray(text.size() % 2, '\0');
}

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

QByteArray trueType(const QList<QByteArray>& outlines) {
  QByteArray places;
  QByteArray glyf;
  for (const QByteArray& one : outlines) {
    places += number(quint32(glyf.size()), 4);
    glyf += one;
  }
  places += number(quint32(glyf.size()), 4);
  const QList<std::pair<QByteArray, QByteArray>> tables{
      {"glyf", glyf},
      {"head", QByteArray(50, '\0') + number(1, 2) + number(0, 2)},
      {"hhea", QByteArray(34, '\0') + number(quint32(outlines.size()), 2)},
      {"hmtx", QByteArray(4 * outlines.size(), '\7')},
      {"loca", places},
      {"maxp", number(0x10000, 4) + number(quint32(outlines.size()), 2)}};
  QByteArray font = number(0x10000, 4) + number(quint32(tables.size()), 2) + QByteArray(6, '\0');
  qsizetype offset = 12 + 16 * tables.size();
  for (const auto& [tag, bytes] : tables) {
    font += tag + number(0, 4) + number(quint32(offset), 4) + number(quint32(bytes.size()), 4);
    offset += bytes.size();
  }
  for (const auto& [tag, bytes] : tables) font += bytes;
  return font;
}

QByteArray indexOf(const QList<QByteArray>& items) {
  if (items.isEmpty()) return number(0, 2);
  QByteArray text = number(quint32(items.size()), 2) + number(2, 1);
  quint32 offset = 1;
  for (const QByteArray& item : items) {
    text += number(offset, 2);
    offset += quint32(item.size());
  }
  text += number(offset, 2);
  for (const QByteArray& item : items) text += item;
  return text;
}

// A CFF font whose dictionary has a number in each of the ways in which they are written before the one that
// counts.
QByteArray cff(const QList<QByteArray>& charstrings) {
  const QByteArray opening = QByteArray("\1\0\4\1", 4) + indexOf({"Name"});
  const auto fontIndex = [](qsizetype place) {
    return indexOf({QByteArray("\x1e\x12\x3f\x05\x8b\x01\xf7\x10\x02\xfb\x10\x03\x0c\x07", 14) + '\x1c' +
                    number(7, 2) + '\4' + '\x1d' + number(quint32(place), 4) + char(17)});
  };
  const QByteArray rest = indexOf({}) + indexOf({});
  const qsizetype place = opening.size() + fontIndex(0).size() + rest.size();
  return opening + fontIndex(place) + rest + indexOf(charstrings);
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
    QCOMPARE(tableOf(*thin, "loca"),
             number(0, 4) + number(16, 4) + number(16, 4) + number(16, 4) + number(32, 4));
    QCOMPARE(tableOf(*thin, "maxp"), number(0x10000, 4) + number(4, 2));
    QCOMPARE(tableOf(*thin, "hmtx").size(), 16);
    QCOMPARE(tableOf(*thin, "hhea").right(2), number(4, 2));
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

  void charstringsThatAreNotShownAreEmptied() {
    const auto thin = thinnedFont(cff({"none", "first", "second", "third"}), {2, 900});
    QVERIFY(thin);
    const QByteArray expected = indexOf({"none", "\x0e", "second", "\x0e"});
    QVERIFY(thin->contains(expected));
    QCOMPARE(thin->size(), cff({"none", "first", "second", "third"}).size());
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
