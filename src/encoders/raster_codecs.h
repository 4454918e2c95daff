// The raster formats. Each codec stands in a file of its own; this header is all that the encoders see of
// them.
#pragma once

#include <QByteArray>

#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// What is stored beside the samples.
struct RasterProperties {
  double dpi = 72;        ///< resolution; Default: one pixel a point
  QByteArray iccProfile;  ///< of the samples' colour space; empty: none is embedded
};

// Each takes 8-bit interleaved RGB, with associated (premultiplied) alpha or without, rows top to bottom, and
// returns the file's bytes; empty for any other layout, for a size that the format cannot hold, or when the
// codec fails.

/// TIFF 6, uncompressed; transparency as associated alpha.
[[nodiscard]] QByteArray encodeTiff(const NSBitmapImageRep& raster, const RasterProperties& properties);
/// PNG, not interlaced; transparency as alpha.
[[nodiscard]] QByteArray encodePng(const NSBitmapImageRep& raster, const RasterProperties& properties);
/// JPEG (JFIF), full colour resolution; transparent areas over white. `quality` 0 … 1.
[[nodiscard]] QByteArray encodeJpeg(const NSBitmapImageRep& raster, const RasterProperties& properties,
                                    float quality);
/// GIF 89a with at most 256 colours, dithered; pixels more than half transparent become the transparent
/// index.
[[nodiscard]] QByteArray encodeGif(const NSBitmapImageRep& raster, const RasterProperties& properties);

/// Whether the codecs take this layout.
[[nodiscard]] bool isEncodable(const NSBitmapImageRep& raster);

}  // namespace norvex
