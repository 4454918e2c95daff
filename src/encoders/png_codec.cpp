#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

/// Memory for very repetitive drawings is cheap, time is not: level 5 gives up a hundredth of the size.
constexpr int compressionLevel = 5;

void append(png_structp png, png_bytep bytes, png_size_t count) {
  static_cast<QByteArray*>(png_get_io_ptr(png))
      ->append(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
}

void flushNothing(png_structp) {}

/// Trying every filter on a row takes longer than packing it, and much of a drawing is paper: an empty row is
/// left as it is, and one like the row above it is nothing but zeros as the difference from it. The first row
/// (nothing is above it) must not do with less: libpng only keeps what the filters of that one take.
int filtersFor(const uchar* row, const uchar* rowAbove, size_t bytes) {
  if (rowAbove == nullptr) return PNG_ALL_FILTERS;
  if (row[0] == 0 && std::memcmp(row, row + 1, bytes - 1) == 0) return PNG_FILTER_NONE;
  return std::memcmp(row, rowAbove, bytes) == 0 ? PNG_FILTER_UP : PNG_ALL_FILTERS;
}

int colorTypeOf(const NSBitmapImageRep& raster) {
  if (raster.samplesPerPixel <= 2) return raster.hasAlpha ? PNG_COLOR_TYPE_GRAY_ALPHA : PNG_COLOR_TYPE_GRAY;
  return raster.hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB;
}

/// Grey that is not multiplied by its opacity.
void unpremultiplyGreyRow(const uchar* from, uchar* to, int pixels) {
  for (int x = 0; x < pixels; ++x, from += 2, to += 2) {
    const int alpha = from[1];
    to[0] = alpha == 0 ? 0 : static_cast<uchar>(std::min(255, (from[0] * 255 + alpha / 2) / alpha));
    to[1] = static_cast<uchar>(alpha);
  }
}

/// Everything alive across libpng's long jumps is owned by the caller of this function, not by its frame.
bool writePng(png_structp png, png_infop info, const NSBitmapImageRep& raster,
              const RasterProperties& properties, QByteArray& row) {
  if (setjmp(png_jmpbuf(png))) return false;
  png_set_compression_level(png, compressionLevel);
  png_set_IHDR(png, info, static_cast<png_uint_32>(raster.pixelsWide),
               static_cast<png_uint_32>(raster.pixelsHigh), 8, colorTypeOf(raster), PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  const auto perMetre = static_cast<png_uint_32>(std::lround(properties.dpi / 0.0254));
  png_set_pHYs(png, info, perMetre, perMetre, PNG_RESOLUTION_METER);
  if (!properties.iccProfile.isEmpty()) {
    png_set_iCCP(png, info, "ICC profile", PNG_COMPRESSION_TYPE_BASE,
                 reinterpret_cast<png_const_bytep>(properties.iccProfile.constData()),
                 static_cast<png_uint_32>(properties.iccProfile.size()));
  }
  png_write_info(png, info);
  const auto rowBytes = static_cast<size_t>(row.size());
  for (int y = 0; y < raster.pixelsHigh; ++y) {
    const auto* source =
        reinterpret_cast<const uchar*>(raster.data.constData()) + qsizetype(y) * raster.bytesPerRow;
    const uchar* above = y == 0 ? nullptr : source - raster.bytesPerRow;
    png_set_filter(png, PNG_FILTER_TYPE_BASE, filtersFor(source, above, rowBytes));
    auto* line = reinterpret_cast<uchar*>(row.data());
    if (raster.hasAlpha)
      (raster.samplesPerPixel == 2 ? unpremultiplyGreyRow : unpremultiplyRow)(source, line,
                                                                              raster.pixelsWide);
    png_write_row(png, raster.hasAlpha ? reinterpret_cast<png_const_bytep>(row.constData()) : source);
  }
  png_write_end(png, info);
  return true;
}

}  // namespace

QByteArray encodeRaster(CodecOf<PictureFormat::Png>, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  const auto color = encodableColor(raster);
  if (!color || *color == OutputColor::Cmyk) return {};
  QByteArray file;
  QByteArray row(raster.pixelsWide * raster.samplesPerPixel, Qt::Uninitialized);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  if (!png) return {};
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(png, &file, append, flushNothing);
  const bool good = info && writePng(png, info, raster, properties, row);
  png_destroy_write_struct(&png, &info);
  return good ? file : QByteArray();
}

}  // namespace norvex
