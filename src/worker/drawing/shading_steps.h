// The cells into which a gradient that a function tells, of two coordinates, is divided.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// What Poppler asks for, as wide and as high, before it goes over to the gradient's own coordinates.
inline constexpr double kAskedCell = 10;
/// Pixels of the surface that a cell is wide and high: stripes that are wider are seen as they are.
inline constexpr double kShadingCell = 3;

/// Tells of the context into which this thread draws a picture, while this lives; nested ones take turns.
class ShadedContext {
 public:
  explicit ShadedContext(cairo_t* context);
  ~ShadedContext();
  ShadedContext(const ShadedContext&) = delete;
  ShadedContext& operator=(const ShadedContext&) = delete;

 private:
  cairo_t* before_;
};

/// How far a cell reaches in the gradient's own coordinates, along each of its axes: more than 0. `toShading`
/// leads there from the units that the thread's context has now; without a context they are pixels.
///
/// Poppler takes a slanting line of the picture there and goes by its two coordinates: for a gradient that is
/// turned or mirrored one of them is 0 or less, and it makes cells until all memory is used up. Nor does it
/// look at how large the picture is drawn: one that is a single unit wide, and enlarged, would be one cell.
void shadingSteps(const cairo_matrix_t& toShading, double* x, double* y);

}  // namespace norvex::engine
