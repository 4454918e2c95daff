#include "worker/web_fonts/web_font.h"

#include <ft2build.h>
#include FT_BBOX_H
#include FT_FREETYPE_H
#include FT_OUTLINE_H

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
