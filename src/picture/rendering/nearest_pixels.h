// NearestPixels: a scaled or turned bitmap, each device pixel filled by the nearest of the bitmap's.
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QTransform>

namespace norvex {

/// What QPainter would paint without smoothing, in about half of its time: a movement paints hundreds of such
/// frames. Pixels, y down, a bitmap's own origin at its top-left. The bitmap is shared. One thread at a time.
class NearestPixels {
 public:
  /// Premultiplied, of 32 bits, and not so large that 16 bits do not count its rows and columns.
  [[nodiscard]] static bool canRead(const QImage& bitmap);

  /// REQUIRES canRead(). A transformation that leaves less than a pixel of the bitmap, or that cannot be
  /// inverted, fills nothing.
  NearestPixels(const QImage& bitmap, const QTransform& bitmapToDevice);

  /// The pixels that are filled lie in this rectangle.
  [[nodiscard]] const QRect& bounds() const { return bounds_; }
  /// Writes those pixels of `within` whose middles lie inside the bitmap, without blending, and leaves the
  /// others. `target` is premultiplied ARGB of 32 bits; its pixel (0, 0) is the device pixel `origin`.
  void copy(const QRect& within, QImage& target, const QPoint& origin) const;

 private:
  struct Run;
  [[nodiscard]] Run runFrom(double column, double row, int length) const;

  QImage bitmap_;
  QTransform toBitmap_;
  QRect bounds_;
};

}  // namespace norvex
