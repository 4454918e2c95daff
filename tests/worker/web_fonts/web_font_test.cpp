#include "worker/web_fonts/web_font.h"

#include <ft2build.h>
#include FT_BBOX_H
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include FT_SFNT_NAMES_H
#include FT_TRUETYPE_TABLES_H

#include <QList>
#include <QMap>
#include <QtEndian>

#include <cmath>

#include "kit/test_main.h"
#include "worker/web_fonts/sfnt_tables.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// A square of this size with its corner at the origin, and a bow on its right side.
GlyphOutline square(double size, double advance) {
  return {{{OutlineStep::Move, {QPointF(0, 0)}},
           {OutlineStep::Line, {QPointF(size, 0)}},
           {OutlineStep::Quadratic, {QPointF(size * 1.5, size / 2), QPointF(size, size)}},
           {OutlineStep::Line, {QPointF(0, size)}}},
          advance};
}

WebFont twoSquares(int unitsPerEm = 1000) {
  WebFont font;
  font.unitsPerEm = unitsPerEm;
  font.outlines = {square(200, 300), square(400, 1500)};
  font.shownBy = {{U'a', 1}, {U'Z', 0}, {char32_t(0x1F130), 1}};
  return font;
}

/// The font as FreeType reads it.
class ReadFont {
 public:
  explicit ReadFont(QByteArray bytes) : bytes_(std::move(bytes)) {
    FT_Init_FreeType(&library_);
    if (FT_New_Memory_Face(library_, reinterpret_cast<const FT_Byte*>(bytes_.constData()),
                           FT_Long(bytes_.size()), 0, &face_) != 0)
      face_ = nullptr;
  }
  ReadFont(const ReadFont&) = delete;
  ReadFont& operator=(const ReadFont&) = delete;
  ~ReadFont() {
    if (face_) FT_Done_Face(face_);
    FT_Done_FreeType(library_);
  }
  [[nodiscard]] FT_Face face() const { return face_; }
  [[nodiscard]] FT_BBox boxOf(char32_t character) const {
    FT_BBox box{};
    if (FT_Load_Char(face_, character, FT_LOAD_NO_SCALE) == 0)
      FT_Outline_Get_CBox(&face_->glyph->outline, &box);
    return box;
  }
  [[nodiscard]] int advanceOf(char32_t character) const {
    return FT_Load_Char(face_, character, FT_LOAD_NO_SCALE) == 0 ? int(face_->glyph->metrics.horiAdvance)
                                                                 : -1;
  }

 private:
  QByteArray bytes_;
  FT_Library library_ = nullptr;
  FT_Face face_ = nullptr;
};

/// The tables of a font file by their names.
QMap<QByteArray, QByteArray> tablesOf(const QByteArray& file) {
  QMap<QByteArray, QByteArray> tables;
  for (qsizetype entry = 12; entry < 12 + 16 * file[5]; entry += 16)
    tables[file.mid(entry, 4)] = file.mid(qFromBigEndian<quint32>(file.constData() + entry + 8),
                                          qFromBigEndian<quint32>(file.constData() + entry + 12));
  return tables;
}

quint32 numberAt(const QByteArray& bytes, qsizetype at) {
  return qFromBigEndian<quint32>(bytes.constData() + at);
}

}  // namespace

class WebFontTest : public QObject {
  Q_OBJECT
 private slots:
  void aCharacterShowsItsOutline() {
    for (const auto& file : {*openTypeFont(twoSquares()), *woffFont(twoSquares())}) {
      const ReadFont read(file);
      QVERIFY(read.face());
      const FT_BBox small = read.boxOf(U'Z'), large = read.boxOf(U'a'), far = read.boxOf(0x1F130);
      QCOMPARE(int(small.yMax), 200);
      QCOMPARE(int(large.yMax), 400);
      QCOMPARE(int(far.yMax), 400);
      QCOMPARE(read.advanceOf(U'Z'), 300);
      QCOMPARE(read.advanceOf(U'a'), 1500);
    }
  }

