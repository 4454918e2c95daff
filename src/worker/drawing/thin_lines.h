// Lines that are thinner than a pixel.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// Pixels that a line is wide at least: what is thinner yet would not be seen.
inline constexpr double kThinnestLine = 0.25;

/// Poppler makes each line at least a pixel wide, which turns the fine lines of a map or an engraving into
/// black areas. It asks where a line's width leads on the surface before it sets the width: these two stand
/// in for both calls. What stays is that thin lines lie in the middle of a row of pixels, so that they are
/// not blurred.
///
/// A width of the picture's units is asked about, of both axes the same.
void noteLineWidth(cairo_t* context, double width);
/// The width to set where Poppler would set `width`: the one that was noted for this context on this thread
/// just before, if it was widened to a pixel and edges between pixels are asked for (pixel_edges.h);
/// hairlines of no width are a pixel wide (PDF 1.7, 8.4.3.2).
[[nodiscard]] double lineWidthToSet(cairo_t* context, double width);

}  // namespace norvex::engine
