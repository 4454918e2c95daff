#include "worker/drawing/seams/level_seams.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

// Cairo keeps places in steps of a 256th of a pixel.
constexpr double kSamePlace = 2.5 / 256;

// What is shorter is a step of a letter or of a flattened curve.
constexpr double kAlong = 3;

// Where the two sides of an edge are looked at.
constexpr double kBeside = 0.25;

bool isBetweenPixels(double place) {
  return std::abs(place - std::round(place)) <= kSamePlace;
}

}  // namespace

void LevelSeams::addPath(cairo_t* context, const std::vector<Edge>& edges, size_t elements, Fate fate) {
  const auto isArea = [context](const Edge& edge, double place) {
    const double middle = (edge.from + edge.to) / 2;
    return edge.upright ? cairo_in_fill(context, place, middle) : cairo_in_fill(context, middle, place);
  };
  // Asking on which side of an edge the area lies goes through the whole path, and so would each edge of it.
  // In all, some tenths of a second; the next path wants some.
  const size_t most = looked_ + (limits::maximumSeamLooks - std::min(looked_, limits::maximumSeamLooks)) / 2;
  for (const Edge& edge : edges) {
    if (edges_.size() >= limits::maximumSeamEdges) return;  // among the first tiles there are seams, too
    const bool shows = fate == Fate::Slanted || !isBetweenPixels(edge.place);
    if (edge.to - edge.from <= kAlong || !shows) continue;
    if ((looked_ += 2 * elements) > most) return;
    const bool beyond = isArea(edge, edge.place + kBeside);
    if (beyond != bool(isArea(edge, edge.place - kBeside))) edges_.push_back({edge, beyond, fate});
  }
}

bool LevelSeams::meet(const Kept& a, const Kept& b) {
  return (a.fate != Fate::Moved || b.fate != Fate::Moved) && a.beyond != b.beyond &&
         a.edge.upright == b.edge.upright &&
         std::min(a.edge.to, b.edge.to) - std::max(a.edge.from, b.edge.from) > kAlong;
}

bool LevelSeams::areThere() const {
  std::vector<Kept> sorted = edges_;
  std::sort(sorted.begin(), sorted.end(), [](const Kept& a, const Kept& b) {
    return std::tuple(a.edge.upright, a.edge.place) < std::tuple(b.edge.upright, b.edge.place);
  });
  for (size_t i = 0; i < sorted.size(); ++i)
    for (size_t j = i + 1; j < sorted.size() && sorted[j].edge.upright == sorted[i].edge.upright &&
                           sorted[j].edge.place - sorted[i].edge.place <= kSamePlace;
         ++j)
      if (meet(sorted[i], sorted[j])) return true;
  return false;
}

}  // namespace norvex::engine
