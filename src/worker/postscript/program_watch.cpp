#include "worker/postscript/program_watch.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

#include "protocol/interpreter_request.h"
#include "protocol/limits.h"
#include "worker/pdf/pdf_numbers.h"

namespace norvex::engine {
namespace {

/// As many pixels as a screen shows of a picture.
constexpr double kSide = 1600;
constexpr double kFinest = 4;  // pixels a point

/// The header, where it can be true of so large a file.
CanvasHeader headerOf(int file, qint64 size, const PictureLimits& limits) {
  CanvasHeader header;
  if (size < canvasPixels || ::pread(file, &header, sizeof header, 0) != ssize_t(sizeof header)) return {};
  const bool isSize = header.width > 0 && header.height > 0 && header.width <= limits::maximumSide &&
                      header.height <= limits::maximumSide &&
                      double(header.width) * header.height <= limits.megapixels * 1.0e6;
  const bool isWhole = isSize && header.bytesPerRow >= header.width * int(sizeof(Argb32)) &&
                       header.bytesPerRow <= limits::maximumRowBytes &&
                       canvasPixels + qint64(header.bytesPerRow) * header.height <= size;
  return isWhole ? header : CanvasHeader();
}

}  // namespace

QByteArray ProgramWatch::deviceParameters() const {
  const double scale = std::min(kSide / std::max({size_.width(), size_.height(), 1.0}), kFinest);
  const QByteArray dpi = decimal(72 * scale, 4);
  return "/HWResolution [" + dpi + ' ' + dpi + "] /TextAlphaBits 4 /GraphicsAlphaBits 4";
}

bool ProgramWatch::look(const EngineContext& context) {
  if (!begun_ && running_.elapsed() >= patience && context.interpreters >= 0 && pieces_) {
    begun_ = true;
    auto child = GhostscriptChild::fork(context.interpreters, context.limits, InterpreterDevice::Canvas,
                                        context.cancel);
    if (child) child_ = std::move(*child);
    if (child_) child_->begin(pieces_());
  }
  // It may end as it likes: the first run tells how the program ended.
  if (child_) child_->step(0);
  return child_ != nullptr;
}

Bitmap ProgramWatch::drawn(const PictureLimits& limits) const {
  return child_ ? bitmapOfCanvas(child_->memory(), limits) : Bitmap();
}

Bitmap bitmapOfCanvas(int file, const PictureLimits& limits) {
  struct stat facts {};
  const CanvasHeader header =
      ::fstat(file, &facts) == 0 ? headerOf(file, facts.st_size, limits) : CanvasHeader();
  Result<Bitmap> bitmap = Bitmap::create(QSize(header.width, header.height));
  if (header.width == 0 || !bitmap) return {};
  constexpr Argb32 kOpaque = 0xFF000000, kWhite = 0xFFFFFFFF;
  bool isBlank = true;
  for (int y = 0; y < header.height; ++y) {
    Argb32* const row = bitmap->row(y);
    const ssize_t bytes = ssize_t(header.width) * ssize_t(sizeof(Argb32));
    if (::pread(file, row, size_t(bytes), canvasPixels + off_t(header.bytesPerRow) * y) != bytes) return {};
    for (int x = 0; x < header.width; ++x) row[x] |= kOpaque;
    isBlank = isBlank && std::all_of(row, row + header.width, [](Argb32 pixel) { return pixel == kWhite; });
  }
  return isBlank ? Bitmap() : std::move(*bitmap);
}

}  // namespace norvex::engine
