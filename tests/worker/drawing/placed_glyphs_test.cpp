#include "worker/drawing/placed_glyphs.h"

#include <QPointF>

#include <algorithm>
#include <cmath>

#include "kit/test_main.h"
#include "worker/drawing/bitmap.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/coloured_glyphs.h"
#include "worker/drawing/seams/pixel_edges.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// 40 by 40 pixels with a font of 12 units.
struct Sheet {
  Sheet()
      : surface(cairo_image_surface_create_for_data(reinterpret_cast<uchar*>(pixels.row(0)),
                                                    CAIRO_FORMAT_ARGB32, 40, 40, pixels.bytesPerRow())),
        context(cairo_create(surface.get())) {
    cairo_select_font_face(context.get(), "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(context.get(), 12);
  }

  [[nodiscard]] unsigned long glyph(const char* letter) const {
    cairo_glyph_t* glyphs = nullptr;
    int count = 0;
    cairo_scaled_font_text_to_glyphs(cairo_get_scaled_font(context.get()), 0, 0, letter, -1, &glyphs, &count,
                                     nullptr, nullptr, nullptr);
    const unsigned long found = count == 1 ? glyphs[0].index : 0;
    cairo_glyph_free(glyphs);
    return found;
  }

  /// The middle of what is painted.
  [[nodiscard]] QPointF middle() const {
    cairo_surface_flush(surface.get());
    double sum = 0, x = 0, y = 0;
    for (int row = 0; row < 40; ++row)
      for (int column = 0; column < 40; ++column) {
        const double covered = alpha(pixels.row(row)[column]);
        sum += covered, x += covered * (column + 0.5), y += covered * (row + 0.5);
      }
    return sum > 0 ? QPointF(x / sum, y / sum) : QPointF();
  }

  Bitmap pixels = Bitmap::create({40, 40}).value();
  CairoSurface surface;
  CairoContext context;
};

/// How far from where it belongs a letter stands, at most, over places within a pixel.
double farthest(bool asked) {
  QPointF first;
  double most = 0;
  for (const double step : {0.0, 0.2, 0.4, 0.6, 0.8}) {
    const Sheet sheet;
    if (asked) askForPixelEdges(sheet.context.get());
    const cairo_glyph_t placed{sheet.glyph("o"), 10 + step, 25 - step};
    showGlyphs(sheet.context.get(), &placed, 1);
    const QPointF middle = sheet.middle() - QPointF(step, -step);
    if (step == 0) first = middle;
    most = std::max({most, std::abs(middle.x() - first.x()), std::abs(middle.y() - first.y())});
  }
  return first.isNull() ? 40 : most;
}

class PlacedGlyphsTest : public QObject {
  Q_OBJECT
 private slots:
  void lettersStandWhereTheyBelong() {
    QVERIFY2(farthest(true) < 0.03, qPrintable(QString::number(farthest(true))));
  }

  void byCairoAloneTheyStandOnWholePixels() {
    // That the comparison above can fail at all.
    QVERIFY(farthest(false) > 0.3);
  }

  void lettersThatOverlapArePaintedOnce() {
    const Sheet sheet;
    const cairo_glyph_t twice[2]{{sheet.glyph("I"), 10, 25}, {sheet.glyph("I"), 10, 25}};
    cairo_set_source_rgba(sheet.context.get(), 0, 0, 0, 0.5);
    QVERIFY(paintGlyphsInPlace(sheet.context.get(), twice, 2));
    cairo_surface_flush(sheet.surface.get());
    int most = 0;
    for (int x = 0; x < 40; ++x) most = std::max(most, alpha(sheet.pixels.row(20)[x]));
    QVERIFY2(most > 60 && most <= 128, qPrintable(QString::number(most)));
  }

  void pathAndFillRuleAreAsBefore() {
    const Sheet sheet;
    cairo_set_fill_rule(sheet.context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    const cairo_glyph_t placed{sheet.glyph("o"), 10, 25};
    QVERIFY(paintGlyphsInPlace(sheet.context.get(), &placed, 1));
    QCOMPARE(cairo_get_fill_rule(sheet.context.get()), CAIRO_FILL_RULE_EVEN_ODD);
    QVERIFY(!cairo_has_current_point(sheet.context.get()));
  }

  void glyphsThatAProgramDrawsAreNotTaken() {
    const Sheet sheet;
    cairo_font_face_t* face = cairo_user_font_face_create();
    cairo_user_font_face_set_render_glyph_func(
        face, [](cairo_scaled_font_t*, unsigned long, cairo_t*, cairo_text_extents_t*) {
          return CAIRO_STATUS_SUCCESS;
        });
    cairo_set_font_face(sheet.context.get(), face);
    cairo_font_face_destroy(face);
    const cairo_glyph_t placed{1, 10, 25};
    QVERIFY(!paintGlyphsInPlace(sheet.context.get(), &placed, 1));
  }
};

}  // namespace

NORVEX_TEST(PlacedGlyphsTest)
#include "placed_glyphs_test.moc"
