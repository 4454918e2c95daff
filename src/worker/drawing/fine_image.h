// Pictures that are drawn finer than they are shown, without smooth edges, and averaged: what meets inside a
// pixel leaves nothing of what lies beneath, at any angle and of any shape.
#pragma once

#include <QDeadlineTimer>

#include "worker/drawing/cairo_surface.h"

namespace norvex::engine {

/// As paintImage(), through four times as many pixels along each axis, or two where there are very many.
/// `paint` has to ask for hard edges `until` the same time (pixel_edges.h) and is called for one band of the
/// image after the other. Fails with Limit, too, where even that is too much, or could not be ready by
/// `until`.
[[nodiscard]] Result<Bitmap> paintFine(const RenderRequest& request, const PictureLimits& limits,
                                       const PaintPicture& paint,
                                       QDeadlineTimer until = QDeadlineTimer(QDeadlineTimer::Forever));

}  // namespace norvex::engine
