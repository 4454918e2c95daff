// AffineTransform: what maps a picture onto pixels or points, where QTransform would be used were it not part
// of Qt Gui. The picture process does not load that: linking it takes longer than drawing a small picture.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QtNumeric>

#include <concepts>

namespace norvex {

/// (x, y) → (m11·x + m21·y + dx, m12·x + m22·y + dy). A value. a * b maps through a first, then through b.
class AffineTransform {
 public:
  constexpr AffineTransform() = default;
  constexpr AffineTransform(double m11, double m12, double m21, double m22, double dx, double dy)
      : m11_(m11), m12_(m12), m21_(m21), m22_(m22), dx_(dx), dy_(dy) {}
  /// A QTransform. One with a perspective is no affine map: its numbers become NaN, which nobody accepts.
  template <typename Matrix>
  requires requires(const Matrix& matrix) {
    { matrix.isAffine() } -> std::same_as<bool>;
  }
  AffineTransform(const Matrix& m)
      : AffineTransform(m.isAffine()
                            ? AffineTransform(m.m11(), m.m12(), m.m21(), m.m22(), m.dx(), m.dy())
                            : AffineTransform(qQNaN(), qQNaN(), qQNaN(), qQNaN(), qQNaN(), qQNaN())) {}

  [[nodiscard]] static constexpr AffineTransform fromTranslate(double dx, double dy) {
    return {1, 0, 0, 1, dx, dy};
  }
  [[nodiscard]] static constexpr AffineTransform fromScale(double x, double y) { return {x, 0, 0, y, 0, 0}; }

  [[nodiscard]] constexpr double m11() const { return m11_; }
  [[nodiscard]] constexpr double m12() const { return m12_; }
  [[nodiscard]] constexpr double m21() const { return m21_; }
  [[nodiscard]] constexpr double m22() const { return m22_; }
  [[nodiscard]] constexpr double dx() const { return dx_; }
  [[nodiscard]] constexpr double dy() const { return dy_; }
  [[nodiscard]] constexpr double determinant() const { return m11_ * m22_ - m12_ * m21_; }
  /// True when every number is finite.
  [[nodiscard]] bool isFinite() const;
  /// True when it maps the plane onto the plane, not onto a line or a point; exactly, however flat.
  [[nodiscard]] constexpr bool isInvertible() const { return determinant() != 0; }
  [[nodiscard]] constexpr bool isIdentity() const { return *this == AffineTransform(); }
  constexpr bool operator==(const AffineTransform&) const = default;

  /// The identity for a map that is not invertible.
  [[nodiscard]] AffineTransform inverted() const;
  [[nodiscard]] QPointF map(const QPointF& point) const;
  /// The bounding rectangle of the mapped corners.
  [[nodiscard]] QRectF mapRect(const QRectF& rect) const;

 private:
  double m11_ = 1, m12_ = 0, m21_ = 0, m22_ = 1, dx_ = 0, dy_ = 0;
};

[[nodiscard]] AffineTransform operator*(const AffineTransform& first, const AffineTransform& second);

}  // namespace norvex
