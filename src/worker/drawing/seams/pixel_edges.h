// Edges that lie between pixels. Flattened drawings are tiles: images, and areas painted through clips. Where
// two of them meet inside a pixel, each of them covers a share of it, and of what lies beneath up to a
// quarter is left: a light line along every seam. Tiles whose straight edges lie on the edges of pixels share
// none.
#pragma once

#include <QDeadlineTimer>

#include <cairo.h>

namespace norvex::engine {

/// From now on clips and images have their edges between pixels in this context, wherever clipBetweenPixels()
/// and fillBetweenPixels() are called for it: the engines' modules have them stand in for cairo_clip() and
/// cairo_fill(), for the libraries that they load, too. The matrix is that of the picture already. Goes with
/// the context. The picture reaches from its origin `width` and `height` units of it; its own edges go
/// outwards. Default: nothing is known of them.
void askForPixelEdges(cairo_t* context, double width = 0, double height = 0);
/// From now on clips and areas have no smooth edges in this context: each pixel, at its middle, belongs to
/// one of two that meet. For what is drawn finer than it is shown (fine_image.h). What comes after `until` is
/// not drawn: libraries cannot be told to stop.
void askForHardEdges(cairo_t* context, QDeadlineTimer until = QDeadlineTimer(QDeadlineTimer::Forever));
/// One of the two.
[[nodiscard]] bool arePixelEdgesAskedFor(cairo_t* context);
/// The second.
[[nodiscard]] bool areHardEdgesAskedFor(cairo_t* context);

/// Where askForPixelEdges() was called: whether tiles met at edges that could not be put between pixels,
/// slanted ones or those of a path of several parts.
[[nodiscard]] bool hasSeams(cairo_t* context);

/// As cairo_clip(). Where askForPixelEdges() was called, the level and upright edges of the path (as they lie
/// on the surface) are first moved to the nearest edge between two pixels. Edges at one place go to the same
/// place: what had no gap has none. Curves and slanted edges stay as they are. So does a path of several
/// parts (letters, bars), and one of which two edges would meet: what is thin is not lost.
void clipBetweenPixels(cairo_t* context);

/// As cairo_fill(), with the same done to the edges of an image. Areas in a colour keep theirs: a thin line
/// may be one. Only where one that is not thin ends beside the edge of its clip, it goes up to it.
void fillBetweenPixels(cairo_t* context);

}  // namespace norvex::engine
