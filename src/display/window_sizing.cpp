#include "display/window_sizing.h"

namespace norvex {
namespace {

double atLeast(double value, double minimum) {
  return value > minimum ? value : minimum;
}  // NaN: the minimum

}  // namespace

double toolbarHeight(bool toolbarVisible, double contentRectHeight, std::optional<double> contentViewHeight) {
  return toolbarVisible ? contentRectHeight - contentViewHeight.value_or(0) : 0;
}

QSizeF windowMaxSize(const WindowMeasures& window, const QSizeF& wanted) {
  const double width = wanted.width() + (window.frame.width() - window.visibleArea.width());
  const double height =
      wanted.height() + (window.frame.height() - window.visibleArea.height()) - window.toolbarHeight;
  return {atLeast(width, window.minimum.width()), atLeast(height, window.minimum.height())};
}

WindowSize windowSize(const WindowMeasures& window, const QSizeF& viewSize, double zoomFactor) {
  const QSizeF wanted(viewSize.width() * zoomFactor, viewSize.height() * zoomFactor);
  WindowSize result{windowMaxSize(window, wanted), window.frame};
  const double tallest = result.maximum.height() + window.toolbarHeight;
  if (result.frame.width() > result.maximum.width()) result.frame.setWidth(result.maximum.width());
  if (result.frame.height() > tallest) result.frame.setHeight(tallest);
  return result;
}

}  // namespace norvex
