#include "picture/rendering/rendered_layer.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "picture/rendering/nearest_pixels.h"

namespace norvex {
namespace {

// Pixels: small enough that the bitmap's part of a block stays in the processor's nearest memory.
constexpr int kStripHeight = 32;
constexpr int kBlockWidth = 128;

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

void RenderedLayer::paintMapped(QPainter& painter, const QTransform& layerToDevice, const QRegion& wanted,
                                Sampling sampling) const {
  const bool nearest = sampling == Sampling::Nearest;
  const QTransform toPainter = layerToDevice * painter.transform();
  painter.save();
  painter.setClipRegion(wanted, Qt::IntersectClip);
  if (nearest) paintNearest(painter, layerToDevice, wanted);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, !nearest);
  for (const Piece& piece : pieces_) {
    if (nearest && NearestPixels::canRead(piece.image)) continue;
    if (!layerToDevice.mapRect(QRectF(piece.rect)).intersects(wanted.boundingRect())) continue;
    painter.setTransform(QTransform::fromTranslate(piece.rect.x(), piece.rect.y()) * toPainter);
    painter.drawImage(QPoint(), piece.image);
  }
  painter.restore();
}

/// Strip by strip, so that what is copied is still at hand when it is painted.
void RenderedLayer::paintNearest(QPainter& painter, const QTransform& layerToDevice,
                                 const QRegion& wanted) const {
  const QRect all = wanted.boundingRect();
  QList<NearestPixels> pieces;
  for (const Piece& piece : pieces_) {
    if (!NearestPixels::canRead(piece.image)) continue;
    const QTransform place = QTransform::fromTranslate(piece.rect.x(), piece.rect.y()) * layerToDevice;
    const NearestPixels pixels(piece.image, place);
    if (pixels.bounds().intersects(all)) pieces << pixels;
  }
  if (pieces.isEmpty()) return;
  QImage strip(all.width(), kStripHeight, QImage::Format_ARGB32_Premultiplied);
  for (int top = all.top(); top <= all.bottom(); top += kStripHeight) {
    const QRegion rows = wanted & QRect(all.left(), top, all.width(), kStripHeight);
    if (rows.isEmpty()) continue;
    const QRect bounds = rows.boundingRect();
    strip.fill(Qt::transparent);
    for (int left = bounds.left(); left <= bounds.right(); left += kBlockWidth) {
      const QRect block = QRect(left, bounds.top(), kBlockWidth, bounds.height()) & bounds;
      if (!rows.intersects(block)) continue;
      for (const NearestPixels& pixels : std::as_const(pieces)) pixels.copy(block, strip, bounds.topLeft());
    }
    painter.drawImage(bounds.topLeft(), strip, QRect(QPoint(), bounds.size()));
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
