// The raster formats. Each codec stands in a file of its own; this header is all that the encoders see of
// them.
#pragma once

#include <QByteArray>

#include <algorithm>
#include <optional>

#include "protocol/bitmap_image_rep.h"
#include "types/output_color.h"
#include "types/picture_format.h"

namespace norvex {

/// The facts that are stored beside the samples.
struct RasterProperties {
  double dpi = 72;        ///< resolution; Default: one pixel a point
  QByteArray iccProfile;  ///< of the samples' colour space; empty: none is embedded
  /// 1 … 100, of formats that can lose some; nothing: as the table of formats has it.
  std::optional<int> quality = {};
};

/// The codec of each raster format of the table is the function encodeRaster() that takes CodecOf<its
/// format>, and stands in a file of its own; a format without one does not link.
///
/// Each takes 8-bit interleaved RGB, with associated (premultiplied) alpha or without, and what else the
/// format holds (holdsColor()): grey as RGB is, CMYK without alpha (255: full ink); rows top to bottom. It
/// returns the file's bytes; empty for any other layout or when the codec fails. A size that the format
/// cannot hold (largestSide()) does not come to it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-template-friend"  // a plain function for each format is what is meant
template <PictureFormat format>
struct CodecOf {
  friend QByteArray encodeRaster(CodecOf codec, const NSBitmapImageRep& raster,
                                 const RasterProperties& properties);
};
#pragma GCC diagnostic pop

/// The same with the codec of `format`; empty when that is no raster format or cannot hold so many pixels.
[[nodiscard]] QByteArray encodeRaster(PictureFormat format, const NSBitmapImageRep& raster,
                                      const RasterProperties& properties);

/// Pixels a side that the format can hold; nothing: as many as there can be.
[[nodiscard]] std::optional<int> largestSide(PictureFormat format);

/// The color of a layout that codecs take, if their format holds it; nothing: none takes it.
[[nodiscard]] std::optional<OutputColor> encodableColor(const NSBitmapImageRep& raster);
/// True if this is RGB as every codec takes it.
[[nodiscard]] bool isEncodable(const NSBitmapImageRep& raster);

/// A colour that is not multiplied by its opacity any more; of a clear pixel, black.
[[nodiscard]] constexpr uchar unpremultiplied(int sample, int alpha) {
  return alpha == 0 ? uchar(0) : static_cast<uchar>(std::min(255, (sample * 255 + alpha / 2) / alpha));
}

/// RGBA with colours that are not multiplied by their opacity, as most formats store them; clear pixels are
/// black.
void unpremultiplyRow(const uchar* from, uchar* to, int pixels);

/// Premultiplied colours, `colors` samples and their opacity a pixel, without transparency, laid over white.
void overWhiteRow(const uchar* from, uchar* to, int pixels, int colors);

}  // namespace norvex
