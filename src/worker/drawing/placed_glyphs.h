// Text that stands where it belongs. This cairo keeps the pixels of each glyph and puts them at the nearest
// whole pixel: small letters stand up to half a pixel from their place, too near to one neighbour and too far
// from the other.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// Paints glyphs of the context's font as shapes, each at its place, and leaves no path. False, and nothing
/// is painted, for fonts that are no outlines of a font file: those that a program draws. What overlaps is
/// painted once, as PDF 1.7 wants of the glyphs of a text object (9.3.8, text knockout).
bool paintGlyphsInPlace(cairo_t* context, const cairo_glyph_t* glyphs, int count);

}  // namespace norvex::engine
