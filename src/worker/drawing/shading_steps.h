// The cells into which a gradient that a function tells, of two coordinates, is divided.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// Units of the picture that a cell is wide and high where Poppler draws such a gradient.
inline constexpr double kShadingCell = 10;

/// The same in the gradient's own coordinates, along each of its axes: more than 0. `toShading` leads from
/// the picture there.
///
/// Poppler takes a slanting line of the picture there and goes by its two coordinates: for a gradient that is
/// turned or mirrored one of them is 0 or less, and it makes cells until all memory is used up.
void shadingSteps(const cairo_matrix_t& toShading, double* x, double* y);

}  // namespace norvex::engine
