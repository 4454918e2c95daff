#include "worker/drawing/stroke_measure.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace norvex::engine {
namespace {

const cairo_user_data_key_t kCoarse{};  // its address counts: another one in each module of an engine

void releaseTolerance(void* tolerance) {
  delete static_cast<double*>(tolerance);
}

constexpr double kCairos = 0.1;
/// The own tolerance of a context whose clip is no level rectangle: a mark that comes and goes with
/// cairo_save() and cairo_restore(), as the clip does, and that nothing can be told by which is drawn.
constexpr double kCutOut = kCairos + 1e-7;
constexpr double kLargest = 1.5;  // of a stroke's width: at twice of it cairo leaves the stroke out

/// Units that were asked for; nothing: none.
const double* askedOf(cairo_t* context) {
  return static_cast<const double*>(cairo_get_user_data(context, &kCoarse));
}

/// Units of the surface, of the narrowest direction.
double strokeWidth(cairo_t* context) {
  cairo_matrix_t matrix;
  cairo_get_matrix(context, &matrix);
  const double least = std::min(std::hypot(matrix.xx, matrix.yx), std::hypot(matrix.xy, matrix.yy));
  return cairo_get_line_width(context) * least;
}

/// The context's path in units of the surface.
class PathOnSurface {
 public:
  explicit PathOnSurface(cairo_t* context) {
    cairo_matrix_t matrix;
    cairo_get_matrix(context, &matrix);
    cairo_identity_matrix(context);
    path_.reset(cairo_copy_path(context));
    cairo_clip_extents(context, &clip_.x0, &clip_.y0, &clip_.x1, &clip_.y1);
    cairo_set_matrix(context, &matrix);
  }
  /// True for the level rectangle of cairo_rectangle().
  [[nodiscard]] bool isLevelRectangle() const;
  /// True if all of it, and `reach` around it, lies within the box around the clip.
  [[nodiscard]] bool isWithinClip(double reach) const;
  /// True if something of it has a length, however coarsely it is looked at: no more than its ends are seen.
  [[nodiscard]] bool hasLength() const;

 private:
  struct Box {
    double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  };
  /// Calls `take(from, end, points)` for each line and curve; ends when it returns false.
  template <typename Take>
  bool forEachSegment(const Take& take) const;

  std::unique_ptr<cairo_path_t, decltype(&cairo_path_destroy)> path_{nullptr, &cairo_path_destroy};
  Box clip_;
};

template <typename Take>
bool PathOnSurface::forEachSegment(const Take& take) const {
  if (path_->status != CAIRO_STATUS_SUCCESS) return false;
  std::pair<double, double> at{0, 0};
  const cairo_path_data_t* const end = path_->data + path_->num_data;
  for (const cairo_path_data_t* part = path_->data; part != end; part += part->header.length) {
    const bool draws = part->header.type == CAIRO_PATH_LINE_TO || part->header.type == CAIRO_PATH_CURVE_TO;
    const int points = part->header.length - 1;
    if (points == 0) continue;
    const auto first = at;
    const cairo_path_data_t& last = part[points];
    at = {last.point.x, last.point.y};
    if (draws && !take(first, part + 1, points)) return false;
  }
  return true;
}

bool PathOnSurface::isLevelRectangle() const {
  // A move, three lines, and the line that closes it, behind which cairo_copy_path() tells a move.
  if (path_->status != CAIRO_STATUS_SUCCESS || path_->num_data != 11) return false;
  const cairo_path_data_t* data = path_->data;
  const bool isFour =
      data[0].header.type == CAIRO_PATH_MOVE_TO && data[2].header.type == CAIRO_PATH_LINE_TO &&
      data[4].header.type == CAIRO_PATH_LINE_TO && data[6].header.type == CAIRO_PATH_LINE_TO &&
      data[8].header.type == CAIRO_PATH_CLOSE_PATH;
  if (!isFour) return false;
  const auto &a = data[1].point, &b = data[3].point, &c = data[5].point, &d = data[7].point;
  return (a.y == b.y && b.x == c.x && c.y == d.y && d.x == a.x) ||
         (a.x == b.x && b.y == c.y && c.x == d.x && d.y == a.y);
}

bool PathOnSurface::isWithinClip(double reach) const {
  const auto isInside = [&](double x, double y) {
    return x - reach > clip_.x0 && x + reach < clip_.x1 && y - reach > clip_.y0 && y + reach < clip_.y1;
  };
  return forEachSegment([&](const auto& from, const cairo_path_data_t* points, int count) {
    const bool all = std::all_of(points, points + count, [&](const cairo_path_data_t& each) {
      return isInside(each.point.x, each.point.y);
    });
    return all && isInside(from.first, from.second);
  });
}

bool PathOnSurface::hasLength() const {
  const auto isShort = [](const auto& from, const cairo_path_data_t* points, int count) {
    const auto& end = points[count - 1].point;
    return std::abs(end.x - from.first) < 1 && std::abs(end.y - from.second) < 1;
  };
  return path_->status == CAIRO_STATUS_SUCCESS && !forEachSegment(isShort);
}

/// How far from its path a stroke reaches at most, in units of the surface; one more for its rounding.
double strokeReach(cairo_t* context) {
  cairo_matrix_t m;
  cairo_get_matrix(context, &m);
  const double most = std::hypot(std::hypot(m.xx, m.yx), std::hypot(m.xy, m.yy));
  const bool mitres = cairo_get_line_join(context) == CAIRO_LINE_JOIN_MITER;
  const double corner = std::max(mitres ? cairo_get_miter_limit(context) : 1.0, std::sqrt(2.0));
  return cairo_get_line_width(context) / 2 * most * corner + 1;
}

/// True where cairo asks for the reach of a stroke and then does nothing with it but to find that the stroke
/// is there and needs no clip. A stroke with a colour is written as it is, whatever its reach; a pattern is
/// written for the box of its stroke.
bool isMeasuredForNothing(cairo_t* context) {
  if (cairo_get_tolerance(context) != kCairos || cairo_get_operator(context) != CAIRO_OPERATOR_OVER ||
      cairo_pattern_get_type(cairo_get_source(context)) != CAIRO_PATTERN_TYPE_SOLID ||
      cairo_surface_get_type(cairo_get_group_target(context)) != CAIRO_SURFACE_TYPE_PDF ||
      cairo_get_dash_count(context) > 0)
    return false;
  const PathOnSurface path(context);
  return path.isWithinClip(strokeReach(context)) && path.hasLength();
}

}  // namespace

void noteClip(cairo_t* context) {
  if (askedOf(context) && cairo_get_tolerance(context) == kCairos &&
      !PathOnSurface(context).isLevelRectangle())
    cairo_set_tolerance(context, kCutOut);
}

void askForCoarseStrokes(cairo_t* context, double units) {
  auto tolerance = std::make_unique<double>(units);
  if (cairo_set_user_data(context, &kCoarse, tolerance.get(), releaseTolerance) == CAIRO_STATUS_SUCCESS)
    (void)tolerance.release();
}

double strokeTolerance(cairo_t* context) {
  const double own = cairo_get_tolerance(context);
  const double* asked = askedOf(context);
  if (!asked) return own;
  const double width = strokeWidth(context);
  const double needed = std::max(own, std::min(*asked, width / 2));
  return isMeasuredForNothing(context) ? std::max(needed, kLargest * width) : needed;
}

double extentsTolerance(cairo_t* context) {
  const double own = cairo_get_tolerance(context);
  const double* asked = askedOf(context);
  return asked ? own * std::max(1.0, *asked / kCairos) : own;
}

}  // namespace norvex::engine
