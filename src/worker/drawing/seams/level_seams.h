// Seams at level and upright edges of a picture that could not be put between pixels: those of a clip of many
// parts, or of one with another edge too near, and all of a picture that is turned.
#pragma once

#include <cairo.h>

#include <cstddef>
#include <vector>

namespace norvex::engine {

/// Keeps the straight edges of the clips and images of a drawing, in pixels along the axes of the picture, as
/// they were before they were moved. A value.
class LevelSeams {
 public:
  struct Edge {
    bool upright = false;  ///< else level
    double place = 0;      ///< x of an upright one, y of a level one
    double from = 0, to = 0;
  };

  /// What became of the edges of a path.
  enum class Fate { Moved, Left, Slanted };
  /// The edges of the path that `context` has, in its user space. `elements`: of the path. Where paths are so
  /// long that looking at their edges would take as long as drawing them many times, the rest is passed over.
  void addPath(cairo_t* context, const std::vector<Edge>& edges, size_t elements, Fate fate);

  /// Whether an edge that was not moved lies along another one whose area is on its other side.
  [[nodiscard]] bool areThere() const;

 private:
  struct Kept {
    Edge edge;
    bool beyond;  ///< the area has the larger coordinates
    Fate fate;
  };
  [[nodiscard]] static bool meet(const Kept& a, const Kept& b);

  std::vector<Kept> edges_;
  size_t looked_ = 0;  ///< at elements of paths
};

}  // namespace norvex::engine
