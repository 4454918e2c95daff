#include "worker/tiff/tiff_preview.h"

// The first image of a TIFF file as samples.
#include <tiffio.h>

#include <QByteArray>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <optional>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

// ---- libtiff on bytes in memory

struct Source {
  const QByteArray& bytes;
  quint64 position = 0;
};

Source& sourceOf(thandle_t handle) {
  return *static_cast<Source*>(handle);
}

tmsize_t readSource(thandle_t handle, void* target, tmsize_t wanted) {
  Source& source = sourceOf(handle);
  const auto size = quint64(source.bytes.size());
  if (source.position >= size || wanted <= 0) return 0;
  const auto count = std::min<quint64>(quint64(wanted), size - source.position);
  std::memcpy(target, source.bytes.constData() + source.position, size_t(count));
  source.position += count;
  return tmsize_t(count);
}

tmsize_t writeNothing(thandle_t, void*, tmsize_t) {
  return 0;
}

toff_t seekSource(thandle_t handle, toff_t offset, int whence) {
  Source& source = sourceOf(handle);
  if (whence == SEEK_CUR) offset += source.position;
  if (whence == SEEK_END) offset += toff_t(source.bytes.size());
  return source.position = offset;
}

int closeNothing(thandle_t) {
  return 0;
}
toff_t sizeOfSource(thandle_t handle) {
  return toff_t(sourceOf(handle).bytes.size());
}

struct TiffClose {
  void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffPointer = std::unique_ptr<TIFF, TiffClose>;

struct OptionsFree {
  void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

int keepSilent(TIFF*, void*, const char*, const char*, va_list) {
  return 1;
}

TiffPointer openTiff(Source& source, qint64 maximumAllocation) {
  const std::unique_ptr<TIFFOpenOptions, OptionsFree> options(TIFFOpenOptionsAlloc());
  TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), tmsize_t(maximumAllocation));
  TIFFOpenOptionsSetErrorHandlerExtR(options.get(), keepSilent, nullptr);
  TIFFOpenOptionsSetWarningHandlerExtR(options.get(), keepSilent, nullptr);
  // "m": not mapped, the bytes are copied from memory that is there already.
  return TiffPointer(TIFFClientOpenExt("preview", "rm", &source, readSource, writeNothing, seekSource,
                                       closeNothing, sizeOfSource, nullptr, nullptr, options.get()));
}

// ---- the layout

struct Layout {
  quint32 width = 0, height = 0;
  quint16 bits = 1, samples = 1, planar = PLANARCONFIG_CONTIG, photometric = PHOTOMETRIC_MINISWHITE;
  quint16 format = SAMPLEFORMAT_UINT, orientation = ORIENTATION_TOPLEFT, compression = COMPRESSION_NONE;
  quint16 extraSamples = 0;
  bool hasAlpha = false;
  bool hasPlainAlpha = false;  ///< and the colours are not multiplied by it
};

Layout layoutOf(TIFF* tiff) {
  Layout layout;
  TIFFGetField(tiff, TIFFTAG_IMAGEWIDTH, &layout.width);
  TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &layout.height);
  TIFFGetFieldDefaulted(tiff, TIFFTAG_BITSPERSAMPLE, &layout.bits);
  TIFFGetFieldDefaulted(tiff, TIFFTAG_SAMPLESPERPIXEL, &layout.samples);
  TIFFGetFieldDefaulted(tiff, TIFFTAG_PLANARCONFIG, &layout.planar);
  TIFFGetFieldDefaulted(tiff, TIFFTAG_SAMPLEFORMAT, &layout.format);
  TIFFGetFieldDefaulted(tiff, TIFFTAG_ORIENTATION, &layout.orientation);
  TIFFGetFieldDefaulted(tiff, TIFFTAG_COMPRESSION, &layout.compression);
  if (!TIFFGetField(tiff, TIFFTAG_PHOTOMETRIC, &layout.photometric))
    layout.photometric = layout.samples >= 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK;
  quint16* kinds = nullptr;
  TIFFGetFieldDefaulted(tiff, TIFFTAG_EXTRASAMPLES, &layout.extraSamples, &kinds);
  if (layout.extraSamples > 0 && kinds) {
    layout.hasAlpha = kinds[0] == EXTRASAMPLE_ASSOCALPHA || kinds[0] == EXTRASAMPLE_UNASSALPHA;
    layout.hasPlainAlpha = kinds[0] == EXTRASAMPLE_UNASSALPHA;
  }
  return layout;
}

