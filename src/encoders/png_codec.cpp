#include <png.h>

#include <algorithm>
#include <cmath>

#include "encoders/png_rows.h"
#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

/// So many bytes of the packed rows stand in one chunk.
constexpr qsizetype kChunkBytes = 1 << 20;

void append(png_structp png, png_bytep bytes, png_size_t count) {
  static_cast<QByteArray*>(png_get_io_ptr(png))
      ->append(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
}

void flushNothing(png_structp) {}

int colorTypeOf(const NSBitmapImageRep& raster) {
  if (raster.samplesPerPixel <= 2) return raster.hasAlpha ? PNG_COLOR_TYPE_GRAY_ALPHA : PNG_COLOR_TYPE_GRAY;
  return raster.hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB;
}

void writeChunk(png_structp png, const char* name, const char* bytes, qsizetype count) {
  png_write_chunk(png, reinterpret_cast<png_const_bytep>(name), reinterpret_cast<png_const_bytep>(bytes),
                  static_cast<size_t>(count));
}

/// libpng writes what stands around the rows; it would pack them at half the speed of the library that does.
/// Everything alive across libpng's long jumps is owned by the caller of this function, not by its frame.
bool writePng(png_structp png, png_infop info, const NSBitmapImageRep& raster,
              const RasterProperties& properties, const QByteArray& rows) {
  if (setjmp(png_jmpbuf(png))) return false;
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
  for (qsizetype at = 0; at < rows.size(); at += kChunkBytes)
    writeChunk(png, "IDAT", rows.constData() + at, std::min(kChunkBytes, rows.size() - at));
  writeChunk(png, "IEND", nullptr, 0);
  return true;
}

}  // namespace

QByteArray encodeRaster(CodecOf<PictureFormat::Png>, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  const auto color = encodableColor(raster);
  if (!color || *color == OutputColor::Cmyk) return {};
  QByteArray file;
  const QByteArray rows = packedPngRows(raster);
  if (rows.isEmpty()) return {};
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  if (!png) return {};
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(png, &file, append, flushNothing);
  const bool good = info && writePng(png, info, raster, properties, rows);
  png_destroy_write_struct(&png, &info);
  return good ? file : QByteArray();
}

}  // namespace norvex
