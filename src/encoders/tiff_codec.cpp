#include <tiffio.h>

#include <cstring>
#include <optional>

#include "base/loaded_library.h"
#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

/// It and what it brings take a tenth of the time in which the commands are loaded.
struct TiffLibrary {
  decltype(&::TIFFClientOpen) TIFFClientOpen = nullptr;
  decltype(&::TIFFClose) TIFFClose = nullptr;
  decltype(&::TIFFDefaultStripSize) TIFFDefaultStripSize = nullptr;
  decltype(&::TIFFFlush) TIFFFlush = nullptr;
  decltype(&::TIFFSetField) TIFFSetField = nullptr;
  decltype(&::TIFFWriteScanline) TIFFWriteScanline = nullptr;

  /// Null where it is missing. Thread-safe.
  [[nodiscard]] static const TiffLibrary* loaded() {
    static const std::optional<TiffLibrary> found = [] {
      TiffLibrary made;
      LoadedLibrary library("libtiff.so.6");
      library.find("TIFFClientOpen", made.TIFFClientOpen);
      library.find("TIFFClose", made.TIFFClose);
      library.find("TIFFDefaultStripSize", made.TIFFDefaultStripSize);
      library.find("TIFFFlush", made.TIFFFlush);
      library.find("TIFFSetField", made.TIFFSetField);
      library.find("TIFFWriteScanline", made.TIFFWriteScanline);
      return library.isComplete() ? std::optional(made) : std::nullopt;
    }();
    return found ? &*found : nullptr;
  }
};

/// A file in memory for libtiff.
struct MemoryFile {
  QByteArray bytes;
  qsizetype at = 0;
};

/// libtiff asks for it, and reads nothing of a file that it writes in one go.
tsize_t readNothing(thandle_t, void*, tsize_t) {
  return 0;
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

void setFields(const TiffLibrary& library, TIFF* tiff, OutputColor color, const NSBitmapImageRep& raster,
               const RasterProperties& properties) {
  library.TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<uint32_t>(raster.pixelsWide));
  library.TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<uint32_t>(raster.pixelsHigh));
  library.TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
  library.TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, raster.samplesPerPixel);
  library.TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
  library.TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, photometricOf(color));
  if (color == OutputColor::Cmyk) library.TIFFSetField(tiff, TIFFTAG_INKSET, INKSET_CMYK);
  library.TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
  library.TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
  library.TIFFSetField(tiff, TIFFTAG_XRESOLUTION, properties.dpi);
  library.TIFFSetField(tiff, TIFFTAG_YRESOLUTION, properties.dpi);
  library.TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
  library.TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, library.TIFFDefaultStripSize(tiff, 0));
  if (raster.hasAlpha) {
    const uint16_t alpha = EXTRASAMPLE_ASSOCALPHA;
    library.TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &alpha);
  }
  if (!properties.iccProfile.isEmpty()) {
    library.TIFFSetField(tiff, TIFFTAG_ICCPROFILE, static_cast<uint32_t>(properties.iccProfile.size()),
                         properties.iccProfile.constData());
  }
}

}  // namespace

QByteArray encodeRaster(CodecOf<PictureFormat::Tiff>, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  const TiffLibrary* const loaded = TiffLibrary::loaded();
  const auto color = encodableColor(raster);
  if (!loaded || !color) return {};
  const TiffLibrary& library = *loaded;
  MemoryFile file;
  file.bytes.reserve(raster.bytesPerPlane() + 4096);
  TIFF* tiff = library.TIFFClientOpen("raster", "wl", &file, readNothing, writeTo, seekIn, closeIt, sizeOf,
                                      nullptr, nullptr);
  if (!tiff) return {};
  setFields(library, tiff, *color, raster, properties);
  bool good = true;
  QByteArray row(raster.pixelsWide * raster.samplesPerPixel, Qt::Uninitialized);  // libtiff may swap in place
  for (int y = 0; good && y < raster.pixelsHigh; ++y) {
    std::memcpy(row.data(), raster.data.constData() + qsizetype(y) * raster.bytesPerRow,
                static_cast<size_t>(row.size()));
    good = library.TIFFWriteScanline(tiff, row.data(), static_cast<uint32_t>(y), 0) == 1;
  }
  good = library.TIFFFlush(tiff) == 1 && good;
  library.TIFFClose(tiff);
  return good ? file.bytes : QByteArray();
}

}  // namespace norvex