// Colour samples of the layouts whose samples are taken as they are; nothing for the others, which libtiff is
// asked to turn into RGB.
std::optional<int> plainColours(const Layout& layout) {
  if (layout.format != SAMPLEFORMAT_UINT || layout.orientation != ORIENTATION_TOPLEFT) return std::nullopt;
  int colours = 0;
  switch (layout.photometric) {
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_MINISBLACK:
      colours = 1;
      break;
    case PHOTOMETRIC_RGB:
      colours = 3;
      break;
    case PHOTOMETRIC_SEPARATED:
      colours = 4;
      break;
    default:
      return std::nullopt;
  }
  const bool grey = colours == 1 && layout.samples == 1;
  const bool depthIsKnown = layout.bits == 8 || layout.bits == 16 ||
                            (grey && (layout.bits == 1 || layout.bits == 2 || layout.bits == 4));
  const int alpha = layout.hasAlpha ? 1 : 0;
  if (!depthIsKnown || layout.samples < colours + alpha || layout.samples > 16) return std::nullopt;
  return colours;
}

const char* colourSpaceName(int colours) {
  if (colours == 1) return NSCalibratedWhiteColorSpace;
  return colours == 4 ? NSDeviceCMYKColorSpace : NSCalibratedRGBColorSpace;
}

// ---- samples as they are

class SampleReader {
 public:
  SampleReader(TIFF* tiff, const Layout& layout, int colours)
      : tiff_(tiff), layout_(layout), colours_(colours), kept_(colours + (layout.hasAlpha ? 1 : 0)) {}

  /// False when the file has less than it says, or more than `maximumBytes` is needed.
  bool read(NSBitmapImageRep& image, qint64 maximumBytes) {
    const qint64 rowBits = qint64(layout_.width) * kept_ * layout_.bits;
    const qint64 rowBytes = (rowBits + 7) / 8;
    if (rowBytes * layout_.height > maximumBytes) return false;
    image.samplesPerPixel = kept_;
    image.bitsPerSample = layout_.bits;
    image.bitsPerPixel = kept_ * layout_.bits;
    image.bytesPerRow = int(rowBytes);
    image.hasAlpha = layout_.hasAlpha;
    image.colorSpaceName = QString::fromLatin1(colourSpaceName(colours_));
    image.data = QByteArray(rowBytes * layout_.height, '\0');
    const bool complete = TIFFIsTiled(tiff_) ? readTiles(image) : readStrips(image);
    if (layout_.photometric == PHOTOMETRIC_MINISWHITE) invert(image);
    if (layout_.hasPlainAlpha) premultiply(image);
    return complete;
  }

 private:
  [[nodiscard]] int planes() const { return layout_.planar == PLANARCONFIG_SEPARATE ? layout_.samples : 1; }
  [[nodiscard]] int samplesTogether() const { return planes() == 1 ? layout_.samples : 1; }

