#include <cgif.h>
#include <libimagequant.h>

#include <algorithm>
#include <array>
#include <vector>

#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

/// GIF pixels are transparent or not, nothing between: of an area of some opacity as many are seen as the
/// opacity tells, in the even pattern of an ordered dither (Bayer, 8 × 8). Opaque pixels always are, clear
/// ones never.
constexpr bool isSeen(int x, int y, int alpha) {
  int rank = 0;
  for (int bit = 0; bit < 3; ++bit) rank = rank << 2 | (((x ^ y) >> bit & 1) << 1) | (y >> bit & 1);
  return alpha == 255 || alpha > 4 * rank + 2;
}

struct AttrDeleter {
  void operator()(liq_attr* p) const { liq_attr_destroy(p); }
};
struct ImageDeleter {
  void operator()(liq_image* p) const { liq_image_destroy(p); }
};
struct ResultDeleter {
  void operator()(liq_result* p) const { liq_result_destroy(p); }
};

/// A GIF in the making: indices into a palette.
struct Indexed {
  std::vector<uchar> palette;  ///< RGB
  std::vector<uchar> indices;
  int transparent = -1;
};

/// Colours as they look without their transparency, all of them opaque.
struct Pixels {
  std::vector<uchar> rgba;
  std::vector<uchar> seen;  ///< for each pixel 255, or 0 where the picture is transparent
  bool transparency = false;
};

/// An unseen pixel gets the colour of its neighbour, so that it asks for no colour of its own and leaves the
/// dithering of what is seen alone.
Pixels pixelsOf(const NSBitmapImageRep& raster) {
  const size_t count = size_t(raster.pixelsWide) * size_t(raster.pixelsHigh);
  Pixels pixels{std::vector<uchar>(count * 4, 255), std::vector<uchar>(count, 255)};
  uchar* to = pixels.rgba.data();
  uchar* seen = pixels.seen.data();
  std::array<uchar, 3> colour{};
  for (int y = 0; y < raster.pixelsHigh; ++y) {
    const auto* from =
        reinterpret_cast<const uchar*>(raster.data.constData()) + qsizetype(y) * raster.bytesPerRow;
    for (int x = 0; x < raster.pixelsWide; ++x, from += raster.samplesPerPixel, to += 4, ++seen) {
      const int alpha = raster.hasAlpha ? from[3] : 255;
      if (!isSeen(x, y, alpha)) {
        *seen = 0;
        pixels.transparency = true;
      } else {
        for (size_t i = 0; i < 3; ++i) colour[i] = unpremultiplied(from[i], alpha);
      }
      std::copy(colour.begin(), colour.end(), to);
    }
  }
  return pixels;
}

/// The transparent pixels are not left to the quantiser, which would average them with others: they get an
/// index of their own.
Indexed quantise(const NSBitmapImageRep& raster) {
  const Pixels pixels = pixelsOf(raster);
  std::unique_ptr<liq_attr, AttrDeleter> attr(liq_attr_create());
  if (!attr) return {};
  liq_set_max_colors(attr.get(), pixels.transparency ? 255 : 256);
  std::unique_ptr<liq_image, ImageDeleter> image(
      liq_image_create_rgba(attr.get(), pixels.rgba.data(), raster.pixelsWide, raster.pixelsHigh, 0));
  if (!image) return {};
  std::vector<uchar> importance = pixels.seen;
  if (pixels.transparency)
    liq_image_set_importance_map(image.get(), importance.data(), importance.size(), LIQ_COPY_PIXELS);
  liq_result* raw = nullptr;
  if (liq_image_quantize(image.get(), attr.get(), &raw) != LIQ_OK) return {};
  std::unique_ptr<liq_result, ResultDeleter> result(raw);
  liq_set_dithering_level(result.get(), 1.0F);

  Indexed out;
  out.indices.resize(pixels.seen.size());
  if (liq_write_remapped_image(result.get(), image.get(), out.indices.data(), out.indices.size()) != LIQ_OK)
    return {};
  const liq_palette* palette = liq_get_palette(result.get());
  for (unsigned i = 0; i < palette->count; ++i) {
    const liq_color& c = palette->entries[i];
    out.palette.insert(out.palette.end(), {c.r, c.g, c.b});
  }
  if (!pixels.transparency) return out;
  out.transparent = static_cast<int>(palette->count);
  out.palette.insert(out.palette.end(), {255, 255, 255});
  for (size_t i = 0; i < pixels.seen.size(); ++i)
    if (pixels.seen[i] == 0) out.indices[i] = static_cast<uchar>(out.transparent);
  return out;
}

int appendBytes(void* context, const uint8_t* bytes, size_t count) {
  static_cast<QByteArray*>(context)->append(reinterpret_cast<const char*>(bytes),
                                            static_cast<qsizetype>(count));
  return 0;
}

QByteArray write(const NSBitmapImageRep& raster, Indexed& indexed) {
  QByteArray file;
  CGIF_Config config{};
  config.pGlobalPalette = indexed.palette.data();
  config.numGlobalPaletteEntries = static_cast<uint16_t>(indexed.palette.size() / 3);
  config.width = static_cast<uint16_t>(raster.pixelsWide);
  config.height = static_cast<uint16_t>(raster.pixelsHigh);
  config.pWriteFn = appendBytes;
  config.pContext = &file;
  CGIF* gif = cgif_newgif(&config);
  if (!gif) return {};
  CGIF_FrameConfig frame{};
  frame.pImageData = indexed.indices.data();
  const bool added = cgif_addframe(gif, &frame) == CGIF_OK;
  const bool closed = cgif_close(gif) == CGIF_OK;
  return added && closed ? file : QByteArray();
}

/// The ICC profile as the application extension "ICCRGBG1" "012" (ICC.1, annex on embedding in GIF).
QByteArray profileExtension(const QByteArray& profile) {
  if (profile.isEmpty()) return {};
  QByteArray extension("\x21\xFF\x0BICCRGBG1012", 14);
  for (qsizetype at = 0; at < profile.size(); at += 255) {
    const QByteArray block = profile.mid(at, 255);
    extension += static_cast<char>(block.size());
    extension += block;
  }
  return extension + '\0';
}

/// The graphic control extension that names the transparent index.
QByteArray transparencyExtension(int index) {
  if (index < 0) return {};
  QByteArray extension("\x21\xF9\x04\x01\x00\x00\x00\x00", 8);
  extension[6] = static_cast<char>(index);
  return extension;
}

/// Puts extensions between the global colour table and the image. The library has no call for profiles, and
/// its version 0.3.0 forgets the transparency of pictures that are not animated.
void insertExtensions(QByteArray& file, const QByteArray& extensions) {
  constexpr qsizetype descriptorEnd = 13;
  if (extensions.isEmpty() || file.size() < descriptorEnd) return;
  const int flags = static_cast<uchar>(file.at(10));
  const qsizetype tableBytes = flags & 0x80 ? 3 * (qsizetype(2) << (flags & 7)) : 0;
  file.insert(descriptorEnd + tableBytes, extensions);
  file.replace(3, 3, "89a");  // extensions came with this version
}

}  // namespace

QByteArray encodeRaster(CodecOf<PictureFormat::Gif>, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  if (!isEncodable(raster)) return {};
  Indexed indexed = quantise(raster);
  if (indexed.indices.empty() || indexed.palette.empty()) return {};
  QByteArray file = write(raster, indexed);
  insertExtensions(file,
                   profileExtension(properties.iccProfile) + transparencyExtension(indexed.transparent));
  return file;
}

}  // namespace norvex
