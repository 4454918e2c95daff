#include "worker/examine/ink_box.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kCoarsePixels = 3.0e6;
constexpr double kCoarsest = 2;  // pixels a point at most: the first look
constexpr double kFinest = 20;   // and the second: half of a tenth of a point to spare
// Of the coarse pixels, how far beyond the edge that they show the true one is looked for, and within it:
// first near by, then where it is when samples of an image ran into their neighbours.
constexpr double kBeyond = 2;
constexpr std::array kWithin{2.0, 12.0};

bool isInk(Argb32 pixel, bool white) {
  const int a = alpha(pixel);
  return a > 0 && (white || red(pixel) < a || green(pixel) < a || blue(pixel) < a);
}

/// A rectangle of the picture as pixels.
class Look {
 public:
  Look(const QRectF& area, double pixelsPerPoint)
      : area_(area),
        scale_(pixelsPerPoint),
        size_(std::clamp(int(std::ceil(area.width() * scale_)), 1, limits::maximumSide),
              std::clamp(int(std::ceil(area.height() * scale_)), 1, limits::maximumSide)) {}

  [[nodiscard]] Result<Bitmap> draw(int page, const DrawPart& draw) const {
    RenderRequest request;
    request.page = page;
    request.pictureToDevice = {scale_, 0, 0, -scale_, -area_.left() * scale_, area_.bottom() * scale_};
    request.pixelSize = size_;
    return draw(request);
  }
  /// Pixels as picture coordinates.
  [[nodiscard]] QRectF placeOf(const QRect& pixels) const {
    return {area_.left() + pixels.left() / scale_, area_.bottom() - (pixels.top() + pixels.height()) / scale_,
            pixels.width() / scale_, pixels.height() / scale_};
  }

 private:
  QRectF area_;
  double scale_;
  QSize size_;
};

double scaleFor(const QRectF& area, double most, double pixels) {
  const double side = limits::maximumSide / std::max(area.width(), area.height());
  return std::min({most, side, std::sqrt(pixels / (area.width() * area.height()))});
}

enum class Edge { Left, Right, Low, High };

/// The strip around an edge of `found`, from `beyond` it to `within` it.
QRectF stripOf(const QRectF& found, Edge edge, double beyond, double within, const QRectF& area) {
  const QRectF all = found.adjusted(-beyond, -beyond, beyond, beyond).intersected(area);
  QRectF strip = all;
  if (edge == Edge::Left) strip.setRight(std::min(all.right(), found.left() + within));
  if (edge == Edge::Right) strip.setLeft(std::max(all.left(), found.right() - within));
  if (edge == Edge::Low) strip.setBottom(std::min(all.bottom(), found.top() + within));
  if (edge == Edge::High) strip.setTop(std::max(all.top(), found.bottom() - within));
  return strip;
}

void setEdge(QRectF& rect, Edge edge, const QRectF& sharp) {
  if (edge == Edge::Left) rect.setLeft(sharp.left());
  if (edge == Edge::Right) rect.setRight(sharp.right());
  if (edge == Edge::Low) rect.setTop(sharp.top());
  if (edge == Edge::High) rect.setBottom(sharp.bottom());
}

/// Brings each edge of drawn.ink to where it is, with `finest` pixels a point at most.
Result<void> sharpen(DrawnInk& drawn, double finest, int page, const DrawPart& draw) {
  const QRectF found = *drawn.ink;
  const double coarse = std::exchange(drawn.accuracy, 0);
  for (const Edge edge : {Edge::Left, Edge::Right, Edge::Low, Edge::High}) {
    double accuracy = coarse;  // the coarse edge stands where nothing is to be seen so sharply
    for (const double within : kWithin) {
      const QRectF strip = stripOf(found, edge, kBeyond * coarse, within * coarse, drawn.area);
      const double scale = scaleFor(strip, finest, limits::maximumInkPixels);
      const Look look(strip, scale);
      const Result<Bitmap> bitmap = look.draw(page, draw);
      if (!bitmap) return bitmap.error();
      const QRect pixels = inkedPixels(*bitmap);
      if (pixels.isEmpty()) continue;
      setEdge(*drawn.ink, edge, look.placeOf(pixels));
      accuracy = 1 / scale;
      break;
    }
    drawn.accuracy = std::max(drawn.accuracy, accuracy);
  }
  return {};
}

}  // namespace

QRect inkedPixels(const Bitmap& bitmap, bool white) {
  int left = bitmap.width(), right = -1, top = -1, bottom = -1;
  for (int y = 0; y < bitmap.height(); ++y) {
    const Argb32* const row = bitmap.row(y);
    const Argb32* const end = row + bitmap.width();
    const auto is = [&](Argb32 pixel) { return isInk(pixel, white); };
    const Argb32* const first = std::find_if(row, end, is);
    if (first == end) continue;
    if (top < 0) top = y;
    bottom = y;
    left = std::min(left, int(first - row));
    for (int x = bitmap.width() - 1; x > right; --x)
      if (is(row[x])) right = x;
  }
  return top < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

Result<DrawnInk> findInk(const QRectF& area, int page, double dpi, const DrawPart& draw) {
  DrawnInk drawn;
  drawn.area = area;
  if (!(area.width() > 0 && area.height() > 0)) return drawn;
  const double scale = scaleFor(area, kCoarsest, kCoarsePixels);
  const Look look(area, scale);
  const Result<Bitmap> bitmap = look.draw(page, draw);
  if (!bitmap) return bitmap.error();
  if (const QRect pixels = inkedPixels(*bitmap, true); !pixels.isEmpty())
    drawn.painted = look.placeOf(pixels).intersected(area);
  const QRect pixels = inkedPixels(*bitmap);
  if (pixels.isEmpty()) return drawn;
  drawn.ink = look.placeOf(pixels).intersected(area);
  drawn.accuracy = 1 / scale;
  const double finest = std::min(kFinest, dpi / kPointsPerInch);
  if (finest <= scale) return drawn;
  if (const Result<void> sharp = sharpen(drawn, finest, page, draw); !sharp) return sharp.error();
  return drawn;
}

}  // namespace norvex::engine
