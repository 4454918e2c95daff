#include "worker/drawing/shading_steps.h"

#include <cmath>
#include <limits>

namespace norvex::engine {
namespace {

/// Of an axis of the gradient, whose unit is so long in the picture.
double stepOf(double length) {
  const double step = kShadingCell / length;
  return step > 0 ? step : std::numeric_limits<double>::max();  // one cell
}

}  // namespace

void shadingSteps(const cairo_matrix_t& toShading, double* x, double* y) {
  cairo_matrix_t toPicture = toShading;
  const bool isFlat = cairo_matrix_invert(&toPicture) != CAIRO_STATUS_SUCCESS;
  *x = stepOf(isFlat ? 0 : std::hypot(toPicture.xx, toPicture.yx));
  *y = stepOf(isFlat ? 0 : std::hypot(toPicture.xy, toPicture.yy));
}

}  // namespace norvex::engine
