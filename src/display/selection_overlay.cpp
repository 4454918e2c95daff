#include "display/selection_overlay.h"

#include <QColor>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <cmath>

#include "display/picture_geometry.h"

namespace norvex {
namespace {

/// Device coordinates beyond which nothing can be seen and integers would overflow.
constexpr double farthestPixel = 1.0e6;

double nearPixel(double value) {
  return std::clamp(value, -farthestPixel, farthestPixel);
}

/// The painter with device pixels as its coordinates, restored at the end of its life.
class DevicePixels {
 public:
  explicit DevicePixels(QPainter& painter) : painter_(painter), toDevice_(painter.deviceTransform()) {
    bool invertible = false;
    const QTransform back = toDevice_.inverted(&invertible);
    usable_ = invertible && isFinite(toDevice_) && isFinite(back);
    painter_.save();
    if (!usable_) return;
    painter_.setWorldTransform(back * painter_.worldTransform());
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setPen(Qt::NoPen);
    thickness_ = std::max(1.0, std::round(painter.device() ? painter.device()->devicePixelRatioF() : 1.0));
  }
  ~DevicePixels() { painter_.restore(); }
  DevicePixels(const DevicePixels&) = delete;
  DevicePixels& operator=(const DevicePixels&) = delete;

  [[nodiscard]] bool usable() const { return usable_; }
  /// Of a line, in device pixels.
  [[nodiscard]] double thickness() const { return thickness_; }

  /// The upright rectangle between two points, unrounded.
  [[nodiscard]] QRectF rectBetween(const QPointF& a, const QPointF& b) const {
    const QPointF p = toDevice_.map(a), q = toDevice_.map(b);
    return QRectF(QPointF(nearPixel(std::min(p.x(), q.x())), nearPixel(std::min(p.y(), q.y()))),
                  QPointF(nearPixel(std::max(p.x(), q.x())), nearPixel(std::max(p.y(), q.y()))));
  }

  /// First pixel of a line centred on `centre`, kept between the pixel edges `low` and `high`.
  [[nodiscard]] double lineStart(double centre, double low, double high) const {
    const double start = std::floor(centre - thickness_ * 0.5 + 0.5);
    return std::max(low, std::min(start, high - thickness_));
  }

 private:
  QPainter& painter_;
  QTransform toDevice_;
  double thickness_ = 1;
  bool usable_ = false;
};

QRectF onPixels(const QRectF& rect) {
  const double left = std::round(rect.left()), top = std::round(rect.top());
  return {left, top, std::round(rect.right()) - left, std::round(rect.bottom()) - top};
}

}  // namespace

void drawSelectionOutline(QPainter& painter, const OverlayFrame& frame, const QPointF& corner,
                          const QPointF& opposite) {
  const DevicePixels device(painter);
  if (!device.usable()) return;
  const QRectF view = onPixels(device.rectBetween(frame.boundsCorner, frame.boundsOpposite));
  const QRectF rect = device.rectBetween(corner, opposite);
  const double t = device.thickness();
  const double left = device.lineStart(rect.left(), view.left(), view.right());
  const double right = device.lineStart(rect.right(), view.left(), view.right());
  const double top = device.lineStart(rect.top(), view.top(), view.bottom());
  const double bottom = device.lineStart(rect.bottom(), view.top(), view.bottom());
  QPainterPath outline;  // the hole between the lines is left out by the odd-even rule
  outline.addRect(left, top, right + t - left, bottom + t - top);
  if (right > left + t && bottom > top + t)
    outline.addRect(left + t, top + t, right - left - t, bottom - top - t);
  painter.fillPath(outline, QColor::fromRgbF(0, 0, 1, 0.75f));
  // Beside the line, not under it: its colour stays its own, and on dark art it is seen all the same.
  const QRectF outer(left, top, right + t - left, bottom + t - top);
  QPainterPath halo;
  halo.addRect(outer.adjusted(-t, -t, t, t) & view);
  halo.addRect(outer);
  if (right - left > 3 * t && bottom - top > 3 * t) {
    halo.addRect(outer.adjusted(t, t, -t, -t));
    halo.addRect(outer.adjusted(2 * t, 2 * t, -2 * t, -2 * t));
  }
  painter.fillPath(halo, QColor::fromRgbF(1, 1, 1, 0.75f));
}

void drawSelectionCrosshair(QPainter& painter, const OverlayFrame& frame, const QPointF& point) {
  const DevicePixels device(painter);
  if (!device.usable()) return;
  const QRectF view = onPixels(device.rectBetween(frame.boundsCorner, frame.boundsOpposite));
  const QPointF at = device.rectBetween(point, point).topLeft();
  const double t = device.thickness();
  const QRectF upright(device.lineStart(at.x(), view.left(), view.right()), view.top(), t, view.height());
  const QRectF level(view.left(), device.lineStart(at.y(), view.top(), view.bottom()), view.width(), t);
  const QColor red = QColor::fromRgbF(1, 0, 0, 0.75f);
  painter.fillRect(upright, red);
  QPainterPath both;
  both.setFillRule(Qt::WindingFill);
  both.addRect(upright);
  both.addRect(level);
  painter.fillPath(both, red);
}

}  // namespace norvex
