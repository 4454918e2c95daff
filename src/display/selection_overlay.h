// Drawing of what is selected: a red crosshair through the start point or a blue outline of the rectangle.
#pragma once

#include <QPointF>
#include <QRectF>

class QPainter;

namespace norvex {

/// Both drawings take points in the painter's own coordinates, are one point wide at every zoom (never less
/// than a device pixel), three quarters opaque, and lie on whole device pixels, so that they are crisp at
/// every scale factor. They stay inside `bounds`, so that a line on the view's edge is seen. REQUIRES a
/// painter whose transform keeps rectangles upright once the picture's own rotation is undone.
struct OverlayFrame {
  QPointF boundsCorner;    ///< the view's lower-left corner
  QPointF boundsOpposite;  ///< the view's upper-right corner
};

/// The whole outline is one stroke: no pixel of it is painted twice.
void drawSelectionOutline(QPainter& painter, const OverlayFrame& frame, const QPointF& corner,
                          const QPointF& opposite);

/// A line over the whole height, then both lines over the whole extent as one stroke; the upright line is
/// thus painted twice.
void drawSelectionCrosshair(QPainter& painter, const OverlayFrame& frame, const QPointF& point);

}  // namespace norvex
