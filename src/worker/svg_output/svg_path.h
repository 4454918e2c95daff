// Paths as the value of a `d` attribute: relative, on a grid of decimals, every command letter once.
#pragma once

#include <QByteArray>
#include <QPointF>
#include <QRectF>

#include "base/affine_transform.h"

class GfxPath;

namespace norvex::engine {

struct SvgPath {
  QByteArray data;
  QRectF bounds;             ///< of all points, those that a curve is drawn to included
  bool isRectangle = false;  ///< `bounds` itself and nothing else
};

/// Takes points in the coordinates of the result. Every point is rounded by itself: errors do not add up.
class SvgPathWriter {
 public:
  explicit SvgPathWriter(int decimals);

  void moveTo(QPointF to);
  void lineTo(QPointF to);
  void curveTo(QPointF first, QPointF second, QPointF to);
  void quadTo(QPointF control, QPointF to);
  void close();
  [[nodiscard]] SvgPath take();
  [[nodiscard]] qsizetype size() const { return data_.size(); }

 private:
  struct Point {
    qint64 x = 0, y = 0;
    bool operator==(const Point&) const = default;
  };
  [[nodiscard]] Point rounded(QPointF point);
  void command(char letter);
  void put(qint64 units);
  void putFrom(Point point);
  void begin();
  void endSubpath();

  int decimals_;
  double scale_;
  QByteArray data_;
  char letter_ = 0;   ///< the command that numbers would go on with
  Point at_, start_;  ///< current point, and where its subpath began
  Point control_;     ///< the last curve's second one, while `curved_`
  bool curved_ = false;
  bool begun_ = false;  ///< the move to start_ is written
  bool dot_ = false;    ///< lines of no length, and nothing else yet: round ends make a dot of them
  double left_, top_, right_, bottom_;
};

/// `path` in user space under `matrix`.
[[nodiscard]] SvgPath svgPath(const GfxPath& path, const AffineTransform& matrix, int decimals);

/// The rectangle as a path.
[[nodiscard]] QByteArray rectanglePath(const QRectF& rect, int decimals);

}  // namespace norvex::engine
