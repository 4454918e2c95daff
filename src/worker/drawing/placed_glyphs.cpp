#include "worker/drawing/placed_glyphs.h"

namespace norvex::engine {

bool paintGlyphsInPlace(cairo_t* context, const cairo_glyph_t* glyphs, int count) {
  if (cairo_scaled_font_get_type(cairo_get_scaled_font(context)) != CAIRO_FONT_TYPE_FT) return false;
  const cairo_fill_rule_t before = cairo_get_fill_rule(context);
  cairo_new_path(context);
  cairo_glyph_path(context, glyphs, count);
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_WINDING);
  cairo_fill_preserve(context);  // cairo_fill() is for areas, which may be moved to the end of a clip
  cairo_new_path(context);
  cairo_set_fill_rule(context, before);
  return true;
}

}  // namespace norvex::engine