  // Copies `count` pixels of a decoded row to (x, y). Depths below a byte come with one sample only, where
  // the decoded row is the image's row.
  void place(NSBitmapImageRep& image, const char* from, int plane, qint64 x, qint64 y, qint64 count) {
    char* row = image.data.data() + y * image.bytesPerRow;
    const int size = layout_.bits / 8;
    if (size == 0) {
      std::memcpy(row + x * layout_.bits / 8, from, size_t((count * layout_.bits + 7) / 8));
      return;
    }
    const int together = samplesTogether();
    for (qint64 i = 0; i < count; ++i)
      for (int s = 0; s < together; ++s)
        if (const int target = plane + s; target < kept_)
          std::memcpy(row + ((x + i) * kept_ + target) * size, from + (i * together + s) * size,
                      size_t(size));
  }

  bool readStrips(NSBitmapImageRep& image) {
    const tmsize_t size = TIFFScanlineSize(tiff_);
    const qint64 needed = (qint64(layout_.width) * samplesTogether() * layout_.bits + 7) / 8;
    if (size < needed) return false;
    QByteArray line(qsizetype(size), '\0');
    for (int plane = 0; plane < planes(); ++plane)
      for (quint32 y = 0; y < layout_.height; ++y) {
        if (TIFFReadScanline(tiff_, line.data(), y, quint16(plane)) < 0) return false;
        place(image, line.constData(), plane, 0, y, layout_.width);
      }
    return true;
  }

  bool readTiles(NSBitmapImageRep& image) {
    quint32 tileWidth = 0;
    quint32 tileHeight = 0;
    TIFFGetField(tiff_, TIFFTAG_TILEWIDTH, &tileWidth);
    TIFFGetField(tiff_, TIFFTAG_TILELENGTH, &tileHeight);
    const tmsize_t size = TIFFTileSize(tiff_);
    const tmsize_t rowSize = TIFFTileRowSize(tiff_);
    if (size <= 0) return false;  // nor has a tile without a side any
    if (layout_.bits < 8 && tileWidth % 8 != 0) return false;
    QByteArray tile(qsizetype(size), '\0');
    for (int plane = 0; plane < planes(); ++plane)
      for (quint64 y = 0; y < layout_.height; y += tileHeight)
        for (quint64 x = 0; x < layout_.width; x += tileWidth) {
          if (TIFFReadTile(tiff_, tile.data(), quint32(x), quint32(y), 0, quint16(plane)) < 0) return false;
          const quint64 columns = std::min<quint64>(tileWidth, layout_.width - x);
          const quint64 rows = std::min<quint64>(tileHeight, layout_.height - y);
          for (quint64 r = 0; r < rows && tmsize_t((r + 1) * quint64(rowSize)) <= size; ++r)
            place(image, tile.constData() + r * quint64(rowSize), plane, qint64(x), qint64(y + r),
                  qint64(columns));
        }
    return true;
  }

  // Padding bits at the end of a row are turned with it; nobody reads them.
  void invert(NSBitmapImageRep& image) const {
    const int size = std::max(1, layout_.bits / 8);
    const int stride = layout_.hasAlpha ? 2 * size : size;
    for (qsizetype i = 0; i < image.data.size(); ++i)
      if (i % stride < size) image.data[i] = char(~image.data.at(i));
  }

  template <typename Sample>
  void premultiplySamples(NSBitmapImageRep& image) const {
    auto* pixel = reinterpret_cast<Sample*>(image.data.data());
    const quint64 full = std::numeric_limits<Sample>::max();
    for (qsizetype i = 0, n = image.data.size() / qsizetype(sizeof(Sample)) / kept_; i < n;
         ++i, pixel += kept_)
      for (int c = 0; c < colours_; ++c)
        pixel[c] = Sample((pixel[c] * quint64(pixel[colours_]) + full / 2) / full);
  }
  void premultiply(NSBitmapImageRep& image) const {
    layout_.bits == 16 ? premultiplySamples<quint16>(image) : premultiplySamples<quint8>(image);
  }

  TIFF* tiff_;
  const Layout& layout_;
  int colours_;
  int kept_;  ///< samples of a pixel in the result: colours and alpha
};

// ---- everything else, by way of libtiff's RGB

