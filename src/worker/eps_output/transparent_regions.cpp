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
constexpr int kSoft = 2;       // pixels that a soft edge is wide
constexpr int kInvisible = 6;  // of 255: what smoothing makes of the same edge drawn twice
constexpr double kLookDpi = 150;
constexpr qint64 kWorthwhileCells = 64;  // an image of its own costs more than so many cells of another

bool differs(Argb32 a, Argb32 b) {
  return std::abs(red(a) - red(b)) > kInvisible || std::abs(green(a) - green(b)) > kInvisible ||
         std::abs(blue(a) - blue(b)) > kInvisible || std::abs(alpha(a) - alpha(b)) > kInvisible;
}

// Cells in which two images differ, or next to a difference by as much as a soft edge is wide.
class Grid {
 public:
  Grid(const Bitmap& one, const Bitmap& other)
      : size_((one.width() + kCell - 1) / kCell, (one.height() + kCell - 1) / kCell) {
    cells_.assign(size_t(size_.width()) * size_t(size_.height()), false);
    for (int y = 0; y < one.height(); ++y) {
      const Argb32* a = one.row(y);
      const Argb32* b = other.row(y);
      for (int x = 0; x < one.width(); ++x)
        if (differs(a[x], b[x])) mark(x, y);
    }
  }

  /// Bounding boxes, in cells, of the groups of neighbouring cells that differ.
  [[nodiscard]] QList<QRect> groups() const {
    std::vector<bool> left = cells_;
    QList<QRect> result;
    for (int y = 0; y < size_.height(); ++y)
      for (int x = 0; x < size_.width(); ++x)
        if (left[index(x, y)]) result << group(x, y, left);
    return result;
  }

  /// The part of `wanted` in which there is anything.
  [[nodiscard]] QRect boundsIn(const QRect& wanted) const {
    const QRect box = wanted & QRect(QPoint(0, 0), size_);
    QRect bounds;
    for (int y = box.top(); y <= box.bottom(); ++y)
      for (int x = box.left(); x <= box.right(); ++x)
        if (cells_[index(x, y)]) bounds |= QRect(x, y, 1, 1);
    return bounds;
  }

 private:
  [[nodiscard]] size_t index(int x, int y) const { return size_t(y) * size_t(size_.width()) + size_t(x); }

  void mark(int x, int y) {
    const int right = std::min((x + kSoft) / kCell, size_.width() - 1);
    const int bottom = std::min((y + kSoft) / kCell, size_.height() - 1);
    for (int row = std::max(0, y - kSoft) / kCell; row <= bottom; ++row)
      for (int column = std::max(0, x - kSoft) / kCell; column <= right; ++column)
        cells_[index(column, row)] = true;
  }

  [[nodiscard]] QRect group(int x, int y, std::vector<bool>& left) const {
    QRect box(x, y, 1, 1);
    std::vector<QPoint> open{QPoint(x, y)};
    left[index(x, y)] = false;
    while (!open.empty()) {
      const QPoint cell = open.back();
      open.pop_back();
      box |= QRect(cell, QSize(1, 1));
      for (int ny = std::max(0, cell.y() - 1); ny <= std::min(size_.height() - 1, cell.y() + 1); ++ny)
        for (int nx = std::max(0, cell.x() - 1); nx <= std::min(size_.width() - 1, cell.x() + 1); ++nx)
          if (left[index(nx, ny)]) {
            left[index(nx, ny)] = false;
            open.emplace_back(nx, ny);
          }
    }
    return box;
  }

  QSize size_;
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

qint64 area(const QRect& box) {
  return qint64(box.width()) * box.height();
}

/// A rectangle as two that cover what is in it, and the cells between them that are not needed.
struct Split {
  QRect one;
  QRect other;
  qint64 saved = 0;
};

// What is in the lines from an end of the box up to each line: bounds[i] is the box of the first i of them.
template <typename Line>
std::vector<QRect> boundsUpTo(int lines, const Line& line) {
  std::vector<QRect> bounds(size_t(lines) + 1);
  for (int i = 0; i < lines; ++i) bounds[size_t(i) + 1] = bounds[size_t(i)] | line(i);
  return bounds;
}

// The cut across the box, level or upright, that saves most.
Split bestSplit(const Grid& grid, const QRect& box) {
  Split best;
  for (const bool level : {true, false}) {
    const int lines = level ? box.height() : box.width();
    std::vector<QRect> inLine;
    for (int i = 0; i < lines; ++i)
      inLine.push_back(grid.boundsIn(level ? QRect(box.left(), box.top() + i, box.width(), 1)
                                           : QRect(box.left() + i, box.top(), 1, box.height())));
    const auto before = boundsUpTo(lines, [&](int i) { return inLine[size_t(i)]; });
    const auto behind = boundsUpTo(lines, [&](int i) { return inLine[size_t(lines - 1 - i)]; });
    for (int at = 1; at < lines; ++at) {
      const QRect one = before[size_t(at)], other = behind[size_t(lines - at)];
      const qint64 saved = area(box) - area(one) - area(other);
      if (saved > best.saved) best = {one, other, saved};
    }
  }
  return best;
}

// An image of its own costs some of what is saved.
bool isWorthIt(const Split& split, const QRect& box) {
  return split.saved >= kWorthwhileCells && split.saved * 8 >= area(box);
}

// Boxes of what is no rectangle hold much that is the same in both: they are cut where that saves most, as
// long as there may be more of them.
QList<QRect> tightened(const Grid& grid, const QList<QRect>& boxes) {
  struct Piece {
    QRect box;
    Split split;
  };
  const auto pieceOf = [&](const QRect& box) {
    const Split split = bestSplit(grid, box);
    return Piece{box, isWorthIt(split, box) ? split : Split()};
  };
  std::vector<Piece> pieces;
  for (const QRect& box : boxes) pieces.push_back(pieceOf(grid.boundsIn(box)));
  while (qsizetype(pieces.size()) < limits::maximumImageRegions) {
    const auto most = std::max_element(pieces.begin(), pieces.end(), [](const Piece& a, const Piece& b) {
      return a.split.saved < b.split.saved;
    });
    if (most == pieces.end() || most->split.saved == 0) break;
    const Split split = most->split;
    *most = pieceOf(split.one);
    pieces.push_back(pieceOf(split.other));
  }
  QList<QRect> result;
  for (const Piece& piece : pieces) result << piece.box;
  return result;
}

}  // namespace

QList<QRect> differingRegions(const Bitmap& one, const Bitmap& other) {
  if (one.size() != other.size() || one.isEmpty()) return {};
  const Grid grid(one, other);
  QList<QRect> boxes = grid.groups();
  if (boxes.size() > 20 * limits::maximumImageRegions) {
    QRect all;
    for (const QRect& box : std::as_const(boxes)) all |= box;
    boxes = {all};
  }
  boxes = disjoint(boxes);
  while (boxes.size() > limits::maximumImageRegions) {
    for (QRect& box : boxes) box.adjust(-1, -1, 1, 1);
    boxes = disjoint(boxes);
  }
  QList<QRect> regions;
  for (const QRect& box : tightened(grid, boxes))
    regions << (QRect(box.topLeft() * kCell, box.size() * kCell) & one.rect());
  return regions;
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
