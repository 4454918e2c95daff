// A raster as an image of the screen, and back. Apart from NSBitmapImageRep: the picture process does without
// Qt Gui.
#pragma once

#include <QImage>

#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// A picture of `rep` for the screen; a null image for layouts that cannot be shown (planar, 16 bits …).
/// CMYK is shown by a plain complement: previews only, never for output.
[[nodiscard]] QImage toImage(const NSBitmapImageRep& rep);

/// The other way: RGB with 8 bits a sample, with alpha (premultiplied) when the image has any.
[[nodiscard]] NSBitmapImageRep bitmapFromImage(const QImage& image);

}  // namespace norvex
