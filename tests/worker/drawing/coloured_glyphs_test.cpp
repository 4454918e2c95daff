#include "worker/drawing/coloured_glyphs.h"

#include <memory>
#include <vector>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/seams/pixel_edges.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

constexpr unsigned long kOpen = 0, kRed = 1, kRedShape = 2;
constexpr unsigned long kFailing = 3, kFlat = 4;
constexpr unsigned long kRedRow = 5, kRedColumn = 6;  ///< shapes whose box is flat
constexpr unsigned long kRedBelow = 7;                ///< stands below the line, as commas do
int drawings = 0;
int drawingsInVain = 0;  ///< with a font that cannot be used

/// A square of half an em, in red or in whatever colour is chosen.
cairo_status_t drawGlyph(cairo_scaled_font_t* font, unsigned long glyph, cairo_t* context,
                         cairo_text_extents_t* extents) {
  ++drawings;
  if (cairo_scaled_font_status(font) != CAIRO_STATUS_SUCCESS) ++drawingsInVain;
  if (glyph == kFailing) return CAIRO_STATUS_USER_FONT_ERROR;
  if (glyph == kFlat) cairo_scale(context, 1, 0);
  if (glyph != kOpen) cairo_set_source_rgb(context, 1, 0, 0);
  cairo_rectangle(context, 0, glyph == kRedBelow ? 0.05 : -0.5, 0.5, 0.5);
  cairo_fill(context);
  extents->x_advance = 1;
  if (glyph == kRedShape) extents->y_bearing = -0.5, extents->width = extents->height = 0.5;
  if (glyph == kRedRow) extents->width = 0.5;
  if (glyph == kRedColumn) extents->height = 0.5;
  return CAIRO_STATUS_SUCCESS;
}

struct FaceRelease {
  void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
};
using Face = std::unique_ptr<cairo_font_face_t, FaceRelease>;

Face madeFace() {
  Face face(cairo_user_font_face_create());
  cairo_user_font_face_set_render_glyph_func(face.get(), drawGlyph);
  return face;
}

constexpr cairo_matrix_t kUpright{20, 0, 0, 20, 0, 0};

/// What the middle of a glyph in blue comes to.
Argb32 shown(const Face& face, unsigned long glyph, bool asked, double strength = 1,
             const cairo_matrix_t& size = kUpright) {
  Bitmap pixels = Bitmap::create({20, 20}).value();
  const CairoSurface surface(cairo_image_surface_create_for_data(
      reinterpret_cast<uchar*>(pixels.row(0)), CAIRO_FORMAT_ARGB32, 20, 20, pixels.bytesPerRow()));
  const CairoContext context(cairo_create(surface.get()));
  if (asked) askForPixelEdges(context.get());
  cairo_set_font_face(context.get(), face.get());
  cairo_set_font_matrix(context.get(), &size);
  cairo_set_source_rgba(context.get(), 0, 0, 1, strength);
  const cairo_glyph_t placed{glyph, 5, 15};
  showGlyphs(context.get(), &placed, 1);
  cairo_surface_flush(surface.get());
  return pixels.row(10)[10];
}

/// 80 pixels in a row for glyphs in blue that stand on 15.
class Line {
 public:
  Line(const Face& face, bool asked)
      : pixels_(Bitmap::create({80, 20}).value()),
        surface_(cairo_image_surface_create_for_data(reinterpret_cast<uchar*>(pixels_.row(0)),
                                                     CAIRO_FORMAT_ARGB32, 80, 20, pixels_.bytesPerRow())),
        context_(cairo_create(surface_.get())) {
    if (asked) askForPixelEdges(context_.get());
    cairo_set_font_face(context_.get(), face.get());
    cairo_set_source_rgb(context_.get(), 0, 0, 1);
  }

  void show(const cairo_glyph_t* glyphs, int count, const cairo_matrix_t& size = kUpright) {
    cairo_set_font_matrix(context_.get(), &size);
    showGlyphs(context_.get(), glyphs, count);
  }

  void show(unsigned long glyph, double x, const cairo_matrix_t& size = kUpright) {
    const cairo_glyph_t placed{glyph, x, 15};
    show(&placed, 1, size);
  }

