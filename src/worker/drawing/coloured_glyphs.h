// Glyphs that are drawings in colours of their own, as a font of a PDF may have them (small pictures, flags,
// faces). This cairo makes a mask of every glyph that a program draws: a picture would become a black square.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// Glyphs that show text whose glyphs show text, each level a few bytes: as many levels are shown. At some
/// forty, cairo waits for itself; a glyph that shows itself has no last one.
inline constexpr int maximumGlyphLevels = 16;

/// True if text has been left out in this thread that lay deeper than maximumGlyphLevels; from then on false
/// again.
[[nodiscard]] bool takeGlyphsTooDeep();

/// As cairo_show_glyphs(), but for what lies too deep. Where askForPixelEdges() was called, glyphs in colours
/// of their own are drawn into `context` itself, and outlines at their exact places (placed_glyphs.h); those
/// that leave their colour open stay masks, which are kept and cost less.
void showGlyphs(cairo_t* context, const cairo_glyph_t* glyphs, int count);

}  // namespace norvex::engine
