#include "encoders/raster_codecs.h"

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
  for (size_t row = 0; row < codecs.size(); ++row)
    if (formatTable[row].id == format && codecs[row]) return codecs[row](raster, properties);
  return {};
}

bool isEncodable(const NSBitmapImageRep& raster) {
  return raster.isConsistent() && !raster.isPlanar && raster.bitsPerSample == 8 &&
         raster.samplesPerPixel == (raster.hasAlpha ? 4 : 3) &&
         raster.colorSpaceName == QLatin1String(NSCalibratedRGBColorSpace);
}

}  // namespace norvex
