// Glyphs that are drawings in colours of their own, as a font of a PDF may have them (small pictures, flags,
// faces). This cairo makes a mask of every glyph that a program draws: a picture would become a black square.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// Why text has been left out: glyphs that show glyphs, in more levels or more of them than there may be
/// (limits::maximumGlyphLevels, limits::maximumInnerGlyphs).
enum class GlyphExcess { None, Levels, Number };

/// What has been left out in this thread since the last call; from then on it is counted anew.
[[nodiscard]] GlyphExcess takeGlyphExcess();

/// As cairo_show_glyphs(), but for what is too much. Where askForPixelEdges() was called, glyphs in colours
/// of their own are drawn into `context` itself, and outlines at their exact places (placed_glyphs.h); those
/// that leave their colour open stay masks, which are kept and cost less; one that fails is left out, and
/// what stands around it is drawn. Glyphs of no height or width are nothing.
void showGlyphs(cairo_t* context, const cairo_glyph_t* glyphs, int count);

}  // namespace norvex::engine
