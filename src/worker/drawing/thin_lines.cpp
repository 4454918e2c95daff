#include "worker/drawing/thin_lines.h"

#include <algorithm>
#include <cmath>

#include "worker/drawing/seams/pixel_edges.h"

namespace norvex::engine {
namespace {

struct Noted {
  cairo_t* context = nullptr;
  double width = 0;
};
thread_local Noted noted;

}  // namespace

void noteLineWidth(cairo_t* context, double width) {
  noted = {context, width};
}

double lineWidthToSet(cairo_t* context, double width) {
  const Noted before = noted;
  noted = {};
  if (before.context != context || !(before.width > 0) || !(before.width < width)) return width;
  if (!arePixelEdgesAskedFor(context) || areHardEdgesAskedFor(context)) return width;
  double x = 1, y = 1;
  cairo_device_to_user_distance(context, &x, &y);
  const double pixel = std::min(std::abs(x), std::abs(y));
  const bool isWidened = std::abs(width - pixel) <= 1e-9 * pixel;
  return isWidened ? std::max(before.width, kThinnestLine * pixel) : width;
}

}  // namespace norvex::engine
