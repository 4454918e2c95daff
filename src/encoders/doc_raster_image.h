// docRasterImage: a picture that is still to become a raster.
#pragma once

#include <QColor>
#include <QRectF>

#include <memory>
#include <optional>

#include "base/cancel_token.h"
#include "picture/image_rep.h"
#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// A rectangle of the turned picture. View coordinates: origin at the picture's centre, y up, points; the
/// picture is turned about the origin by `rotate` (radians, counter-clockwise positive).
struct PictureRegion {
  QRectF rect;
  double rotate = 0;
};

/// The unturned picture in all its size.
[[nodiscard]] PictureRegion wholePicture(const NSImageRep& imageRep);

/// How a raster is made.
struct RasterSettings {
  double dpi = 72;    ///< one pixel a point
  QColor background;  ///< invalid: what is not painted stays transparent
};

/// An image with a size in points and no pixels yet: they are made when an encoder asks for them.
class DocRasterImage {
 public:
  DocRasterImage(std::shared_ptr<NSImageRep> imageRep, PictureRegion region)
      : imageRep_(std::move(imageRep)), region_(std::move(region)) {}

  [[nodiscard]] QSizeF size() const { return region_.rect.size(); }
  /// RGB, 8 bits a sample, premultiplied alpha where anything shines through; a pixel that the picture covers
  /// in part belongs to it, so the size is rounded up. Blocks for the picture process.
  [[nodiscard]] Result<NSBitmapImageRep> bitmap(const RasterSettings& settings,
                                                const CancelToken& cancel = {}) const;

 private:
  std::shared_ptr<NSImageRep> imageRep_;
  PictureRegion region_;
};

/// The image of a picture, in its own size without turning or, where `region` is given, of that rectangle.
/// Nothing without a picture.
[[nodiscard]] std::optional<DocRasterImage> docRasterImage(const std::shared_ptr<NSImageRep>& imageRep,
                                                           const std::optional<PictureRegion>& region = {});

}  // namespace norvex
