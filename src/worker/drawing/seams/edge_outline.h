// The edges of a path of cairo: which of its points belong to level and to upright ones, and moving those.
#pragma once

#include <cairo.h>

#include <functional>
#include <vector>

#include "worker/drawing/seams/level_seams.h"

namespace norvex::engine {

/// Looks at a path, which it changes and does not own, in the coordinates that the path is in. One thread.
class EdgeOutline {
 public:
  /// Places that are no farther apart are on one line: cairo keeps places on the surface in steps of a 256th.
  static constexpr double kSameLine = 1.5 / 256;

  explicit EdgeOutline(cairo_path_t& path);

  /// Letters, bars, a frame are several parts: what is thin among them is meant to be seen as it is.
  [[nodiscard]] bool isOnePart() const { return parts_ == 1; }
  /// The places of the upright edges, in ascending order.
  [[nodiscard]] std::vector<double> uprights() const;
  /// Those of the level ones.
  [[nodiscard]] std::vector<double> levels() const;

  /// The level and upright ones, as they were when the path was taken.
  [[nodiscard]] const std::vector<LevelSeams::Edge>& edges() const { return edges_; }

  /// Where an edge at a place goes.
  using Move = std::function<double(double place)>;
  /// Moves the edges; false, and nothing is moved, where one would come to another, or less than half be left
  /// of the whole.
  bool move(const Move& movedX, const Move& movedY);

 private:
  /// A point of a path, with what its edges ask of it.
  struct Corner {
    cairo_path_data_t* at;
    bool upright = false;  ///< belongs to an edge along y: x is moved
    bool level = false;    ///< belongs to an edge along x: y is moved
  };
  static bool isSamePoint(const Corner& a, const Corner& b);
  static void join(Corner& from, Corner& to);

  void take(cairo_path_data_t* part);
  void takeEdge(Corner& from, Corner& to);
  void endPart();
  template <typename Place>
  [[nodiscard]] double width(const Place& place) const;

  std::vector<Corner> corners_;
  std::vector<LevelSeams::Edge> edges_;
  size_t first_ = 0;  ///< of the part that is being taken
  int parts_ = 0;
};

}  // namespace norvex::engine
