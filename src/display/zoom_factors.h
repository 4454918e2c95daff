// The eleven zoom factors and their titles, in menu order.
#pragma once

#include <array>

namespace norvex {

struct ZoomFactor {
  const char* title;  ///< key in the string table "SKTZoomingScrollView"
  double factor;      ///< 1.0: a point of the picture is a point of the screen
};

/// The first factor is the nearest single-precision number to a tenth: it is what the menu hands out, and
/// what is compared with to find the selected item.
inline constexpr std::array<ZoomFactor, 11> zoomFactors{{{"10%", 0.10000000149011612},
                                                         {"25%", 0.25},
                                                         {"50%", 0.5},
                                                         {"75%", 0.75},
                                                         {"100%", 1.0},
                                                         {"125%", 1.25},
                                                         {"150%", 1.5},
                                                         {"200%", 2.0},
                                                         {"400%", 4.0},
                                                         {"800%", 8.0},
                                                         {"1600%", 16.0}}};

/// What a picture may be zoomed to by other means than the menu.
inline constexpr double smallestZoomFactor = 0.01;
inline constexpr double largestZoomFactor = zoomFactors.back().factor;

/// -1 for a factor that is not in the table.
[[nodiscard]] int indexOfZoomFactor(double factor);

/// The factor `steps` items above (negative: below) `factor`, which need not be in the table; the first or
/// last one where the table ends. `factor` itself for 0 steps and for what is not a number.
[[nodiscard]] double steppedZoomFactor(double factor, int steps);

}  // namespace norvex
