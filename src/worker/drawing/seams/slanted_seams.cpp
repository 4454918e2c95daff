#include "worker/drawing/seams/slanted_seams.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr size_t kMostCorners = 8;  // of a tile

// Cairo keeps places in steps of a 256th of a pixel; a tile's edge may be as slanted as that.
constexpr double kUpright = 1.5 / 256;

// What lies farther apart is no seam, what lies along each other for less is a common corner.
constexpr double kApart = 0.1, kAlong = 1;

using Point = SlantedSeams::Point;

double cross(const Point& a, const Point& b) {
  return a.x * b.y - a.y * b.x;
}

Point between(const Point& from, const Point& to) {
  return {to.x - from.x, to.y - from.y};
}

double area(const SlantedSeams::Polygon& corners) {
  double twice = 0;
  for (size_t i = 0; i < corners.size(); ++i) twice += cross(corners[i], corners[(i + 1) % corners.size()]);
  return twice / 2;
}

}  // namespace

SlantedSeams::Polygon SlantedSeams::polygonOf(const cairo_path_t& path) {
  Polygon corners;
  for (int i = 0; i < path.num_data; i += path.data[i].header.length) {
    const cairo_path_data_t* part = &path.data[i];
    const bool goesOn = part->header.type == CAIRO_PATH_LINE_TO;
    if (part->header.type == CAIRO_PATH_CLOSE_PATH) break;  // what follows is where cairo stands
    if (!goesOn && !corners.empty()) return {};             // another part, or a curve
    corners.push_back({part[1].point.x, part[1].point.y});
    if (corners.size() > kMostCorners) return {};
  }
  return corners.size() < 3 ? Polygon() : corners;
}

void SlantedSeams::addTile(const Polygon& corners) {
  if (corners.size() < 3) return;
  const bool turnsBack = area(corners) < 0;
  // Where there are tiles, there are seams among the first of them.
  for (size_t i = 0; i < corners.size() && edges_.size() < limits::maximumSlantedEdges; ++i) {
    Edge edge{corners[i], corners[(i + 1) % corners.size()]};
    if (turnsBack) std::swap(edge.from, edge.to);
    const Point along = between(edge.from, edge.to);
    if (std::abs(along.x) > kUpright && std::abs(along.y) > kUpright) edges_.push_back(edge);
  }
}

bool SlantedSeams::meet(const Edge& a, const Edge& b) {
  const Point along = between(a.from, a.to);
  const double length = std::hypot(along.x, along.y);
  const auto apart = [&](const Point& p) { return std::abs(cross(along, between(a.from, p))) / length; };
  const auto place = [&](const Point& p) {
    const Point to = between(a.from, p);
    return (along.x * to.x + along.y * to.y) / length;
  };
  if (apart(b.from) > kApart || apart(b.to) > kApart) return false;
  // Those on the other side run the other way.
  const double first = place(b.to), last = place(b.from);
  return std::min(last, length) - std::max(first, 0.0) > kAlong;
}

bool SlantedSeams::areThere() const {
  for (size_t i = 0; i < edges_.size(); ++i)
    for (size_t j = 0; j < i; ++j)
      if (meet(edges_[i], edges_[j])) return true;
  return false;
}

}  // namespace norvex::engine
