// What a brush repeats over an area: hatches, and patterns that are bitmaps.
#pragma once

#include <cairo.h>

#include "base/result.h"
#include "worker/drawing/bitmap.h"

namespace norvex::engine {

/// Lines of `colour` a pixel wide, transparent between them. `hatch`: 0 across, 1 down, 2 falling, 3 rising,
/// 4 across and down, 5 both slants; others are like 0.
[[nodiscard]] Result<Bitmap> hatchTile(int hatch, Argb32 colour);

/// Fills the path, which stays, with the tile repeated from the corner of the surface, a pixel for each of
/// its pixels whatever the context's matrix.
void fillWithTile(cairo_t* context, const Bitmap& tile);

}  // namespace norvex::engine
