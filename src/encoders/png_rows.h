// The rows of a picture as PNG holds them: each behind the number of its filter, packed together (PNG, third
// edition, sections 9 and 10).
#pragma once

#include <QByteArray>

#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// The zlib stream (RFC 1950) that the IDAT chunks hold, of a raster of 8-bit samples; one with alpha becomes
/// colours that are not multiplied by it. Empty when the library has no memory. Any thread.
///
/// Drawings are areas of one colour and lines between them, which pack better as they are; photographs and
/// soft gradients gain by filters. Which it is is found by packing a part of the rows both ways.
[[nodiscard]] QByteArray packedPngRows(const NSBitmapImageRep& raster);

}  // namespace norvex
