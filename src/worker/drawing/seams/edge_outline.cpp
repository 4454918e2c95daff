#include "worker/drawing/seams/edge_outline.h"

#include <algorithm>
#include <cmath>

namespace norvex::engine {
namespace {

/// Whether edges of different places stay at different places. `edges` in ascending order.
bool staysApart(const std::vector<double>& edges, const EdgeOutline::Move& moved) {
  size_t first = 0;  // of those that come to the same place
  for (size_t i = 1; i < edges.size(); ++i) {
    if (moved(edges[i]) != moved(edges[first])) first = i;
    if (edges[i] - edges[first] > EdgeOutline::kSameLine) return false;
  }
  return true;
}

template <typename Corners, typename IsEdge, typename Place>
std::vector<double> places(const Corners& corners, const IsEdge& isEdge, const Place& place) {
  std::vector<double> found;
  for (const auto& corner : corners)
    if (isEdge(corner)) found.push_back(place(corner));
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace

EdgeOutline::EdgeOutline(cairo_path_t& path) {
  for (int i = 0; i < path.num_data; i += path.data[i].header.length) take(&path.data[i]);
  endPart();
}

std::vector<double> EdgeOutline::uprights() const {
  return places(
      corners_, [](const Corner& c) { return c.upright; }, [](const Corner& c) { return c.at->point.x; });
}

std::vector<double> EdgeOutline::levels() const {
  return places(
      corners_, [](const Corner& c) { return c.level; }, [](const Corner& c) { return c.at->point.y; });
}

/// How far the path reaches along an axis.
template <typename Place>
double EdgeOutline::width(const Place& place) const {
  const auto [least, most] =
      std::minmax_element(corners_.begin(), corners_.end(),
                          [&](const Corner& a, const Corner& b) { return place(a) < place(b); });
  return place(*most) - place(*least);
}

bool EdgeOutline::move(const Move& movedX, const Move& movedY) {
  const auto x = [&](const Corner& c) { return c.upright ? movedX(c.at->point.x) : c.at->point.x; };
  const auto y = [&](const Corner& c) { return c.level ? movedY(c.at->point.y) : c.at->point.y; };
  if (!staysApart(uprights(), movedX) || !staysApart(levels(), movedY)) return false;
  if (width(x) < width([](const Corner& c) { return c.at->point.x; }) / 2) return false;
  if (width(y) < width([](const Corner& c) { return c.at->point.y; }) / 2) return false;
  for (const Corner& corner : corners_) corner.at->point = {x(corner), y(corner)};
  return true;
}

/// Whether a part comes back to its first point without a last edge.
bool EdgeOutline::isSamePoint(const Corner& a, const Corner& b) {
  return std::abs(a.at->point.x - b.at->point.x) <= kSameLine &&
         std::abs(a.at->point.y - b.at->point.y) <= kSameLine;
}

void EdgeOutline::join(Corner& from, Corner& to) {
  const double dx = std::abs(from.at->point.x - to.at->point.x);
  const double dy = std::abs(from.at->point.y - to.at->point.y);
  if (dx <= kSameLine && dy > kSameLine) from.upright = to.upright = true;
  if (dy <= kSameLine && dx > kSameLine) from.level = to.level = true;
  if (!isSamePoint(from, to)) return;
  from.upright = to.upright = from.upright || to.upright;
  from.level = to.level = from.level || to.level;
}

void EdgeOutline::take(cairo_path_data_t* part) {
  switch (part->header.type) {
    case CAIRO_PATH_MOVE_TO:
      endPart();
      corners_.push_back({part + 1});
      ++parts_;
      break;
    case CAIRO_PATH_LINE_TO:
      corners_.push_back({part + 1});
      if (corners_.size() > 1) takeEdge(corners_[corners_.size() - 2], corners_.back());
      break;
    case CAIRO_PATH_CURVE_TO:  // two points that it is drawn towards, and where it ends
      for (int point = 1; point <= 3; ++point) corners_.push_back({part + point});
      break;
    case CAIRO_PATH_CLOSE_PATH:
      if (!corners_.empty()) takeEdge(corners_.back(), corners_[first_]);
      break;
  }
}

void EdgeOutline::takeEdge(Corner& from, Corner& to) {
  join(from, to);
  const cairo_path_data_t &a = from.at[0], &b = to.at[0];
  const double dx = std::abs(a.point.x - b.point.x), dy = std::abs(a.point.y - b.point.y);
  if (dx <= kSameLine && dy > kSameLine)
    edges_.push_back({true, a.point.x, std::min(a.point.y, b.point.y), std::max(a.point.y, b.point.y)});
  if (dy <= kSameLine && dx > kSameLine)
    edges_.push_back({false, a.point.y, std::min(a.point.x, b.point.x), std::max(a.point.x, b.point.x)});
}

/// Cairo goes to a place behind each closed part, from which nothing need
/// be drawn: that is none.
void EdgeOutline::endPart() {
  if (first_ + 1 < corners_.size()) {
    if (isSamePoint(corners_.back(), corners_[first_])) join(corners_.back(), corners_[first_]);
  } else if (!corners_.empty()) {
    corners_.pop_back();
    --parts_;
  }
  first_ = corners_.size();
}

}  // namespace norvex::engine
