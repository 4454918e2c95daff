#include "display/picture_geometry.h"

#include <cmath>

namespace norvex {
namespace {

constexpr double quadrantsPerRadian = 0.6366197723675814;
/// Beyond so many radians the remainder is taken at once, so that no angle keeps the loops below busy.
constexpr double largestLoopedAngle = 1000;

}  // namespace

double normalizedAngle(double angle) {
  if (!std::isfinite(angle)) return angle;
  if (std::abs(angle) > largestLoopedAngle) angle = std::fmod(angle, twoPi);
  while (angle < 0) angle += twoPi;
  while (angle > twoPi) angle -= twoPi;
  return angle;
}

QSizeF rotatedBoundingSize(const QSizeF& size, double angle) {
  const double w = size.width(), h = size.height();
  const double s = std::sin(angle), c = std::cos(angle);
  // The corners that are extreme differ from quadrant to quadrant. What is not finite has none.
  const double quadrant = std::isfinite(angle) ? std::trunc(angle * quadrantsPerRadian) : 0;
  if (quadrant == 1) return {h * s - w * c, w * s - h * c};
  if (quadrant == 2) return {-h * s - w * c, -w * s - h * c};
  if (quadrant == 3) return {w * c - h * s, h * c - w * s};
  return {w * c + h * s, w * s + h * c};
}

QPointF viewToPicture(const QPointF& point, const QSizeF& imageSize, double rotate) {
  const double s = std::sin(rotate), c = std::cos(rotate);
  return {imageSize.width() * 0.5 + c * point.x() + s * point.y(),
          imageSize.height() * 0.5 - s * point.x() + c * point.y()};
}

QTransform pictureToView(const QSizeF& imageSize, double rotate) {
  const double s = std::sin(rotate), c = std::cos(rotate);
  const QTransform turn(c, s, -s, c, 0, 0);
  return QTransform::fromTranslate(-0.5 * imageSize.width(), -0.5 * imageSize.height()) * turn;
}

bool isFinite(const QTransform& t) {
  return std::isfinite(t.m11()) && std::isfinite(t.m12()) && std::isfinite(t.m21()) &&
         std::isfinite(t.m22()) && std::isfinite(t.dx()) && std::isfinite(t.dy());
}

bool isFinite(const QRectF& rect) {
  return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width()) &&
         std::isfinite(rect.height());
}

}  // namespace norvex
