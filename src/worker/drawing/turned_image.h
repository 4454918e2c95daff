// Pictures that are turned by drawing them upright: what lies level or upright in them is put between pixels
// there.
#pragma once

#include <QRectF>

#include "worker/drawing/cairo_surface.h"

namespace norvex::engine {

/// Whether level and upright edges of the picture are slanted in the image.
[[nodiscard]] bool isSlanted(const AffineTransform& pictureToDevice);

/// As paintImage(), through pixels of an upright picture, up to twice as fine, of `page` (picture
/// coordinates). Fails with Limit, too, where these would be so many that they are coarser than those of the
/// image.
[[nodiscard]] Result<Bitmap> paintTurned(const RenderRequest& request, const QRectF& page,
                                         const PictureLimits& limits, const PaintPicture& paint);

}  // namespace norvex::engine
