#include <tiffio.h>

#include <algorithm>
#include <cstring>

#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

/// A file in memory for libtiff.
struct MemoryFile {
  QByteArray bytes;
  qsizetype at = 0;
};

tsize_t readFrom(thandle_t handle, void* to, tsize_t count) {
  auto& file = *static_cast<MemoryFile*>(handle);
  const tsize_t got = std::clamp<tsize_t>(file.bytes.size() - file.at, 0, count);
  std::memcpy(to, file.bytes.constData() + file.at, static_cast<size_t>(got));
  file.at += got;
  return got;
}

tsize_t writeTo(thandle_t handle, void* from, tsize_t count) {
  auto& file = *static_cast<MemoryFile*>(handle);
  if (file.bytes.size() < file.at + count) file.bytes.resize(file.at + count);
  std::memcpy(file.bytes.data() + file.at, from, static_cast<size_t>(count));
  file.at += count;
  return count;
}

toff_t seekIn(thandle_t handle, toff_t offset, int whence) {
  auto& file = *static_cast<MemoryFile*>(handle);
  const qsizetype base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? file.at : file.bytes.size();
  file.at = base + static_cast<qsizetype>(offset);
  return static_cast<toff_t>(file.at);
}

int closeIt(thandle_t) {
  return 0;
}
toff_t sizeOf(thandle_t handle) {
  return static_cast<toff_t>(static_cast<MemoryFile*>(handle)->bytes.size());
}

uint16_t photometricOf(OutputColor color) {
  if (color == OutputColor::Rgb) return PHOTOMETRIC_RGB;
  return color == OutputColor::Grey ? PHOTOMETRIC_MINISBLACK : PHOTOMETRIC_SEPARATED;
}

void setFields(TIFF* tiff, OutputColor color, const NSBitmapImageRep& raster,
               const RasterProperties& properties) {
  TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<uint32_t>(raster.pixelsWide));
  TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<uint32_t>(raster.pixelsHigh));
  TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
  TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, raster.samplesPerPixel);
  TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
  TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, photometricOf(color));
  if (color == OutputColor::Cmyk) TIFFSetField(tiff, TIFFTAG_INKSET, INKSET_CMYK);
  TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
  TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
  TIFFSetField(tiff, TIFFTAG_XRESOLUTION, properties.dpi);
  TIFFSetField(tiff, TIFFTAG_YRESOLUTION, properties.dpi);
  TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
  TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(tiff, 0));
  if (raster.hasAlpha) {
    const uint16_t alpha = EXTRASAMPLE_ASSOCALPHA;
    TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &alpha);
  }
  if (!properties.iccProfile.isEmpty()) {
    TIFFSetField(tiff, TIFFTAG_ICCPROFILE, static_cast<uint32_t>(properties.iccProfile.size()),
                 properties.iccProfile.constData());
  }
}

}  // namespace

QByteArray encodeRaster(CodecOf<PictureFormat::Tiff>, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  const auto color = encodableColor(raster);
  if (!color) return {};
  MemoryFile file;
  file.bytes.reserve(raster.bytesPerPlane() + 4096);
  TIFF* tiff =
      TIFFClientOpen("raster", "wl", &file, readFrom, writeTo, seekIn, closeIt, sizeOf, nullptr, nullptr);
  if (!tiff) return {};
  setFields(tiff, *color, raster, properties);
  bool good = true;
  QByteArray row(raster.pixelsWide * raster.samplesPerPixel, Qt::Uninitialized);  // libtiff may swap in place
  for (int y = 0; good && y < raster.pixelsHigh; ++y) {
    std::memcpy(row.data(), raster.data.constData() + qsizetype(y) * raster.bytesPerRow,
                static_cast<size_t>(row.size()));
    good = TIFFWriteScanline(tiff, row.data(), static_cast<uint32_t>(y), 0) == 1;
  }
  good = TIFFFlush(tiff) == 1 && good;
  TIFFClose(tiff);
  return good ? file.bytes : QByteArray();
}

}  // namespace norvex
