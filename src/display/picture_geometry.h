// The arithmetic between the picture and the view that shows it turned about its centre.
//
// View coordinates: points, y up, (0, 0) is the picture's centre. Picture coordinates: points, y up, origin
// at the lower-left corner of the unrotated picture. Angles are radians, counter-clockwise positive.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace norvex {

inline constexpr double twoPi = 6.283185307179586;

/// `angle` moved by whole turns into 0 … 2π; 2π itself stays 2π. What is not finite is returned as it is.
[[nodiscard]] double normalizedAngle(double angle);

/// Extent of the four corners of a rectangle of `size` turned by `angle` (0 … 2π).
[[nodiscard]] QSizeF rotatedBoundingSize(const QSizeF& size, double angle);

/// A view point as a picture point.
[[nodiscard]] QPointF viewToPicture(const QPointF& point, const QSizeF& imageSize, double rotate);

/// The drawing transform, which takes a picture point to its view point: the inverse of viewToPicture().
[[nodiscard]] QTransform pictureToView(const QSizeF& imageSize, double rotate);

/// True if every number is finite; nothing is drawn or composed with others.
[[nodiscard]] bool isFinite(const QTransform& transform);
[[nodiscard]] bool isFinite(const QRectF& rect);

}  // namespace norvex
