#include "worker/drawing/two_halves.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <future>
#include <system_error>
#include <utility>
#include <vector>

#include "worker/drawing/told_drawing.h"

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

/// One image in two parts, which differ in nothing from one drawing.
class Halves {
 public:
  Halves(const RenderRequest& request, const PictureLimits& limits, double upperShare)
      : request_(request), limits_(limits), seam_(int(request.pixelSize.height() * upperShare)) {}

  [[nodiscard]] Result<Bitmap> upper(const PaintPicture& paint) const {
    return rows(paint, 0, seam_ + kBeyond);
  }
  [[nodiscard]] Result<Bitmap> lower(const PaintPicture& paint) const {
    return rows(paint, seam_ - kBeyond, request_.pixelSize.height());
  }
  [[nodiscard]] Result<Bitmap> joined(Result<Bitmap> upper, const Result<Bitmap>& lower) const {
    if (!lower) return lower;
    if (!upper->isEmpty())
      std::memcpy(upper->row(seam_), lower->row(seam_),
                  size_t(upper->bytesPerRow()) * size_t(upper->height() - seam_));
    return upper;
  }

 private:
  [[nodiscard]] Result<Bitmap> rows(const PaintPicture& paint, int top, int bottom) const {
    return paintImage(request_, limits_, withinRows(paint, request_.pixelSize.width(), top, bottom));
  }

  const RenderRequest& request_;
  const PictureLimits& limits_;
  const int seam_;
};

/// Whoever draws what is told waits for it.
struct EndOfTelling {
  ToldDrawing& drawing;
  ~EndOfTelling() { drawing.end(); }
};

/// What nobody draws is not kept: a drawing that failed may have been the one that found no memory.
struct EndOfDrawing {
  ToldDrawing& drawing;
  ~EndOfDrawing() { drawing.abandon(); }
};

void clear(cairo_t* context) {
  cairo_save(context);
  cairo_set_operator(context, CAIRO_OPERATOR_CLEAR);
  cairo_paint(context);
  cairo_restore(context);
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
                           const PaintPicture& upper, const PaintPicture& lower, double upperShare) {
  const Halves halves{request, limits, upperShare};
  std::future<Result<Bitmap>> other;  // waited for, whatever happens here, when it goes out of sight
  if (lower) other = onAnotherThread([&] { return halves.lower(lower); });
  Result<Bitmap> image = halves.upper(upper);
  if (!image) return image;
  return halves.joined(std::move(image), other.valid() ? other.get() : halves.lower(upper));
}

Result<Bitmap> paintHalvesByTelling(const RenderRequest& request, const PictureLimits& limits,
                                    const PaintPicture& paint, const PaintPicture& again, double upperShare) {
  const Halves halves{request, limits, upperShare};
  ToldDrawing told;
  const PaintPicture drawTold = [&](cairo_t* context) -> Result<void> {
    if (told.draw(context)) return {};
    clear(context);
    return again(context);
  };
  const PaintPicture tell = [&](cairo_t* context) {
    const ToldDrawing::Teller teller(told, context);
    return paint(context);
  };
  std::future<Result<Bitmap>> other = onAnotherThread([&] {
    const EndOfDrawing end{told};
    return halves.lower(drawTold);
  });
  if (!other.valid()) return paintHalves(request, limits, paint, {}, upperShare);
  Result<Bitmap> image = [&] {
    const EndOfTelling end{told};
    return halves.upper(tell);
  }();
  if (!image) return image;
  return halves.joined(std::move(image), other.get());
}

}  // namespace norvex::engine
