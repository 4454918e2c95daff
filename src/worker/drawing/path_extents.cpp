#include "worker/drawing/path_extents.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>

namespace norvex::engine {
namespace {

using Path = std::unique_ptr<cairo_path_t, decltype(&cairo_path_destroy)>;

struct Point {
  double x, y;
};

/// Along one axis.
class Span {
 public:
  void add(double at) {
    least_ = std::min(least_, at);
    most_ = std::max(most_, at);
  }
  /// The turning points of a Bézier curve, where its derivative is 0; its ends are added by the caller.
  void addCurve(double p0, double p1, double p2, double p3) {
    const double a = p3 - p0 + 3 * (p1 - p2), b = 2 * (p0 - 2 * p1 + p2), c = p1 - p0;
    const auto addAt = [&](double t) {
      if (!(t > 0 && t < 1)) return;
      const double s = 1 - t;
      add(s * s * s * p0 + 3 * s * s * t * p1 + 3 * s * t * t * p2 + t * t * t * p3);
    };
    const double root = b * b - 4 * a * c;
    if (root < 0) return;
    // The form that divides by no small number: a is 0 for curves of second degree.
    const double q = -(b + std::copysign(std::sqrt(root), b)) / 2;
    addAt(q / a);
    addAt(c / q);
  }
  [[nodiscard]] bool isEmpty() const { return least_ > most_; }
  [[nodiscard]] double least() const { return isEmpty() ? 0 : least_; }
  [[nodiscard]] double most() const { return isEmpty() ? 0 : most_; }

 private:
  double least_ = std::numeric_limits<double>::max();
  double most_ = std::numeric_limits<double>::lowest();
};

/// A path that is level or upright on the surface has the same box there.
bool isTurned(cairo_t* context) {
  cairo_matrix_t m;
  cairo_get_matrix(context, &m);
  return !((m.xy == 0 && m.yx == 0) || (m.xx == 0 && m.yy == 0));
}

struct Box {
  Span x, y;
  Point at{0, 0};

  void add(const Point& point) {
    x.add(point.x);
    y.add(point.y);
  }
  void take(const cairo_path_data_t* element) {
    const auto point = [element](int i) { return Point{element[i].point.x, element[i].point.y}; };
    switch (element->header.type) {
      case CAIRO_PATH_MOVE_TO:  // counts with the segment that begins there
        at = point(1);
        break;
      case CAIRO_PATH_LINE_TO:
        add(at);
        add(at = point(1));
        break;
      case CAIRO_PATH_CURVE_TO: {
        const std::array<Point, 4> p{at, point(1), point(2), point(3)};
        add(p[0]);
        add(at = p[3]);
        x.addCurve(p[0].x, p[1].x, p[2].x, p[3].x);
        y.addCurve(p[0].y, p[1].y, p[2].y, p[3].y);
        break;
      }
      case CAIRO_PATH_CLOSE_PATH:  // cairo has a move to the beginning follow it
        break;
    }
  }
};

}  // namespace

bool turnedPathExtents(cairo_t* context, double* x0, double* y0, double* x1, double* y1) {
  if (!isTurned(context)) return false;
  const Path path(cairo_copy_path(context), &cairo_path_destroy);
  Box box;
  if (path->status == CAIRO_STATUS_SUCCESS)
    for (int i = 0; i < path->num_data; i += path->data[i].header.length) box.take(&path->data[i]);
  *x0 = box.x.least();
  *x1 = box.x.most();
  *y0 = box.y.least();
  *y1 = box.y.most();
  return true;
}

}  // namespace norvex::engine
