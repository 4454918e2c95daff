#include "encoders/raster_codecs.h"

#include <algorithm>
#include <array>
#include <utility>

namespace norvex {
namespace {

using Codec = QByteArray (*)(const NSBitmapImageRep& raster, const RasterProperties& properties);

template <PictureFormat format>
QByteArray encodeAs(const NSBitmapImageRep& raster, const RasterProperties& properties) {
  return encodeRaster(CodecOf<format>{}, raster, properties);
}

template <size_t row>
constexpr Codec codecOfRow() {
  if constexpr (isRaster(formatTable[row].id)) return &encodeAs<formatTable[row].id>;
  return nullptr;
}

/// Beside the rows of the table of formats.
constexpr auto codecs = []<size_t... row>(std::index_sequence<row...>) {
  return std::array<Codec, sizeof...(row)>{codecOfRow<row>()...};
}
(std::make_index_sequence<formatTable.size()>());

}  // namespace

QByteArray encodeRaster(PictureFormat format, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  if (const auto side = largestSide(format); side && std::max(raster.pixelsWide, raster.pixelsHigh) > *side)
    return {};
  for (size_t row = 0; row < codecs.size(); ++row)
    if (formatTable[row].id == format && codecs[row]) return codecs[row](raster, properties);
  return {};
}

std::optional<int> largestSide(PictureFormat format) {
  switch (format) {
    case PictureFormat::Webp:
      return 16383;
    case PictureFormat::Jpeg:
      return 65500;  // the library's own, a little below that of the format
    case PictureFormat::Gif:
      return 65535;  // 16-bit sizes
    default:
      return std::nullopt;
  }
}

void unpremultiplyRow(const uchar* from, uchar* to, int pixels) {
  for (int x = 0; x < pixels; ++x, from += 4, to += 4) {
    const int alpha = from[3];
    for (int i = 0; i < 3; ++i) to[i] = unpremultiplied(from[i], alpha);
    to[3] = static_cast<uchar>(alpha);
  }
}

void overWhiteRow(const uchar* from, uchar* to, int pixels, int colors) {
  for (int x = 0; x < pixels; ++x, from += colors + 1, to += colors)
    for (int i = 0; i < colors; ++i) to[i] = static_cast<uchar>(std::min(255, from[i] + 255 - from[colors]));
}

std::optional<OutputColor> encodableColor(const NSBitmapImageRep& raster) {
  if (!raster.isConsistent() || raster.isPlanar || raster.bitsPerSample != 8) return std::nullopt;
  const int colors = raster.samplesPerPixel - (raster.hasAlpha ? 1 : 0);
  const auto is = [&](const char* name, int samples) {
    return colors == samples && raster.colorSpaceName == QLatin1String(name);
  };
  if (is(NSCalibratedRGBColorSpace, 3)) return OutputColor::Rgb;
  if (is(NSCalibratedWhiteColorSpace, 1)) return OutputColor::Grey;
  if (is(NSDeviceCMYKColorSpace, 4) && !raster.hasAlpha) return OutputColor::Cmyk;
  return std::nullopt;
}

bool isEncodable(const NSBitmapImageRep& raster) {
  return encodableColor(raster) == OutputColor::Rgb;
}

}  // namespace norvex
