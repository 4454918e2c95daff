// The window-size rule: a document window never shows more than the picture, and is never enlarged by the
// rule. Pure arithmetic; who owns a window measures it, asks here, and applies the answer.
#pragma once

#include <QRectF>
#include <QSizeF>

#include <optional>

namespace norvex {

/// A window's measures in points; rectangles have y up, so that x and y are the lower-left corner.
struct WindowMeasures {
  QRectF frame;              ///< zero when there is no window
  QSizeF minimum{0, 0};      ///< the window's minimum size
  QSizeF visibleArea{0, 0};  ///< content size of the scroll view around the picture
  double toolbarHeight = 0;  ///< of toolbarHeight()
};

struct WindowSize {
  QSizeF maximum;  ///< to become the window's maximum size
  QRectF frame;    ///< to become the window's frame; the lower-left corner never moves
};

/// Height that the toolbar takes: the window's content rectangle less its content view; 0 without a visible
/// toolbar. A missing content view counts as height 0.
[[nodiscard]] double toolbarHeight(bool toolbarVisible, double contentRectHeight,
                                   std::optional<double> contentViewHeight);

/// The size of a window that shows `wanted` of the picture, at least the minimum. What is not a number
/// becomes the minimum.
[[nodiscard]] QSizeF windowMaxSize(const WindowMeasures& window, const QSizeF& wanted);

/// The rule for a view whose frame has `viewSize` at `zoomFactor`. The maximum leaves the toolbar's height
/// out, while the frame may be taller by it.
[[nodiscard]] WindowSize windowSize(const WindowMeasures& window, const QSizeF& viewSize, double zoomFactor);

}  // namespace norvex
