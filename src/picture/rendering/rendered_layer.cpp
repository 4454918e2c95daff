#include "picture/rendering/rendered_layer.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/background_threads.h"

namespace norvex {
namespace {

struct Extent {
  double from = std::numeric_limits<double>::infinity();
  double to = -std::numeric_limits<double>::infinity();
};

Extent extentAt(const QPolygonF& convex, double y) {
  Extent extent;
  for (qsizetype i = 0; i < convex.size(); ++i) {
    const QPointF a = convex[i], b = convex[(i + 1) % convex.size()];
    if ((a.y() <= y) == (b.y() <= y)) continue;
    const double x = a.x() + (y - a.y()) * (b.x() - a.x()) / (b.y() - a.y());
    extent.from = std::min(extent.from, x);
    extent.to = std::max(extent.to, x);
  }
  return extent;
}

/// The pixels of `bounds` whose middles lie inside. A frame asks dozens of times; QRegion takes several times
/// as long to fill a polygon.
QRegion insideOf(const QPolygonF& convex, const QRect& bounds) {
  QList<QRect> rows;
  for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
    const Extent extent = extentAt(convex, y + 0.5);
    const double left = std::max(extent.from, double(bounds.left()));
    const double right = std::min(extent.to, double(bounds.right() + 1));
    if (left >= right) continue;
    const QRect row(QPoint(int(std::ceil(left - 0.5)), y), QPoint(int(std::floor(right - 0.5)), y));
    if (!row.isValid()) continue;
    if (!rows.isEmpty() && rows.last().left() == row.left() && rows.last().right() == row.right())
      rows.last().setBottom(y);
    else
      rows << row;
  }
  QRegion region;
  region.setRects(rows.constData(), int(rows.size()));
  return region;
}

}  // namespace

QRect pixelRect(const QRectF& rect) {
  constexpr double far = 1 << 28;
  const QRectF sane = rect & QRectF(-far, -far, 2 * far, 2 * far);
  return sane.isEmpty() ? QRect() : sane.toAlignedRect();
}

QRegion mappedRect(const QTransform& t, const QRectF& rect, const QRegion& within) {
  if (rect.isEmpty() || within.isEmpty()) return {};
  const QRect bounds = within.boundingRect() & pixelRect(t.mapRect(rect));
  if (t.type() <= QTransform::TxScale) return within & bounds;
  return insideOf(t.map(QPolygonF(rect)), bounds) & within;
}

double RenderedLayer::distance(const QTransform& t, const QSizeF& size) const {
  const double x = std::abs(t.m11() - transform_.m11()) * size.width() +
                   std::abs(t.m21() - transform_.m21()) * size.height();
  const double y = std::abs(t.m12() - transform_.m12()) * size.width() +
                   std::abs(t.m22() - transform_.m22()) * size.height();
  return std::max(x, y);
}

QPoint RenderedLayer::offset(const QTransform& t) const {
  return QPointF(t.dx() - transform_.dx(), t.dy() - transform_.dy()).toPoint();
}

void RenderedLayer::add(const QRect& rect, const QImage& image) {
  pieces_.removeIf([&](const Piece& piece) { return rect.contains(piece.rect); });
  pieces_.append({rect, image, {}, {}});
  covered_ += rect;
}

qint64 RenderedLayer::bytes() const {
  qint64 sum = 0;
  for (const Piece& piece : pieces_) sum += piece.bytes();
  return sum;
}

void RenderedLayer::shrink(qint64 budget, const QRect& keep) {
  const auto distance = [&](const Piece& piece) {
    return (piece.rect.center() - keep.center()).manhattanLength();
  };
  std::sort(pieces_.begin(), pieces_.end(),
            [&](const Piece& a, const Piece& b) { return distance(a) < distance(b); });
  qint64 total = bytes();
  for (qsizetype i = pieces_.size() - 1; i >= 0 && total > budget; --i) {
    if (pieces_[i].rect.intersects(keep)) continue;
    total -= pieces_[i].bytes();
    pieces_.removeAt(i);
  }
  covered_ = {};
  for (const Piece& piece : pieces_) covered_ += piece.rect;
}

void RenderedLayer::paintExactly(QPainter& painter, const QPoint& offset, const QRegion& wanted) const {
  QRegion left = wanted.translated(-offset);
  for (const Piece& piece : pieces_) {  // each pixel once: translucent ones must not be blended twice
    for (const QRect& part : left& piece.rect)
      painter.drawImage(part.topLeft() + offset, piece.image, part.translated(-piece.rect.topLeft()));
    left -= piece.rect;
  }
}

void RenderedLayer::paintMapped(QPainter& painter, const QTransform& layerToDevice, const QRegion& wanted,
                                Sampling sampling) const {
  const QTransform toPainter = layerToDevice * painter.transform();
  const double tilt = std::abs(layerToDevice.m12()), upright = std::abs(layerToDevice.m11());
  QList<const Piece*> visible;
  for (const Piece& piece : pieces_)
    if (layerToDevice.mapRect(QRectF(piece.rect)).intersects(wanted.boundingRect())) visible << &piece;
  if (tilt > upright / 2) prepareNextTurned(visible);
  painter.save();
  painter.setClipRegion(wanted, Qt::IntersectClip);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, sampling == Sampling::Smooth);
  for (const Piece* piece : std::as_const(visible)) {
    const QRect& rect = piece->rect;
    const bool turned = tilt > upright && piece->hasTurned();
    const QTransform place = turned ? QTransform(0, -1, 1, 0, rect.x(), rect.y() + rect.height())
                                    : QTransform::fromTranslate(rect.x(), rect.y());
    painter.setTransform(place * toPainter);
    painter.drawImage(QPoint(), turned ? *piece->turned : piece->image);
  }
  painter.restore();
}

/// One at a time: frames need the processor too.
void RenderedLayer::prepareNextTurned(const QList<const Piece*>& pieces) {
  for (const Piece* piece : pieces) {
    if (piece->hasTurned()) continue;
    if (piece->turned) return;
    const auto turned = std::make_shared<QImage>();
    piece->turned = turned;
    piece->turning = startWork(yieldingThread(), [turned, bitmap = piece->image] {
      *turned = bitmap.transformed(QTransform().rotate(90));
    });
    return;
  }
}

QRegion RenderedLayer::mappedRegion(const QTransform& layerToDevice, double margin,
                                    const QRegion& within) const {
  const double around = margin / std::sqrt(std::abs(layerToDevice.determinant()));
  QRegion region;
  for (const QRect& rect : covered_)
    region += mappedRect(layerToDevice, QRectF(rect).adjusted(-around, -around, around, around), within);
  return region;
}

}  // namespace norvex
