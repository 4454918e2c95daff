#include "picture/rendering/render_rects.h"

#include <cmath>

namespace norvex {
namespace {

constexpr int kMaximumRects = 4;  // every rectangle costs a walk through the whole picture

int floorTo(int value, int grid) {
  return int(std::floor(double(value) / grid)) * grid;
}

QRect snapped(const QRect& rect, int grid) {
  const QPoint from(floorTo(rect.left(), grid), floorTo(rect.top(), grid));
  const QPoint to(floorTo(rect.right(), grid) + grid - 1, floorTo(rect.bottom(), grid) + grid - 1);
  return QRect(from, to);
}

}  // namespace

qint64 pixelCount(const QRect& rect) {
  return qint64(rect.width()) * rect.height();
}

QRect wantedRect(const QRect& visible, const QRect& box, const RenderRectLimits& limits, bool withMargin) {
  if (pixelCount(box) <= limits.wholePixels) return box;
  QRect rect = visible;
  if (withMargin) rect.adjust(-limits.tile, -limits.tile, limits.tile, limits.tile);
  if (pixelCount(rect) > limits.visiblePixels) {
    const int side = int(std::sqrt(double(limits.visiblePixels)));
    const QRect middle(rect.center() - QPoint(side / 2, side / 2), QSize(side, side));
    rect &= middle;
  }
  return snapped(rect, limits.tile) & box;
}

QList<QRect> piecesOf(const QRegion& missing) {
  qint64 area = 0;
  for (const QRect& rect : missing) area += pixelCount(rect);
  const QRect bounds = missing.boundingRect();
  const bool merge = missing.rectCount() > kMaximumRects || pixelCount(bounds) < area * 2;
  QList<QRect> pieces;
  for (const QRect& rect : merge ? QRegion(bounds) : missing)
    for (int y = rect.top(); y <= rect.bottom(); y += longestPiece)
      for (int x = rect.left(); x <= rect.right(); x += longestPiece)
        pieces << (QRect(x, y, longestPiece, longestPiece) & rect);
  return pieces;
}

}  // namespace norvex
