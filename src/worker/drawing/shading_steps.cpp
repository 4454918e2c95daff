#include "worker/drawing/shading_steps.h"

#include <cmath>
#include <limits>

namespace norvex::engine {
namespace {

thread_local cairo_t* shadedContext = nullptr;

/// Of an axis of the gradient, whose unit is so long on the surface.
double stepOf(double length) {
  const double step = kShadingCell / length;
  return step > 0 ? step : std::numeric_limits<double>::max();  // one cell
}

}  // namespace

ShadedContext::ShadedContext(cairo_t* context) : before_(shadedContext) {
  shadedContext = context;
}
ShadedContext::~ShadedContext() {
  shadedContext = before_;
}

void shadingSteps(const cairo_matrix_t& toShading, double* x, double* y) {
  cairo_matrix_t toSurface = toShading, drawn;
  const bool isFlat = cairo_matrix_invert(&toSurface) != CAIRO_STATUS_SUCCESS;
  if (shadedContext != nullptr) {
    cairo_get_matrix(shadedContext, &drawn);
    cairo_matrix_multiply(&toSurface, &toSurface, &drawn);
  }
  *x = stepOf(isFlat ? 0 : std::hypot(toSurface.xx, toSurface.yx));
  *y = stepOf(isFlat ? 0 : std::hypot(toSurface.xy, toSurface.yy));
}

}  // namespace norvex::engine