  /// The middle of the glyph that stands at x.
  [[nodiscard]] Argb32 at(int x) {
    cairo_surface_flush(surface_.get());
    return pixels_.row(10)[x + 5];
  }

  [[nodiscard]] cairo_t* context() const { return context_.get(); }

 private:
  Bitmap pixels_;
  CairoSurface surface_;
  CairoContext context_;
};

int levelsLeft = 0;

/// A glyph that shows one of another face, as long as levels are left.
cairo_status_t drawGlyphWithin(cairo_scaled_font_t*, unsigned long, cairo_t* context,
                               cairo_text_extents_t* extents) {
  extents->x_advance = 1;
  const int before = levelsLeft;
  if (--levelsLeft > 0) {
    const Face next(cairo_user_font_face_create());
    cairo_user_font_face_set_render_glyph_func(next.get(), drawGlyphWithin);
    cairo_set_font_face(context, next.get());
    const cairo_glyph_t glyph{0, 0, 0};
    showGlyphs(context, &glyph, 1);
  }
  cairo_set_source_rgb(context, 1, 0, 0);
  cairo_rectangle(context, 0, -0.5, 0.5, 0.5);
  cairo_fill(context);
  levelsLeft = before;  // it may be drawn again
  return CAIRO_STATUS_SUCCESS;
}

/// Shows text of as many levels, the outermost among them.
void shownWithin(int count, bool asked) {
  levelsLeft = count;
  const Face face(cairo_user_font_face_create());
  cairo_user_font_face_set_render_glyph_func(face.get(), drawGlyphWithin);
  shown(face, 0, asked);
}

/// A glyph that shows so many others.
std::vector<cairo_glyph_t> innerGlyphs;
cairo_status_t drawOthers(cairo_scaled_font_t*, unsigned long, cairo_t* context,
                          cairo_text_extents_t* extents) {
  extents->x_advance = 1;
  const Face others = madeFace();
  cairo_set_font_face(context, others.get());
  showGlyphs(context, innerGlyphs.data(), int(innerGlyphs.size()));
  return CAIRO_STATUS_SUCCESS;
}

void shownWithOthers(int count, bool asked) {
  innerGlyphs.assign(size_t(count), {kOpen, 0, 0});
  const Face face(cairo_user_font_face_create());
  cairo_user_font_face_set_render_glyph_func(face.get(), drawOthers);
  shown(face, 0, asked);
}

}  // namespace

class ColouredGlyphsTest : public QObject {
  Q_OBJECT
 private slots:
  void aGlyphKeepsItsOwnColours() {
    const Face face = madeFace();
    QCOMPARE(shown(face, kRed, true), 0xFFFF0000u);
    QCOMPARE(shown(face, kRed, false), 0xFF0000FFu);  // what becomes of it otherwise
  }

  void soDoesOneThatStandsBelowTheLine() {
    const Face face = madeFace();
    const cairo_matrix_t raised{20, 0, 0, 20, 0, -8};
    QCOMPARE(shown(face, kRedBelow, true, 1, raised), 0xFFFF0000u);
  }

  void aGlyphWithoutColoursTakesTheChosenOne() {
    const Face face = madeFace();
    QCOMPARE(shown(face, kOpen, true), 0xFF0000FFu);
    QCOMPARE(shown(face, kOpen, false), 0xFF0000FFu);
  }

  /// PDF has an operator for it; who uses it and sets colours has set none.
  void aGlyphThatIsAShapeHasNoColours() {
    const Face face = madeFace();
    for (const unsigned long shape : {kRedShape, kRedRow, kRedColumn})
      QCOMPARE(shown(face, shape, true), 0xFF0000FFu);
  }

  /// Poppler's own glyphs end the process when they are drawn with the font that cairo gives then.
  void glyphsWithoutHeightAreNothingAndHarmNothing() {
    const Face face = madeFace();
    drawings = 0;
    for (const bool asked : {true, false}) {
      Line line(face, asked);
      line.show(kRed, 0, {20, 20, 20, 20, 0, 0});
      line.show(kOpen, 0, {20, 0, 0, 0, 0, 0});
      QCOMPARE(drawings, 0);
      line.show(kOpen, 20);
      QCOMPARE(line.at(20), 0xFF0000FFu);
      drawings = 0;
    }
  }

