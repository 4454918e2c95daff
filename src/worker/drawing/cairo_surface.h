// Drawing with cairo: straight into the pixels of a Bitmap, without a copy, or into a PDF.
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <cairo.h>

#include <functional>
#include <memory>

#include "base/affine_transform.h"
#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/drawing/bitmap.h"

namespace norvex::engine {

struct CairoRelease {
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using CairoContext = std::unique_ptr<cairo_t, CairoRelease>;
using CairoSurface = std::unique_ptr<cairo_surface_t, CairoRelease>;

/// Pixels; cairo refuses image surfaces with a longer side.
inline constexpr int longestSurfaceSide = 32767;

/// The same map as cairo holds it.
[[nodiscard]] cairo_matrix_t toCairo(const AffineTransform& matrix);

/// Paints in picture coordinates (points, origin lower-left, y up); the context's matrix is
/// request.pictureToDevice already. May be called several times, each time with another clip, and must paint
/// the same each time.
using PaintPicture = std::function<Result<void>(cairo_t* context)>;

/// Exactly request.pixelSize, transparent where `paint` leaves it alone.
/// Fails with Limit (more megapixels than granted, a side over limits::maximumSide), Protocol (an empty size
/// or a matrix that is not finite) or with what `paint` fails with. A matrix that flattens the picture to a
/// line or a point gives an empty image.
[[nodiscard]] Result<Bitmap> paintImage(const RenderRequest& request, const PictureLimits& limits,
                                        const PaintPicture& paint);

/// Paints the page of a PDF, counted from 0: points, origin at the upper-left corner, y down.
using PaintPdfPage = std::function<Result<void>(cairo_t* context, int page)>;

/// `pages` pages of `size` points each. Fails with Unsupported where cairo does, or with what `paint` fails
/// with.
[[nodiscard]] Result<QByteArray> paintPdf(QSizeF size, int pages, const PaintPdfPage& paint);

}  // namespace norvex::engine