// libtiff gives premultiplied pixels, red in the lowest byte.
bool readAsRgb(TIFF* tiff, const Layout& layout, NSBitmapImageRep& image, qint64 maximumBytes) {
  char reason[1024];
  const qint64 pixels = qint64(layout.width) * layout.height;
  if (pixels * 8 > maximumBytes || !TIFFRGBAImageOK(tiff, reason)) return false;
  QByteArray raster(pixels * 4, '\0');
  if (!TIFFReadRGBAImageOriented(tiff, layout.width, layout.height,
                                 reinterpret_cast<uint32_t*>(raster.data()), ORIENTATION_TOPLEFT, 1))
    return false;
  image.hasAlpha = layout.hasAlpha;
  image.samplesPerPixel = layout.hasAlpha ? 4 : 3;
  image.bitsPerSample = 8;
  image.bitsPerPixel = 8 * image.samplesPerPixel;
  image.bytesPerRow = int(layout.width) * image.samplesPerPixel;
  image.colorSpaceName = QString::fromLatin1(NSCalibratedRGBColorSpace);
  image.data = QByteArray(pixels * image.samplesPerPixel, '\0');
  char* target = image.data.data();
  for (qint64 i = 0; i < pixels; ++i) {
    quint32 value = 0;
    std::memcpy(&value, raster.constData() + i * 4, 4);
    for (int s = 0; s < image.samplesPerPixel; ++s) *target++ = char((value >> (8 * s)) & 0xFF);
  }
  return true;
}

void readSizeInPoints(TIFF* tiff, NSBitmapImageRep& image) {
  float x = 0;
  float y = 0;
  quint16 unit = RESUNIT_INCH;
  TIFFGetField(tiff, TIFFTAG_XRESOLUTION, &x);
  TIFFGetField(tiff, TIFFTAG_YRESOLUTION, &y);
  TIFFGetFieldDefaulted(tiff, TIFFTAG_RESOLUTIONUNIT, &unit);
  if (unit == RESUNIT_NONE) return;
  const double pointsPerUnit = unit == RESUNIT_CENTIMETER ? 72 / 2.54 : 72;
  const double wide = image.pixelsWide * pointsPerUnit / double(x);
  const double high = image.pixelsHigh * pointsPerUnit / double(y);
  const auto isLength = [](double points) { return points > 0 && points <= limits::maximumPoints; };
  if (!isLength(wide) || !isLength(high)) return;  // beyond it too where no resolution is told
  image.pointsWide = wide;
  image.pointsHigh = high;
}

}  // namespace

Result<NSBitmapImageRep> decodeTiff(const QByteArray& tiff, const PictureLimits& limits) {
  const Error unreadable{ErrorKind::NotParsable, QStringLiteral("the preview is not a readable TIFF image")};
  const qint64 maximumBytes = qint64(limits.memoryMiB) << 20;
  Source source{tiff};
  const TiffPointer opened = openTiff(source, maximumBytes);
  if (!opened) return unreadable;
  const Layout layout = layoutOf(opened.get());
  if (layout.width == 0 || layout.height == 0) return unreadable;
  if (layout.width > quint32(limits::maximumSide) || layout.height > quint32(limits::maximumSide) ||
      double(layout.width) * layout.height > limits.megapixels * 1e6)
    return Error{ErrorKind::Limit,
                 QStringLiteral("the preview has more than %1 megapixels").arg(limits.megapixels)};
  NSBitmapImageRep image;
  image.pixelsWide = int(layout.width);
  image.pixelsHigh = int(layout.height);
  const std::optional<int> colours = plainColours(layout);
  const bool done = colours ? SampleReader(opened.get(), layout, *colours).read(image, maximumBytes)
                            : readAsRgb(opened.get(), layout, image, maximumBytes);
  if (!done) return unreadable;
  readSizeInPoints(opened.get(), image);
  return image;
}

}  // namespace norvex::engine