  void whatStandsAroundAGlyphThatFailsIsDrawn() {
    const Face face = madeFace();
    for (const unsigned long bad : {kFailing, kFlat}) {
      Line line(face, true);
      const cairo_glyph_t glyphs[] = {{kRed, 0, 15}, {bad, 20, 15}, {kOpen, 40, 15}, {kRedShape, 60, 15}};
      drawingsInVain = 0;
      line.show(glyphs, 4);
      QCOMPARE(drawingsInVain, 0);
      QCOMPARE(line.at(0), 0xFFFF0000u);
      QCOMPARE(line.at(20), 0u);
      QCOMPARE(line.at(40), 0xFF0000FFu);
      QCOMPARE(line.at(60), 0xFF0000FFu);
      QCOMPARE(cairo_status(line.context()), CAIRO_STATUS_SUCCESS);
    }
  }

  void aGlyphInColoursIsAsTranslucentAsItsText() {
    const Face face = madeFace();
    const Argb32 pixel = shown(face, kRed, true, 0.5);
    QCOMPARE(alpha(pixel), 128);
    QCOMPARE(red(pixel), 128);
    QCOMPARE(blue(pixel), 0);
  }

  void glyphsOfBothSortsStandInOneLine() {
    const Face face = madeFace();
    Bitmap pixels = Bitmap::create({100, 20}).value();
    const CairoSurface surface(cairo_image_surface_create_for_data(
        reinterpret_cast<uchar*>(pixels.row(0)), CAIRO_FORMAT_ARGB32, 100, 20, pixels.bytesPerRow()));
    const CairoContext context(cairo_create(surface.get()));
    askForPixelEdges(context.get());
    cairo_set_font_face(context.get(), face.get());
    cairo_set_font_size(context.get(), 20);
    cairo_set_source_rgb(context.get(), 0, 0, 1);
    const cairo_glyph_t line[]{
        {kOpen, 0, 15}, {kOpen, 20, 15}, {kRed, 40, 15}, {kOpen, 60, 15}, {kRed, 80, 15}};
    showGlyphs(context.get(), line, 5);
    cairo_surface_flush(surface.get());
    const Argb32 blue = 0xFF0000FFu, red = 0xFFFF0000u;
    const Argb32 expected[]{blue, blue, red, blue, red};
    for (int i = 0; i < 5; ++i) QCOMPARE(pixels.row(10)[20 * i + 5], expected[i]);
  }

  void glyphsWithinGlyphsAreShownToALevel() {
    QVERIFY(takeGlyphExcess() == GlyphExcess::None);
    for (const bool asked : {true, false}) {
      shownWithin(limits::maximumGlyphLevels, asked);
      QVERIFY(takeGlyphExcess() == GlyphExcess::None);
      shownWithin(limits::maximumGlyphLevels + 1, asked);
      QVERIFY(takeGlyphExcess() == GlyphExcess::Levels);
      QVERIFY(takeGlyphExcess() == GlyphExcess::None);
      shownWithin(1, asked);
      QVERIFY(takeGlyphExcess() == GlyphExcess::None);
    }
  }

  void glyphsWithinGlyphsAreShownUpToANumber() {
    for (const bool asked : {true, false}) {
      shownWithOthers(100, asked);
      QVERIFY(takeGlyphExcess() == GlyphExcess::None);
      shownWithOthers(limits::maximumInnerGlyphs + 1, asked);
      QVERIFY(takeGlyphExcess() == GlyphExcess::Number);
      shownWithOthers(100, asked);
      QVERIFY(takeGlyphExcess() == GlyphExcess::None);
    }
  }

  /// However they are spread over a page.
  void glyphsWithinGlyphsAreCountedForAWholeDrawing() {
    for (int i = 0; i < 4; ++i) shownWithOthers(limits::maximumInnerGlyphs / 2, true);
    QVERIFY(takeGlyphExcess() == GlyphExcess::Number);
  }

  void aMaskIsNotDrawnAgain() {
    const Face face = madeFace();
    shown(face, kOpen, true);
    const int before = drawings;
    shown(face, kOpen, true);
    QCOMPARE(drawings, before);
  }
};

NORVEX_TEST(ColouredGlyphsTest)
#include "coloured_glyphs_test.moc"