  void aCharacterThatWasNotGivenShowsNothing() {
    const ReadFont read(*openTypeFont(twoSquares()));
    QCOMPARE(FT_Get_Char_Index(read.face(), U'b'), 0U);
    FT_Load_Glyph(read.face(), 0, FT_LOAD_NO_SCALE);
    QCOMPARE(int(read.face()->glyph->outline.n_points), 0);
  }

  void theUnitsAreThoseOfTheOutlines() {
    for (const int units : {1000, 2048}) {
      const ReadFont read(*openTypeFont(twoSquares(units)));
      QVERIFY(read.face());
      QCOMPARE(int(read.face()->units_per_EM), units);
      FT_Set_Pixel_Sizes(read.face(), 0, FT_UInt(units));
      QCOMPARE(FT_Load_Char(read.face(), U'a', FT_LOAD_NO_HINTING), 0);
      FT_BBox box{};
      FT_Outline_Get_CBox(&read.face()->glyph->outline, &box);
      QCOMPARE(int(box.yMax / 64), 400);
    }
  }

  void aCurveOfTheSecondDegreeStaysTheSameCurve() {
    const ReadFont read(*openTypeFont(twoSquares()));
    FT_Set_Pixel_Sizes(read.face(), 0, 1000);
    QCOMPARE(FT_Load_Char(read.face(), U'a', FT_LOAD_NO_HINTING), 0);
    FT_BBox box{};
    FT_Outline_Get_BBox(&read.face()->glyph->outline, &box);
    QVERIFY(std::abs(double(box.xMax) / 64 - 500) < 1);  // half of the way to its control point
  }

  void manyLinesAndCurvesGoThroughOneOutline() {
    WebFont font;
    GlyphOutline saw{{{OutlineStep::Move, {QPointF(0, 0)}}}, 500};
    for (int i = 1; i <= 60; ++i) saw.steps.push_back({OutlineStep::Line, {QPointF(i * 100, i % 2 * 1200)}});
    for (int i = 60; i > 0; --i)
      saw.steps.push_back({OutlineStep::Cubic,
                           {QPointF(i * 100, -100), QPointF(i * 100, -200), QPointF(i * 100 - 100, -300)}});
    font.outlines = {saw};
    font.shownBy = {{U'a', 0}};
    const ReadFont read(*openTypeFont(font));
    QCOMPARE(FT_Load_Char(read.face(), U'a', FT_LOAD_NO_SCALE), 0);
    QCOMPARE(int(read.face()->glyph->outline.n_points), 61 + 3 * 60);
    const FT_BBox box = read.boxOf(U'a');
    QCOMPARE(int(box.xMax), 6000);
    QCOMPARE(int(box.yMin), -300);
  }

  // Each way of writing a number takes over where the one before it ends.
  void aStepOfAnyLengthArrivesWhereItShould() {
    for (const int length : {107, 108, 363, 364, 619, 620, 621, 875, 876, 1131, 1132, 16000})
      for (const int sign : {1, -1}) {
        WebFont font;
        font.outlines = {{{{OutlineStep::Move, {QPointF(0, 0)}},
                           {OutlineStep::Line, {QPointF(sign * length, 0)}},
                           {OutlineStep::Line, {QPointF(0, 50)}}},
                          500}};
        font.shownBy = {{U'a', 0}};
        const ReadFont read(*openTypeFont(font));
        const FT_BBox box = read.boxOf(U'a');
        QCOMPARE(int(sign > 0 ? box.xMax : box.xMin), sign * length);
      }
  }

