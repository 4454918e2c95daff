// RenderedLayer: the bitmaps that were rendered under one scale and angle.
#pragma once

#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QSizeF>
#include <QTransform>

class QPainter;

namespace norvex {

/// How a scaled or turned bitmap is painted: between four of its pixels, or by the nearest one, which takes
/// a third of the time.
enum class Sampling { Smooth, Nearest };

/// Layer coordinates: device pixels under transform(), y down; its translation is below one pixel, so that a
/// layer stays where it is while the view scrolls. A value; the bitmaps are shared. One thread at a time.
class RenderedLayer {
 public:
  explicit RenderedLayer(const QTransform& pictureToLayer) : transform_(pictureToLayer) {}

  [[nodiscard]] const QTransform& transform() const { return transform_; }
  /// How far a point of a picture of this size moves at most between the layer and a view, the translation
  /// aside; pixels.
  [[nodiscard]] double distance(const QTransform& pictureToDevice, const QSizeF& pictureSize) const;
  /// True if `pictureToDevice` has the same scale and angle, so exactly that no pixel moves visibly.
  [[nodiscard]] bool fits(const QTransform& pictureToDevice, const QSizeF& pictureSize) const {
    return distance(pictureToDevice, pictureSize) < 0.05;
  }
  /// Device position of layer pixel (0, 0), to the nearest whole pixel. REQUIRES fits().
  [[nodiscard]] QPoint offset(const QTransform& pictureToDevice) const;

  void add(const QRect& rect, const QImage& image);
  [[nodiscard]] const QRegion& covered() const { return covered_; }
  [[nodiscard]] bool covers(const QRect& rect) const { return (QRegion(rect) - covered_).isEmpty(); }
  [[nodiscard]] qint64 bytes() const;
  /// Gives up the bitmaps that lie wholly outside `keep`, the farthest first, until bytes() <= `budget`.
  void shrink(qint64 budget, const QRect& keep);

  // The painter's transform is the identity on device pixels.
  /// Pixel for pixel. `wanted` in device pixels.
  void paintExactly(QPainter& painter, const QPoint& offset, const QRegion& wanted) const;
  /// Scaled or turned.
  void paintMapped(QPainter& painter, const QTransform& layerToDevice, const QRegion& wanted,
                   Sampling sampling = Sampling::Smooth) const;
  /// The pixels of `within` that paintMapped() fills, each bitmap grown by `margin` device pixels.
  [[nodiscard]] QRegion mappedRegion(const QTransform& layerToDevice, double margin,
                                     const QRegion& within) const;

 private:
  struct Piece {
    QRect rect;
    QImage image;
  };
  void paintNearest(QPainter& painter, const QTransform& layerToDevice, const QRegion& wanted) const;

  QTransform transform_;
  QList<Piece> pieces_;
  QRegion covered_;
};

/// The rectangle of whole pixels around `rect`, kept in a range in which integers cannot overflow.
[[nodiscard]] QRect pixelRect(const QRectF& rect);
/// The pixels of `within` that the mapped rectangle fills: those whose middles lie inside.
[[nodiscard]] QRegion mappedRect(const QTransform& transform, const QRectF& rect, const QRegion& within);

}  // namespace norvex
