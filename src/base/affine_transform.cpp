#include "base/affine_transform.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace norvex {

bool AffineTransform::isFinite() const {
  const std::array numbers{m11_, m12_, m21_, m22_, dx_, dy_};
  return std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isfinite(number); });
}

AffineTransform AffineTransform::inverted() const {
  if (!isInvertible()) return {};
  // Where nothing is turned the factors stay exact.
  if (m12_ == 0 && m21_ == 0) return {1 / m11_, 0, 0, 1 / m22_, -dx_ / m11_, -dy_ / m22_};
  const double d = determinant();
  return {
      m22_ / d, -m12_ / d, -m21_ / d, m11_ / d, (m21_ * dy_ - m22_ * dx_) / d, (m12_ * dx_ - m11_ * dy_) / d};
}

QPointF AffineTransform::map(const QPointF& point) const {
  return {m11_ * point.x() + m21_ * point.y() + dx_, m12_ * point.x() + m22_ * point.y() + dy_};
}

QRectF AffineTransform::mapRect(const QRectF& rect) const {
  const std::array corners{map(rect.topLeft()), map(rect.topRight()), map(rect.bottomLeft()),
                           map(rect.bottomRight())};
  const auto [left, right] =
      std::minmax_element(corners.begin(), corners.end(), [](QPointF a, QPointF b) { return a.x() < b.x(); });
  const auto [top, bottom] =
      std::minmax_element(corners.begin(), corners.end(), [](QPointF a, QPointF b) { return a.y() < b.y(); });
  return {left->x(), top->y(), right->x() - left->x(), bottom->y() - top->y()};
}

AffineTransform operator*(const AffineTransform& a, const AffineTransform& b) {
  const QPointF origin = b.map({a.dx(), a.dy()});
  return {a.m11() * b.m11() + a.m12() * b.m21(),
          a.m11() * b.m12() + a.m12() * b.m22(),
          a.m21() * b.m11() + a.m22() * b.m21(),
          a.m21() * b.m12() + a.m22() * b.m22(),
          origin.x(),
          origin.y()};
}

}  // namespace norvex
