// The seam between the picture view and the window that shows it: so that selection, rotation and drawing are
// exercised without a window, and so that nothing in this folder knows a widget.
#pragma once

#include <QPointF>
#include <QRectF>

namespace norvex {

/// The host of NorvexView, as the view needs it. All rectangles and points are in view coordinates (points, y
/// up, origin at the picture's centre once the view was rotated for the first time). Main thread only. The
/// host outlives the view or is taken away with NorvexView::setHost(nullptr).
class ViewHost {
 public:
  virtual ~ViewHost() = default;

  /// The part of the view's bounds that can be seen; empty when nothing can.
  [[nodiscard]] virtual QRectF visibleRect() const = 0;
  /// Draws `rect` (calls NorvexView::drawRect) before it returns. A host that cannot draw now (hidden,
  /// minimised) remembers the rectangle instead.
  virtual void displayRect(const QRectF& rect) = 0;
  /// Asks for the visible part to be drawn some time soon. Never draws inside the call.
  virtual void setNeedsDisplay() = 0;
  /// The view's frame or bounds changed: lay out anew and draw everything soon.
  virtual void frameDidChange() = 0;
  /// Scrolls towards `point` when it lies outside the visible part. Returns whether anything was scrolled.
  virtual bool autoscroll(const QPointF& point) = 0;
  /// Scrolls as little as it takes to show `rect`, or as much of it as has room.
  virtual void scrollRectToVisible(const QRectF& rect) = 0;
  /// Makes the view the window's first responder; false when the window refuses.
  virtual bool makeFirstResponder() = 0;
  /// While `on`, the host calls NorvexView::periodicEvent with the pointer's position several times a second,
  /// so that a pointer held still outside the visible part goes on scrolling.
  virtual void setPeriodicEvents(bool on) = 0;
  /// Shows the crosshair cursor over `rect`, until the next NorvexView::resetCursorRects.
  virtual void addCrosshairCursorRect(const QRectF& rect) = 0;
};

}  // namespace norvex
