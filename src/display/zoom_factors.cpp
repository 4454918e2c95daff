#include "display/zoom_factors.h"

#include <algorithm>
#include <cmath>

namespace norvex {

int indexOfZoomFactor(double factor) {
  const auto found = std::find_if(zoomFactors.begin(), zoomFactors.end(),
                                  [factor](const ZoomFactor& item) { return item.factor == factor; });
  return found == zoomFactors.end() ? -1 : int(found - zoomFactors.begin());
}

double steppedZoomFactor(double factor, int steps) {
  if (steps == 0 || std::isnan(factor)) return factor;
  constexpr int last = int(zoomFactors.size()) - 1;
  const auto below = std::count_if(zoomFactors.begin(), zoomFactors.end(),
                                   [factor](const ZoomFactor& item) { return item.factor < factor; });
  const bool between = indexOfZoomFactor(factor) < 0;
  // Between two items a step up leads to the upper one, which `below` already counts to.
  const long long index = static_cast<long long>(below) + steps - (between && steps > 0 ? 1 : 0);
  return zoomFactors[size_t(std::clamp<long long>(index, 0, last))].factor;
}

}  // namespace norvex
