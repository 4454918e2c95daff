// An image that is drawn as two halves, which may be at the same time, each on a thread of its own.
#pragma once

#include "worker/drawing/cairo_surface.h"

namespace norvex::engine {

/// True if drawing in halves is worth it and permitted: an image that is not tiny, fits a surface, and whose
/// second set of pixels takes a small part of the memory that is granted.
[[nodiscard]] bool canPaintHalves(const RenderRequest& request, const PictureLimits& limits);

/// The same pixels, however it is drawn: `upper` is called on this thread, and `lower` on another one
/// meanwhile; they share nothing that is not made for that. Without `lower`, and where no thread can be had,
/// `upper` draws both halves, one after the other. Fails as paintImage() does.
///
/// `upperShare`: of the rows, where drawing the upper ones takes longer or has to wait.
///
/// They are those of paintImage() if what is painted looks the same wherever its clip begins. Cairo rounds
/// gradients and images that are scaled from the corner of what is drawn of them: there may be none. Where a
/// curve runs back over itself, single pixels differ by some 255ths: which of two edges at one place comes
/// first depends on the rows above.
[[nodiscard]] Result<Bitmap> paintHalves(const RenderRequest& request, const PictureLimits& limits,
                                         const PaintPicture& upper, const PaintPicture& lower = {},
                                         double upperShare = 0.5);

/// The same pixels as paintHalves() with `paint`, at the same time: what it draws on this thread is told to
/// the other one (told_drawing.h). Where that cannot be, `again` draws it there, all of it.
[[nodiscard]] Result<Bitmap> paintHalvesByTelling(const RenderRequest& request, const PictureLimits& limits,
                                                  const PaintPicture& paint, const PaintPicture& again,
                                                  double upperShare);

}  // namespace norvex::engine
