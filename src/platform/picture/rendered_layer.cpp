#include "platform/picture/rendered_layer.h"

#include <QPainter>
#include <QPolygon>

#include <algorithm>
#include <cmath>

namespace norvex {

QRect pixelRect(const QRectF& rect) {
  constexpr double far = 1 << 28;
  const QRectF sane = rect & QRectF(-far, -far, 2 * far, 2 * far);
  return sane.isEmpty() ? QRect() : sane.toAlignedRect();
}

namespace {

/// Without its outermost pixels: along a slanted edge, rounding decides which of them are painted.
QRegion eroded(const QRegion& region) {
  return region & region.translated(1, 0) & region.translated(-1, 0) & region.translated(0, 1) &
         region.translated(0, -1);
}

}  // namespace

bool RenderedLayer::fits(const QTransform& t, const QSizeF& size) const {
  const double x = std::abs(t.m11() - transform_.m11()) * size.width() +
                   std::abs(t.m21() - transform_.m21()) * size.height();
  const double y = std::abs(t.m12() - transform_.m12()) * size.width() +
                   std::abs(t.m22() - transform_.m22()) * size.height();
  return x < 0.05 && y < 0.05;  // pixels over the whole picture
}

QPoint RenderedLayer::offset(const QTransform& t) const {
  return QPointF(t.dx() - transform_.dx(), t.dy() - transform_.dy()).toPoint();
}

void RenderedLayer::add(const QRect& rect, const QImage& image) {
  pieces_.removeIf([&](const Piece& piece) { return rect.contains(piece.rect); });
  pieces_.append({rect, image});
  covered_ += rect;
}

qint64 RenderedLayer::bytes() const {
  qint64 sum = 0;
  for (const Piece& piece : pieces_) sum += piece.image.sizeInBytes();
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
    total -= pieces_[i].image.sizeInBytes();
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

void RenderedLayer::paintMapped(QPainter& painter, const QTransform& layerToDevice,
                                const QRegion& wanted) const {
  painter.save();
  painter.setClipRegion(wanted, Qt::IntersectClip);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setTransform(layerToDevice, true);
  for (const Piece& piece : pieces_) painter.drawImage(piece.rect.topLeft(), piece.image);
  painter.restore();
}

QRegion RenderedLayer::mappedRegion(const QTransform& layerToDevice, const QRegion& within) const {
  const QRectF bounds = QRectF(within.boundingRect()).adjusted(-3, -3, 3, 3);
  QRegion region;
  for (const QRect& rect : covered_) {
    if (layerToDevice.type() <= QTransform::TxScale) {
      region += pixelRect(layerToDevice.mapRect(QRectF(rect)) & bounds);
      continue;
    }
    const QPolygonF part = layerToDevice.map(QPolygonF(QRectF(rect))).intersected(QPolygonF(bounds));
    if (!part.isEmpty()) region += QRegion(part.toPolygon());
  }
  return eroded(region) & within;
}

}  // namespace norvex