  void anOutlineThatIsTooLargeMakesNoFont() {
    WebFont font = twoSquares();
    font.outlines[0] = square(50'000, 100);
    QVERIFY(!openTypeFont(font));
    QVERIFY(!woffFont(font));
  }

  void moreCharactersApartThanItsTableCountsMakeNoFont() {
    const auto apart = [](int count) {
      WebFont font = twoSquares();
      font.shownBy.clear();
      for (int i = 0; i < count; ++i) font.shownBy[char32_t(0x100 + 2 * i)] = size_t(i % 2);
      return font;
    };
    const ReadFont read(*openTypeFont(apart(8188)));
    QVERIFY(read.face());
    QCOMPARE(read.advanceOf(0x100 + 2 * 8187), 1500);
    QVERIFY(!openTypeFont(apart(8189)));
    QVERIFY(!woffFont(apart(8189)));
  }

  void moreOutlinesThanThereAreNamesMakeNoFont() {
    WebFont font;
    font.outlines.resize(64'610);
    for (size_t i = 0; i < font.outlines.size(); ++i) font.shownBy[char32_t(0xF0000 + i)] = i;
    QVERIFY(!openTypeFont(font));
    font.shownBy.erase(0xF0000);
    QVERIFY(openTypeFont(font));
  }

  void allTablesAreThereAndAsLongAsReadersExpect() {
    QMap<QByteArray, QByteArray> tables = tablesOf(*openTypeFont(twoSquares()));
    QCOMPARE(tables.keys(),
             (QList<QByteArray>{"CFF ", "OS/2", "cmap", "head", "hhea", "hmtx", "maxp", "name", "post"}));
    const QList<qsizetype> fixed{tables["OS/2"].size(), tables["head"].size(), tables["hhea"].size(),
                                 tables["hmtx"].size(), tables["maxp"].size(), tables["post"].size()};
    QCOMPARE(fixed, (QList<qsizetype>{96, 54, 36, 4 * 3, 6, 32}));
  }

  void itsBoxIsThatOfItsOutlines() {
    WebFont font;
    font.outlines = {{{{OutlineStep::Move, {QPointF(100, 50)}},
                       {OutlineStep::Quadratic, {QPointF(300, 60), QPointF(200.5, 250.5)}}},
                      400}};
    font.shownBy = {{U'a', 0}};
    const ReadFont read(*openTypeFont(font));
    const FT_BBox box = read.face()->bbox;
    QCOMPARE((QList<long>{box.xMin, box.yMin, box.xMax, box.yMax}), (QList<long>{100, 50, 300, 251}));
    QCOMPARE(int(read.face()->max_advance_width), 400);
    QCOMPARE(int(read.face()->ascender), font.ascent);
    QCOMPARE(int(read.face()->descender), -font.descent);
  }

  // Browsers refuse a font that says otherwise.
  void readersAreToldAPlainUprightFont() {
    const WebFont font = twoSquares();
    const ReadFont read(*openTypeFont(font));
    QCOMPARE(QByteArray(read.face()->family_name), QByteArray("Subset"));
    QCOMPARE(QByteArray(read.face()->style_name), QByteArray("Regular"));
    QCOMPARE(read.face()->style_flags, FT_Long(0));
    QCOMPARE(read.face()->underline_thickness, FT_Short(0));
    const auto* os2 = static_cast<TT_OS2*>(FT_Get_Sfnt_Table(read.face(), FT_SFNT_OS2));
    QVERIFY(os2);
    QCOMPARE(
        (QList<int>{os2->version, os2->xAvgCharWidth, os2->usWeightClass, os2->usWidthClass, os2->fsType}),
        (QList<int>{3, (300 + 1500) / 3, 400, 5, 0}));
    QCOMPARE((QList<int>{os2->fsSelection, os2->usFirstCharIndex, os2->usLastCharIndex}),
             (QList<int>{0x40, U'Z', 0xFFFF}));
    QCOMPARE((QList<int>{os2->sTypoAscender, os2->sTypoDescender, os2->sTypoLineGap, os2->usWinAscent,
                         os2->usWinDescent}),
             (QList<int>{font.ascent, -font.descent, 0, font.ascent, font.descent}));
    QCOMPARE((QList<int>{os2->usDefaultChar, os2->usBreakChar}), (QList<int>{0, 32}));
    const auto* head = static_cast<TT_Header*>(FT_Get_Sfnt_Table(read.face(), FT_SFNT_HEAD));
    QVERIFY(head);
    QCOMPARE((QList<long>{head->Table_Version, head->Magic_Number, head->Flags, head->Mac_Style,
                          head->Lowest_Rec_PPEM, head->Font_Direction, head->Glyph_Data_Format}),
             (QList<long>{0x10000, 0x5F0F3CF5, 3, 0, 3, 2, 0}));
    const auto* lines = static_cast<TT_HoriHeader*>(FT_Get_Sfnt_Table(read.face(), FT_SFNT_HHEA));
    QVERIFY(lines);
    QCOMPARE((QList<int>{lines->Line_Gap, lines->min_Left_Side_Bearing, lines->xMax_Extent,
                         lines->caret_Slope_Rise, lines->caret_Slope_Run, lines->number_Of_HMetrics}),
             (QList<int>{0, 0, 600, 1, 0, 3}));
  }

  void eachNameIsOfTheWholeFont() {
    const ReadFont read(*openTypeFont(twoSquares()));
    QStringList names;
    for (FT_UInt i = 0; i < FT_Get_Sfnt_Name_Count(read.face()); ++i) {
      FT_SfntName name{};
      QCOMPARE(FT_Get_Sfnt_Name(read.face(), i, &name), 0);
      QCOMPARE((QList<int>{name.platform_id, name.encoding_id, name.language_id}), (QList<int>{3, 1, 0x409}));
      QString text;
      for (FT_UInt c = 0; c < name.string_len; c += 2)
        text += QChar(name.string[c] << 8 | name.string[c + 1]);
      names << QString::number(name.name_id) + ' ' + text;
    }
    QCOMPARE(names,
             (QStringList{"1 Subset", "2 Regular", "3 Subset", "4 Subset", "5 Version 1", "6 Subset"}));
  }

  // A map of the first plane, and one of all where a character lies beyond it.
  void charactersAreFoundByHalving() {
    const QByteArray both = tablesOf(*openTypeFont(twoSquares()))["cmap"];
    QCOMPARE(both.left(4).toHex(), QByteArray("00000002"));
    // Three pieces, of which the last one ends the map.
    QCOMPARE(both.mid(20, 14).toHex(), QByteArray("0004002800000006000400010002"));
    WebFont first = twoSquares();
    first.shownBy.erase(char32_t(0x1F130));
    const QByteArray one = tablesOf(*openTypeFont(first))["cmap"];
    QCOMPARE(one.left(12).toHex(), QByteArray("00000001000300010000000c"));
    QCOMPARE(one.size(), 12 + 0x28);
    QCOMPARE(openTypeFont(first)->left(12).toHex(), QByteArray("4f54544f00090080000300"
                                                               "10"));
  }

  void theSumOfAFileIsWhatReadersCheck() { QCOMPARE(tableSum(*openTypeFont(twoSquares())), 0xB1B0AFBAU); }

  void aWoffTellsItsOwnLengthAndThatOfTheFontInIt() {
    const QByteArray woff = *woffFont(twoSquares());
    QCOMPARE(woff.left(8), QByteArray("wOFFOTTO"));
    QCOMPARE(qsizetype(numberAt(woff, 8)), woff.size());
    QCOMPARE(qsizetype(numberAt(woff, 16)), openTypeFont(twoSquares())->size());
  }

  void theSameOutlinesMakeTheSameBytes() { QCOMPARE(*woffFont(twoSquares()), *woffFont(twoSquares())); }
};

NORVEX_TEST(WebFontTest)
#include "web_font_test.moc"
