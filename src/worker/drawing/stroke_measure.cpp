#include "worker/drawing/stroke_measure.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace norvex::engine {
namespace {

const cairo_user_data_key_t kCoarse{};  // its address counts: another one in each module of an engine

void releaseTolerance(void* tolerance) {
  delete static_cast<double*>(tolerance);
}

constexpr double kCairos = 0.1;

/// Units that were asked for; nothing: none.
const double* askedOf(cairo_t* context) {
  return static_cast<const double*>(cairo_get_user_data(context, &kCoarse));
}

/// Units of the surface, of the narrowest direction.
double strokeWidth(cairo_t* context) {
  cairo_matrix_t matrix;
  cairo_get_matrix(context, &matrix);
  const double least = std::min(std::hypot(matrix.xx, matrix.yx), std::hypot(matrix.xy, matrix.yy));
  return cairo_get_line_width(context) * least;
}

}  // namespace

void askForCoarseStrokes(cairo_t* context, double units) {
  auto tolerance = std::make_unique<double>(units);
  if (cairo_set_user_data(context, &kCoarse, tolerance.get(), releaseTolerance) == CAIRO_STATUS_SUCCESS)
    (void)tolerance.release();
}

double strokeTolerance(cairo_t* context) {
  const double own = cairo_get_tolerance(context);
  const double* asked = askedOf(context);
  return asked ? std::max(own, std::min(*asked, strokeWidth(context) / 2)) : own;
}

double extentsTolerance(cairo_t* context) {
  const double own = cairo_get_tolerance(context);
  const double* asked = askedOf(context);
  return asked ? own * std::max(1.0, *asked / kCairos) : own;
}

}  // namespace norvex::engine
