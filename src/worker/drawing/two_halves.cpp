#include "worker/drawing/two_halves.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <future>
#include <system_error>
#include <utility>
#include <vector>

namespace norvex::engine {
namespace {

constexpr int kLeastHeight = 64;
/// The share of the granted memory that the second set of pixels may take.
constexpr int kShare = 8;

/// Rows that a half is drawn beyond where it ends. What begins within a row of its clip is sampled more
/// closely there than it would be in the midst of an area, and edges are put to the edge of their clip that
/// is nearer than a pixel: neither may happen in a row that is kept.
constexpr int kBeyond = 4;

/// Where signals of this thread are taken, while this lives: the process tells by it that a drawing has used
/// up its stack.
class SignalStack {
 public:
  SignalStack() {
    const stack_t own{bytes_.data(), 0, bytes_.size()};
    ::sigaltstack(&own, &before_);
  }
  ~SignalStack() { ::sigaltstack(&before_, nullptr); }
  SignalStack(const SignalStack&) = delete;
  SignalStack& operator=(const SignalStack&) = delete;

 private:
  std::vector<char> bytes_ = std::vector<char>(64 << 10);
  stack_t before_{};
};

/// Draws with `paint` from row `top` to row `bottom`.
PaintPicture withinRows(const PaintPicture& paint, int width, int top, int bottom) {
  return [=, &paint](cairo_t* context) -> Result<void> {
    cairo_matrix_t matrix;
    cairo_get_matrix(context, &matrix);
    cairo_identity_matrix(context);
    cairo_rectangle(context, 0, top, width, bottom - top);
    cairo_clip(context);
    cairo_set_matrix(context, &matrix);
    return paint(context);
  };
}

/// Nothing where there is no thread to be had.
template <typename Work>
std::future<Result<Bitmap>> onAnotherThread(const Work& work) {
  try {
    return std::async(std::launch::async, [work] {
      const SignalStack stack;
      return work();
    });
  } catch (const std::system_error&) {
    return {};
  }
}

}  // namespace

bool canPaintHalves(const RenderRequest& request, const PictureLimits& limits) {
  const QSize size = request.pixelSize;
  if (size.height() < kLeastHeight || std::max(size.width(), size.height()) > longestSurfaceSide)
    return false;
  const qint64 bytes = qint64(size.width()) * size.height() * qint64(sizeof(Argb32));
  return bytes <= (qint64(limits.memoryMiB) << 20) / kShare;
}

Result<Bitmap> paintHalves(const RenderRequest& request, const PictureLimits& limits,
                           const PaintPicture& upper, const PaintPicture& lower) {
  const int width = request.pixelSize.width(), height = request.pixelSize.height();
  const int seam = height / 2;
  const auto paintLower = [&](const PaintPicture& paint) {
    return paintImage(request, limits, withinRows(paint, width, seam - kBeyond, height));
  };
  std::future<Result<Bitmap>> other;  // waited for, whatever happens here, when it goes out of sight
  if (lower) other = onAnotherThread([&] { return paintLower(lower); });
  Result<Bitmap> image = paintImage(request, limits, withinRows(upper, width, 0, seam + kBeyond));
  const Result<Bitmap> rest = other.valid() ? other.get() : image ? paintLower(upper) : image;
  if (!image) return image;
  if (!rest) return rest;
  if (!image->isEmpty())
    std::memcpy(image->row(seam), rest->row(seam), size_t(image->bytesPerRow()) * size_t(height - seam));
  return image;
}

}  // namespace norvex::engine
