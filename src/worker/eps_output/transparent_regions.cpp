#include "worker/eps_output/transparent_regions.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "protocol/limits.h"
#include "worker/pdf/pdf_render.h"

namespace norvex::engine {
namespace {

constexpr int kCell = 8;       // pixels a side of the grid on which differences are gathered
constexpr int kInvisible = 6;  // of 255: what smoothing makes of the same edge drawn twice
constexpr double kLookDpi = 150;

bool differs(Argb32 a, Argb32 b) {
  return std::abs(red(a) - red(b)) > kInvisible || std::abs(green(a) - green(b)) > kInvisible ||
         std::abs(blue(a) - blue(b)) > kInvisible || std::abs(alpha(a) - alpha(b)) > kInvisible;
}

class Grid {
 public:
  Grid(const Bitmap& one, const Bitmap& other)
      : columns_((one.width() + kCell - 1) / kCell), rows_((one.height() + kCell - 1) / kCell) {
    cells_.assign(size_t(columns_) * size_t(rows_), false);
    for (int y = 0; y < one.height(); ++y) {
      const Argb32* a = one.row(y);
      const Argb32* b = other.row(y);
      for (int x = 0; x < one.width(); ++x)
        if (differs(a[x], b[x])) cells_[index(x / kCell, y / kCell)] = true;
    }
  }

  /// Bounding boxes, in cells, of the groups of neighbouring cells that differ.
  [[nodiscard]] QList<QRect> groups() {
    QList<QRect> result;
    for (int y = 0; y < rows_; ++y)
      for (int x = 0; x < columns_; ++x)
        if (cells_[index(x, y)]) result << take(x, y);
    return result;
  }

 private:
  [[nodiscard]] size_t index(int x, int y) const { return size_t(y) * size_t(columns_) + size_t(x); }

  QRect take(int x, int y) {
    QRect box(x, y, 1, 1);
    std::vector<QPoint> open{QPoint(x, y)};
    cells_[index(x, y)] = false;
    while (!open.empty()) {
      const QPoint cell = open.back();
      open.pop_back();
      box |= QRect(cell, QSize(1, 1));
      for (int ny = std::max(0, cell.y() - 1); ny <= std::min(rows_ - 1, cell.y() + 1); ++ny)
        for (int nx = std::max(0, cell.x() - 1); nx <= std::min(columns_ - 1, cell.x() + 1); ++nx)
          if (cells_[index(nx, ny)]) {
            cells_[index(nx, ny)] = false;
            open.emplace_back(nx, ny);
          }
    }
    return box;
  }

  int columns_;
  int rows_;
  std::vector<bool> cells_;
};

// Rectangles that touch become one, until none do.
QList<QRect> disjoint(QList<QRect> boxes) {
  for (bool changed = true; changed;) {
    changed = false;
    for (qsizetype i = 0; i < boxes.size(); ++i)
      for (qsizetype k = boxes.size() - 1; k > i; --k)
        if (boxes[i].adjusted(-1, -1, 1, 1).intersects(boxes[k])) {
          boxes[i] |= boxes.takeAt(k);
          changed = true;
        }
  }
  return boxes;
}

}  // namespace

QList<QRect> differingRegions(const Bitmap& one, const Bitmap& other) {
  if (one.size() != other.size() || one.isEmpty()) return {};
  QList<QRect> boxes;
  for (const QRect& group : Grid(one, other).groups())
    boxes << QRect(group.topLeft() * kCell, group.size() * kCell).adjusted(-2, -2, 2, 2);
  if (boxes.size() > 20 * limits::maximumImageRegions) {
    QRect all;
    for (const QRect& box : std::as_const(boxes)) all |= box;
    boxes = {all};
  }
  boxes = disjoint(boxes);
  while (boxes.size() > limits::maximumImageRegions) {
    for (QRect& box : boxes) box.adjust(-kCell, -kCell, kCell, kCell);
    boxes = disjoint(boxes);
  }
  for (QRect& box : boxes) box &= one.rect();
  return boxes;
}

Result<QList<QRectF>> transparentRegions(const QByteArray& pdf, QSizeF pageSize, const QByteArray& opaquePdf,
                                         QSizeF opaqueSize, const PictureLimits& limits) {
  const double most = std::min(limits::maximumComparedPixels, limits.megapixels * 1e6 / 2);
  const double scale =
      std::min(kLookDpi / 72, std::sqrt(most / std::max(1.0, pageSize.width() * pageSize.height())));
  RenderRequest request;
  request.pixelSize = QSize(std::max(1, int(std::ceil(pageSize.width() * scale))),
                            std::max(1, int(std::ceil(pageSize.height() * scale))));
  request.pictureToDevice = AffineTransform(scale, 0, 0, -scale, 0, pageSize.height() * scale);
  request.purpose = RenderPurpose::Export;
  const Result<Bitmap> withIt = PdfRenderer(pdf).render(request, pageSize, limits);
  if (!withIt) return withIt.error();
  const Result<Bitmap> without = PdfRenderer(opaquePdf).render(request, opaqueSize, limits);
  if (!without) return without.error();
  QList<QRectF> regions;
  const AffineTransform back = request.pictureToDevice.inverted();
  for (const QRect& box : differingRegions(*withIt, *without))
    regions << back.mapRect(QRectF(box)).intersected(QRectF(QPointF(0, 0), pageSize));
  return regions;
}

}  // namespace norvex::engine
