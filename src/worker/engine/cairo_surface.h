// Drawing with cairo straight into the bits of a QImage, without a copy.
#pragma once

#include <QImage>
#include <QTransform>

#include <cairo.h>

#include <functional>
#include <memory>

#include "platform/result.h"
#include "platform/worker_protocol.h"

namespace norvex::engine {

struct CairoRelease {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using CairoContext = std::unique_ptr<cairo_t, CairoRelease>;
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoRelease>;

/// The same affine map as cairo holds it. REQUIRES matrix.isAffine().
[[nodiscard]] cairo_matrix_t toCairo(const QTransform& matrix);

/// Paints in picture coordinates (points, origin lower-left, y up); the context's matrix is request.pictureToDevice
/// already. May be called several times, each time with another clip, and must paint the same each time.
using PaintPicture = std::function<Result<void>(cairo_t* context)>;

/// Premultiplied ARGB32 of exactly request.pixelSize, transparent where `paint` leaves it alone.
/// Fails with Limit (more megapixels than granted, a side over limits::maximumSide), Protocol (an empty size or a
/// matrix that is not affine or not finite) or with what `paint` fails with. A matrix that flattens the picture to
/// a line or a point gives an empty image.
[[nodiscard]] Result<QImage> paintImage(const RenderRequest& request, const PictureLimits& limits,
                                        const PaintPicture& paint);

}  // namespace norvex::engine
