#include "worker/drawing/coloured_glyphs.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "protocol/limits.h"
#include "worker/drawing/bitmap.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/placed_glyphs.h"
#include "worker/drawing/seams/pixel_edges.h"

namespace norvex::engine {
namespace {

thread_local int levels = 0;  ///< of glyphs that are being shown
thread_local int innerGlyphs = 0;
thread_local GlyphExcess excess = GlyphExcess::None;

/// One level, for as long as it lives.
class Level {
 public:
  Level() { ++levels; }
  Level(const Level&) = delete;
  Level& operator=(const Level&) = delete;
  ~Level() { --levels; }
};

using Drawing = cairo_user_scaled_font_render_glyph_func_t;

/// Failing: nothing of it can be shown. Cairo would take the font as broken, and the whole context with it.
enum class Sort { Mask, Coloured, Failing };

const cairo_user_data_key_t kKnown{};
/// By the glyph's number in its face.
using Known = QHash<unsigned long, Sort>;

Known& knownOf(cairo_font_face_t* face) {
  if (void* known = cairo_font_face_get_user_data(face, &kKnown)) return *static_cast<Known*>(known);
  auto* made = new Known;
  cairo_font_face_set_user_data(face, &kKnown, made, [](void* known) { delete static_cast<Known*>(known); });
  return *made;
}

/// An em without height or width: there is nothing to be seen, and cairo would take the context as broken.
bool isFlat(cairo_t* context) {
  cairo_matrix_t em, user;
  cairo_get_font_matrix(context, &em);
  cairo_get_matrix(context, &user);
  cairo_matrix_multiply(&em, &em, &user);
  return cairo_matrix_invert(&em) != CAIRO_STATUS_SUCCESS;
}

/// A glyph could not be drawn as a mask. Cairo draws nothing with it any more, and what draws glyphs would
/// look in vain for the face of which they are.
bool isUnusable(cairo_scaled_font_t* font) {
  return cairo_scaled_font_status(font) != CAIRO_STATUS_SUCCESS;
}

/// Draws a glyph at the origin, an em a unit of `context`, y down. Gives what it tells of its size, or
/// nothing if it failed.
std::optional<cairo_text_extents_t> draw(Drawing drawing, cairo_scaled_font_t* font, unsigned long glyph,
                                         cairo_t* context) {
  cairo_text_extents_t extents{};
  cairo_save(context);
  const cairo_status_t status = drawing(font, glyph, context, &extents);
  cairo_restore(context);
  if (status != CAIRO_STATUS_SUCCESS || cairo_status(context) != CAIRO_STATUS_SUCCESS) return std::nullopt;
  return extents;
}

/// Coloured if something of it, drawn around its em, is in another colour than what was chosen for it. One of
/// a PDF that tells its box (d1 in place of d0) is a shape by that, whatever colours it names.
Sort sortOf(Drawing drawing, cairo_scaled_font_t* font, unsigned long glyph) {
  constexpr int kSide = 32;
  Result<Bitmap> pixels = Bitmap::create({kSide, kSide});
  if (!pixels) return Sort::Mask;
  std::optional<cairo_text_extents_t> told;
  {
    const CairoSurface surface(cairo_image_surface_create_for_data(
        reinterpret_cast<uchar*>(pixels->row(0)), CAIRO_FORMAT_ARGB32, kSide, kSide, pixels->bytesPerRow()));
    const CairoContext context(cairo_create(surface.get()));
    cairo_set_source_rgb(context.get(), 0, 0, 0);
    cairo_translate(context.get(), kSide / 4.0, kSide * 3 / 4.0);
    cairo_scale(context.get(), kSide / 2.0, kSide / 2.0);
    told = draw(drawing, font, glyph, context.get());
    cairo_surface_finish(surface.get());  // who drew it may keep the context
  }
  if (!told) return Sort::Failing;
  if (told->width != 0 || told->height != 0) return Sort::Mask;
  const std::span<const Argb32> all(pixels->row(0), size_t(kSide) * kSide);
  const auto isInColour = [](Argb32 pixel) { return (pixel & 0xffffff) != 0; };
  return std::any_of(all.begin(), all.end(), isInColour) ? Sort::Coloured : Sort::Mask;
}

/// Draws a glyph in its own colours, as strong as the text's colour is.
void drawInColours(Drawing drawing, cairo_scaled_font_t* font, const cairo_glyph_t& glyph, cairo_t* context) {
  double strength = 1;
  cairo_pattern_get_rgba(cairo_get_source(context), nullptr, nullptr, nullptr, &strength);
  cairo_matrix_t em;
  cairo_get_font_matrix(context, &em);
  cairo_save(context);
  if (strength < 1) cairo_push_group(context);
  cairo_translate(context, glyph.x, glyph.y);
  cairo_transform(context, &em);
  draw(drawing, font, glyph.index, context);
  if (strength < 1) {
    cairo_pop_group_to_source(context);
    cairo_paint_with_alpha(context, strength);
  }
  cairo_restore(context);
}

void showMasks(cairo_t* context, const cairo_glyph_t* glyphs, int count) {
  if (count <= 0 || (arePixelEdgesAskedFor(context) && paintGlyphsInPlace(context, glyphs, count))) return;
  cairo_show_text_glyphs(context, nullptr, 0, glyphs, count, nullptr, 0, {});
}

}  // namespace

GlyphExcess takeGlyphExcess() {
  innerGlyphs = 0;
  return std::exchange(excess, GlyphExcess::None);
}

void showGlyphs(cairo_t* context, const cairo_glyph_t* glyphs, int count) {
  if (levels == limits::maximumGlyphLevels) excess = GlyphExcess::Levels;
  if (levels > 0 && count > limits::maximumInnerGlyphs - innerGlyphs) excess = GlyphExcess::Number;
  if (excess != GlyphExcess::None) return;  // the drawing is given up: what is left of it has an end, too
  if (isFlat(context)) return;
  if (levels > 0) innerGlyphs += std::max(count, 0);
  const Level level;
  cairo_font_face_t* face = cairo_get_font_face(context);
  const bool isDrawn =
      arePixelEdgesAskedFor(context) && cairo_font_face_get_type(face) == CAIRO_FONT_TYPE_USER;
  const Drawing drawing = isDrawn ? cairo_user_font_face_get_render_glyph_func(face) : nullptr;
  if (!drawing) return showMasks(context, glyphs, count);
  cairo_scaled_font_t* font = cairo_get_scaled_font(context);
  Known& known = knownOf(face);
  // Masks that follow one another are handed on together, as they came.
  int masks = 0;
  for (int i = 0; i < count; ++i) {
    const cairo_glyph_t& glyph = glyphs[i];
    if (isUnusable(font)) return;
    if (!known.contains(glyph.index)) known.insert(glyph.index, sortOf(drawing, font, glyph.index));
    const Sort sort = known.value(glyph.index);
    if (sort == Sort::Mask) {
      ++masks;
      continue;
    }
    showMasks(context, glyphs + i - masks, masks);
    masks = 0;
    if (isUnusable(font)) return;  // a mask has failed
    if (sort == Sort::Coloured) drawInColours(drawing, font, glyph, context);
  }
  showMasks(context, glyphs + count - masks, masks);
}

}  // namespace norvex::engine
