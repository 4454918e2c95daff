#include "worker/svg_output/svg_path.h"

#include <GfxState.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr double kFarthest = 1e9;  // points: farther away nothing is drawn, and sums stay exact

// The rectangle that a single subpath is, in user space: four corners, the first one again or closed.
bool isUprightRectangle(const GfxSubpath& subpath, const AffineTransform& matrix) {
  const int points = subpath.getNumPoints();
  if (points != 5 && !(points == 4 && subpath.isClosed())) return false;
  QPointF p[5];
  for (int i = 0; i < points; ++i) {
    if (subpath.getCurve(i)) return false;
    p[i] = matrix.map({subpath.getX(i), subpath.getY(i)});
  }
  if (points == 5 && p[4] != p[0]) return false;
  const bool upFirst =
      p[0].x() == p[1].x() && p[2].x() == p[3].x() && p[1].y() == p[2].y() && p[3].y() == p[0].y();
  const bool acrossFirst =
      p[0].y() == p[1].y() && p[2].y() == p[3].y() && p[1].x() == p[2].x() && p[3].x() == p[0].x();
  return upFirst || acrossFirst;
}

}  // namespace

SvgPathWriter::SvgPathWriter(int decimals)
    : decimals_(decimals),
      scale_(std::pow(10.0, decimals)),
      left_(std::numeric_limits<double>::max()),
      top_(left_),
      right_(-left_),
      bottom_(-left_) {}

SvgPathWriter::Point SvgPathWriter::rounded(QPointF point) {
  const auto within = [](double value) {
    return std::isfinite(value) ? std::clamp(value, -kFarthest, kFarthest) : 0;
  };
  const double x = within(point.x()), y = within(point.y());
  left_ = std::min(left_, x);
  right_ = std::max(right_, x);
  top_ = std::min(top_, y);
  bottom_ = std::max(bottom_, y);
  return {std::llround(x * scale_), std::llround(y * scale_)};
}

void SvgPathWriter::command(char letter) {
  if (letter_ == letter) return;
  data_ += letter;
  letter_ = letter;
}

void SvgPathWriter::put(qint64 units) {
  appendPathNumber(data_, units, decimals_);
}

void SvgPathWriter::putFrom(Point point) {
  put(point.x - at_.x);
  put(point.y - at_.y);
}

// The move is written with the first line: one that nothing is drawn from leaves nothing behind.
void SvgPathWriter::begin() {
  if (begun_) return;
  data_ += 'M';
  put(start_.x);
  put(start_.y);
  letter_ = 0;
  at_ = start_;
  begun_ = true;
  dot_ = false;
}

void SvgPathWriter::endSubpath() {
  if (dot_) {
    begin();
    data_ += "h0";
    letter_ = 'h';
  }
  begun_ = curved_ = false;
}

void SvgPathWriter::moveTo(QPointF to) {
  endSubpath();
  start_ = rounded(to);
}

void SvgPathWriter::lineTo(QPointF to) {
  const Point point = rounded(to);
  if (point == (begun_ ? at_ : start_)) {
    dot_ = !begun_;
    return;
  }
  begin();
  if (point.y == at_.y) {
    command('h');
    put(point.x - at_.x);
  } else if (point.x == at_.x) {
    command('v');
    put(point.y - at_.y);
  } else {
    command('l');
    putFrom(point);
  }
  at_ = point;
  curved_ = false;
}

void SvgPathWriter::curveTo(QPointF first, QPointF second, QPointF to) {
  begin();
  const Point a = rounded(first), b = rounded(second), point = rounded(to);
  const Point mirrored = curved_ ? Point{2 * at_.x - control_.x, 2 * at_.y - control_.y} : at_;
  if (a == mirrored) {
    command('s');
  } else {
    command('c');
    putFrom(a);
  }
  putFrom(b);
  putFrom(point);
  at_ = point;
  control_ = b;
  curved_ = true;
}

void SvgPathWriter::quadTo(QPointF control, QPointF to) {
  begin();
  const Point a = rounded(control), point = rounded(to);
  command('q');
  putFrom(a);
  putFrom(point);
  at_ = point;
  curved_ = false;
}

// Also of a point alone: round ends make a dot of it.
void SvgPathWriter::close() {
  begin();
  data_ += 'z';
  letter_ = 'z';
  at_ = start_;
  begun_ = curved_ = false;
}

SvgPath SvgPathWriter::take() {
  endSubpath();
  SvgPath path{std::move(data_), {}, false};
  if (left_ <= right_) path.bounds = QRectF(QPointF(left_, top_), QPointF(right_, bottom_));
  *this = SvgPathWriter(decimals_);
  return path;
}

SvgPath svgPath(const GfxPath& path, const AffineTransform& matrix, int decimals) {
  SvgPathWriter writer(decimals);
  const int count = path.getNumSubpaths();
  for (int i = 0; i < count; ++i) {
    const GfxSubpath& subpath = *path.getSubpath(i);
    const auto point = [&](int at) { return matrix.map({subpath.getX(at), subpath.getY(at)}); };
    const int points = subpath.getNumPoints();
    writer.moveTo(point(0));
    // The line that comes back to the beginning is what closing draws.
    const bool returns = subpath.isClosed() && points > 2 && !subpath.getCurve(points - 1) &&
                         !subpath.getCurve(points - 2) && point(points - 1) == point(0);
    const int last = returns ? points - 1 : points;
    for (int at = 1; at < last;) {
      if (subpath.getCurve(at) && at + 2 < points) {
        writer.curveTo(point(at), point(at + 1), point(at + 2));
        at += 3;
      } else {
        writer.lineTo(point(at++));
      }
    }
    if (subpath.isClosed()) writer.close();
  }
  SvgPath made = writer.take();
  made.isRectangle = count == 1 && isUprightRectangle(*path.getSubpath(0), matrix);
  return made;
}

QByteArray rectanglePath(const QRectF& rect, int decimals) {
  SvgPathWriter writer(decimals);
  writer.moveTo(rect.topLeft());
  writer.lineTo(rect.topRight());
  writer.lineTo(rect.bottomRight());
  writer.lineTo(rect.bottomLeft());
  writer.close();
  return writer.take().data;
}

}  // namespace norvex::engine
