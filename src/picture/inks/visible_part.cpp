#include "picture/inks/visible_part.h"

#include <algorithm>
#include <cmath>

#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr double kPointsPerInch = 72;

}  // namespace

std::optional<SeparationRequest> visiblePart(const QSizeF& size, const QRectF& visible,
                                             double pixelsPerPoint) {
  const QRectF seen = visible & QRectF(QPointF(0, 0), size);
  if (seen.isEmpty() || !(pixelsPerPoint > 0)) return std::nullopt;
  double scale = std::clamp(pixelsPerPoint, 1 / kPointsPerInch, limits::maximumDpi / kPointsPerInch);
  const double pixels = (seen.width() * scale + 2) * (seen.height() * scale + 2);
  if (pixels > limits::maximumPlatePixels) {
    // A pixel more on each side has room as well.
    const double most = std::sqrt(double(limits::maximumPlatePixels) / pixels);
    scale = std::max(1 / kPointsPerInch, scale * most * 0.999);
  }
  const double left = std::floor(seen.left() * scale), right = std::ceil(seen.right() * scale);
  const double bottom = std::floor(seen.top() * scale), top = std::ceil(seen.bottom() * scale);
  SeparationRequest request;
  request.dpi = scale * kPointsPerInch;
  request.part = QRectF(left / scale, bottom / scale, (right - left) / scale, (top - bottom) / scale);
  return request;
}

QPoint pixelAt(const PageInks& inks, const QRectF& part, const QPointF& point) {
  if (part.isEmpty()) return {-1, -1};
  const QPointF share((point.x() - part.x()) / part.width(), 1 - (point.y() - part.y()) / part.height());
  return {int(std::floor(std::clamp(share.x(), -1.0, 2.0) * inks.pixels.width())),
          int(std::floor(std::clamp(share.y(), -1.0, 2.0) * inks.pixels.height()))};
}

}  // namespace norvex
