// The outline of a character, step by step.
#pragma once

#include <QPointF>

#include <array>
#include <vector>

namespace norvex::engine {

/// Every contour begins with a move and is closed where the next one begins.
struct OutlineStep {
  enum Kind { Move, Line, Quadratic, Cubic };
  Kind kind = Move;
  /// The points that the kind takes, control points first; in units of the font, y up.
  std::array<QPointF, 3> points;
};

struct GlyphOutline {
  std::vector<OutlineStep> steps;  ///< none: a blank
  double advance = 0;              ///< units of the font
};

}  // namespace norvex::engine
