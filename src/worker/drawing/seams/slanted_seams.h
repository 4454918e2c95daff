// Seams between tiles that lie neither level nor upright on the surface: their edges cannot be put between
// pixels.
#pragma once

#include <cairo.h>

#include <vector>

namespace norvex::engine {

/// Keeps the edges of the first tiles of a drawing, in coordinates of the surface. A value.
class SlantedSeams {
 public:
  struct Point {
    double x = 0, y = 0;
  };
  using Polygon = std::vector<Point>;

  /// The corners of a path of one part without curves, and of no more corners than a tile has; else none.
  [[nodiscard]] static Polygon polygonOf(const cairo_path_t& path);

  /// An area that is painted up to its edges.
  void addTile(const Polygon& corners);

  /// Whether two of them meet: a slanted edge of one lies along an edge of the other, on its other side.
  [[nodiscard]] bool areThere() const;

 private:
  struct Edge {
    Point from, to;  ///< the tile is to the same hand of all edges
  };
  [[nodiscard]] static bool meet(const Edge& a, const Edge& b);

  std::vector<Edge> edges_;
};

}  // namespace norvex::engine
