// An image that is shown in the place of the picture, or of a part of it.
#pragma once

#include <QImage>
#include <QRectF>

namespace norvex {

struct PictureStandIn {
  QImage image;
  QRectF place;  ///< that it fills: picture coordinates (points, origin at the lower-left corner, y up)
};

}  // namespace norvex
