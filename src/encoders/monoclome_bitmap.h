// monoclomeBitmap: a decoded raster to the grey bitmap of an interchange preview. (The odd spelling is the
// name.)
#pragma once

#include <optional>

#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// A grey bitmap of the source's size, one sample a pixel, rows without padding, 0 black. Transparency is
/// laid over white by raising each colour by 255 − alpha (right for premultiplied samples). A planar source
/// or one that has not 8 bits a sample gives an unfilled bitmap. Row padding of the source is taken for
/// pixels, so callers hand rows without. Nothing when the source's numbers make no bitmap.
[[nodiscard]] std::optional<NSBitmapImageRep> monoclomeBitmap(const NSBitmapImageRep& source);

}  // namespace norvex
