#include <webp/encode.h>
#include <webp/mux.h>

#include <memory>
#include <vector>

#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

constexpr int losslessEffort = 6;  // of 0 … 9: more takes several times as long for a hundredth of the size

/// A picture that libwebp owns pixels of.
struct Picture : WebPPicture {
  Picture() { good = WebPPictureInit(this) != 0; }
  ~Picture() { WebPPictureFree(this); }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;
  bool good;
};

struct Written : WebPMemoryWriter {
  Written() { WebPMemoryWriterInit(this); }
  ~Written() { WebPMemoryWriterClear(this); }
  Written(const Written&) = delete;
  Written& operator=(const Written&) = delete;
};

struct MuxDeleter {
  void operator()(WebPMux* mux) const { WebPMuxDelete(mux); }
};

bool importPixels(Picture& picture, const NSBitmapImageRep& raster) {
  const auto* rows = reinterpret_cast<const uchar*>(raster.data.constData());
  if (!raster.hasAlpha) return WebPPictureImportRGB(&picture, rows, int(raster.bytesPerRow)) != 0;
  const size_t rowBytes = size_t(raster.pixelsWide) * 4;
  std::vector<uchar> pixels(rowBytes * size_t(raster.pixelsHigh));
  for (int y = 0; y < raster.pixelsHigh; ++y)
    unpremultiplyRow(rows + qsizetype(y) * raster.bytesPerRow, pixels.data() + size_t(y) * rowBytes,
                     raster.pixelsWide);
  return WebPPictureImportRGBA(&picture, pixels.data(), int(rowBytes)) != 0;
}

/// Nothing when the library refuses the values.
std::optional<WebPConfig> configOf(const std::optional<int>& quality) {
  WebPConfig config;
  const bool good = quality ? WebPConfigPreset(&config, WEBP_PRESET_DRAWING, float(*quality)) != 0
                            : WebPConfigInit(&config) && WebPConfigLosslessPreset(&config, losslessEffort);
  return good ? std::optional(config) : std::nullopt;
}

/// The file with the profile in a chunk of its own.
QByteArray withProfile(const Written& image, const QByteArray& profile) {
  const WebPData file{image.mem, image.size};
  const WebPData chunk{reinterpret_cast<const uint8_t*>(profile.constData()), size_t(profile.size())};
  const std::unique_ptr<WebPMux, MuxDeleter> mux(WebPMuxCreate(&file, 0));
  if (!mux || WebPMuxSetChunk(mux.get(), "ICCP", &chunk, 0) != WEBP_MUX_OK) return {};
  WebPData whole{};
  const bool good = WebPMuxAssemble(mux.get(), &whole) == WEBP_MUX_OK;
  QByteArray bytes;
  if (good) bytes = QByteArray(reinterpret_cast<const char*>(whole.bytes), qsizetype(whole.size));
  WebPDataClear(&whole);
  return bytes;
}

}  // namespace

/// Without a quality every pixel that is seen keeps its value. The format stores no resolution.
QByteArray encodeRaster(CodecOf<PictureFormat::Webp>, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  if (!isEncodable(raster)) return {};
  const auto config = configOf(properties.quality);
  Picture picture;
  if (!config || !picture.good) return {};
  Written image;
  picture.width = raster.pixelsWide;
  picture.height = raster.pixelsHigh;
  picture.use_argb = config->lossless;
  picture.writer = WebPMemoryWrite;
  picture.custom_ptr = &image;
  if (!importPixels(picture, raster) || !WebPEncode(&*config, &picture)) return {};
  if (!properties.iccProfile.isEmpty()) return withProfile(image, properties.iccProfile);
  return {reinterpret_cast<const char*>(image.mem), qsizetype(image.size)};
}

}  // namespace norvex
