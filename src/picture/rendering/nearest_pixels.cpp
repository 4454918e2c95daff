#include "picture/rendering/nearest_pixels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "picture/rendering/rendered_layer.h"

namespace norvex {
namespace {

constexpr int kMaximumSide = 32767;
constexpr double kOne = 65536;  // positions have 16 bits behind the point

std::int64_t fixedPoint(double value) {
  return static_cast<std::int64_t>(std::floor(value * kOne));
}

struct Span {
  double from;
  double to;
};

/// The steps after which `start` plus that many `step` lies in [0, size).
void clip(double start, double step, int size, Span& span) {
  if (step == 0) {
    if (start < 0 || start >= size) span.to = span.from;
    return;
  }
  const double first = -start / step, last = (size - start) / step;
  span.from = std::max(span.from, std::min(first, last));
  span.to = std::min(span.to, std::max(first, last));
}

}  // namespace

/// Pixels of a row whose nearest ones all lie inside the bitmap.
struct NearestPixels::Run {
  std::int64_t column, row, columnStep, rowStep;
  int skipped, length;

  [[nodiscard]] bool isInside(int index, const QImage& bitmap) const {
    const std::int64_t x = (column + index * columnStep) >> 16, y = (row + index * rowStep) >> 16;
    return x >= 0 && y >= 0 && x < bitmap.width() && y < bitmap.height();
  }
  void copy(const std::uint32_t* pixels, std::uint32_t stride, std::uint32_t* to) const;
};

// Four at a time: their places in the bitmap are one multiplication of pairs of 16 bits.
void NearestPixels::Run::copy(const std::uint32_t* pixels, std::uint32_t stride, std::uint32_t* to) const {
  auto x = static_cast<std::uint32_t>(column), y = static_cast<std::uint32_t>(row);
  const auto dx = static_cast<std::uint32_t>(columnStep), dy = static_cast<std::uint32_t>(rowStep);
  if (dy == 0) {  // neither turned nor slanted
    const std::uint32_t* const line = pixels + std::size_t(y >> 16) * stride;
    for (int each = 0; each < length; ++each, x += dx) to[each] = line[x >> 16];
    return;
  }
  int i = 0;
#ifdef __SSE2__
  const auto four = [](std::uint32_t from, std::uint32_t step) {
    return _mm_setr_epi32(int(from), int(from + step), int(from + 2 * step), int(from + 3 * step));
  };
  __m128i columns = four(x, dx), rows = four(y, dy);
  const __m128i wider = _mm_set1_epi32(int(4 * dx)), lower = _mm_set1_epi32(int(4 * dy));
  const __m128i upperHalf = _mm_set1_epi32(int(0xffff0000U)), weights = _mm_set1_epi32(int(stride << 16 | 1));
  for (; i + 4 <= length; i += 4) {
    const __m128i places =
        _mm_madd_epi16(_mm_or_si128(_mm_srli_epi32(columns, 16), _mm_and_si128(rows, upperHalf)), weights);
    columns = _mm_add_epi32(columns, wider);
    rows = _mm_add_epi32(rows, lower);
    alignas(16) std::uint32_t place[4];
    _mm_store_si128(reinterpret_cast<__m128i*>(place), places);
    for (int each = 0; each < 4; ++each) to[i + each] = pixels[place[each]];
  }
  x += std::uint32_t(i) * dx;
  y += std::uint32_t(i) * dy;
#endif
  for (; i < length; ++i, x += dx, y += dy) to[i] = pixels[std::size_t(y >> 16) * stride + (x >> 16)];
}

bool NearestPixels::canRead(const QImage& bitmap) {
  return bitmap.format() == QImage::Format_ARGB32_Premultiplied && bitmap.width() <= kMaximumSide &&
         bitmap.height() <= kMaximumSide && bitmap.bytesPerLine() / 4 <= kMaximumSide;
}

NearestPixels::NearestPixels(const QImage& bitmap, const QTransform& bitmapToDevice) : bitmap_(bitmap) {
  bool isInvertible = false;
  toBitmap_ = bitmapToDevice.inverted(&isInvertible);
  if (!isInvertible || !bitmapToDevice.isAffine()) return;
  const double step = std::max(std::abs(toBitmap_.m11()), std::abs(toBitmap_.m12()));
  const double shift = std::abs(toBitmap_.dx()) + std::abs(toBitmap_.dy());
  if (!(step < kMaximumSide) || !std::isfinite(shift)) return;
  bounds_ = pixelRect(bitmapToDevice.mapRect(QRectF(bitmap_.rect())));
}

NearestPixels::Run NearestPixels::runFrom(double column, double row, int length) const {
  Span span{0, double(length)};
  clip(column, toBitmap_.m11(), bitmap_.width(), span);
  clip(row, toBitmap_.m12(), bitmap_.height(), span);
  Run run{0, 0, std::llround(toBitmap_.m11() * kOne), std::llround(toBitmap_.m12() * kOne), 0, 0};
  if (!(span.from < span.to)) return run;
  run.skipped = int(std::ceil(span.from));
  run.length = std::min(int(std::ceil(span.to)), length) - run.skipped;
  if (run.length <= 0) return run;
  run.column = fixedPoint(column + run.skipped * toBitmap_.m11());
  run.row = fixedPoint(row + run.skipped * toBitmap_.m12());
  // What rounding has moved across the edge. Between two ends that lie inside, everything does.
  while (run.length > 0 && !run.isInside(0, bitmap_)) {
    run.column += run.columnStep;
    run.row += run.rowStep;
    ++run.skipped;
    --run.length;
  }
  while (run.length > 0 && !run.isInside(run.length - 1, bitmap_)) --run.length;
  return run;
}

void NearestPixels::copy(const QRect& within, QImage& target, const QPoint& origin) const {
  const QRect rect = within & bounds_ & target.rect().translated(origin);
  if (rect.isEmpty()) return;
  const auto* pixels = reinterpret_cast<const std::uint32_t*>(bitmap_.constBits());
  const auto stride = std::uint32_t(bitmap_.bytesPerLine() / 4);
  for (int y = rect.top(); y <= rect.bottom(); ++y) {
    const QPointF start = toBitmap_.map(QPointF(rect.left() + 0.5, y + 0.5));
    const Run run = runFrom(start.x(), start.y(), rect.width());
    auto* line = reinterpret_cast<std::uint32_t*>(target.scanLine(y - origin.y()));
    if (run.length > 0) run.copy(pixels, stride, line + rect.left() - origin.x() + run.skipped);
  }
}

}  // namespace norvex
