// The box of a path in the coordinates in which it was drawn.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// In a context that is turned or sheared: as cairo_path_extents(), in units of user space, x0 <= x1 and
/// y0 <= y1, all 0 for a path without a segment. False in any other, where cairo's own are right.
///
/// Cairo gives the box, in user space, of the box that the path has on the surface, which is larger when it
/// is turned: 1.41 times as wide for a square at 45 degrees. Here it is the path's own, so that what SVG
/// measures in parts of it (gradients, patterns, clips and masks in objectBoundingBox units) does not change
/// with the angle.
bool turnedPathExtents(cairo_t* context, double* x0, double* y0, double* x1, double* y1);

}  // namespace norvex::engine
