#include "worker/drawing/turned_image.h"

#include <algorithm>
#include <cmath>

namespace norvex::engine {
namespace {

// A quarter of what a process may have by default.
constexpr double kMostPixels = 48e6;
constexpr double kFiner = 2;

/// The part of the page that the image shows, and a little around it.
QRectF shownPart(const RenderRequest& request, const QRectF& page, double pixel) {
  const QRectF image({0, 0}, QSizeF(request.pixelSize));
  return request.pictureToDevice.inverted().mapRect(image).adjusted(-pixel, -pixel, pixel, pixel) & page;
}

}  // namespace

bool isSlanted(const AffineTransform& pictureToDevice) {
  const auto& m = pictureToDevice;
  const double least = 1e-6 * std::sqrt(std::abs(m.determinant()));
  const bool level = std::abs(m.m12()) <= least && std::abs(m.m21()) <= least;
  const bool upright = std::abs(m.m11()) <= least && std::abs(m.m22()) <= least;
  return !level && !upright;
}

Result<Bitmap> paintTurned(const RenderRequest& request, const QRectF& page, const PictureLimits& limits,
                           const PaintPicture& paint) {
  const double pixelsAPoint = std::sqrt(std::abs(request.pictureToDevice.determinant()));
  if (!(pixelsAPoint > 0) || !std::isfinite(pixelsAPoint)) return paintImage(request, limits, paint);
  const QRectF part = shownPart(request, page, 2 / pixelsAPoint);
  if (part.isEmpty()) return Bitmap::create(request.pixelSize);
  const double area = part.width() * part.height() * pixelsAPoint * pixelsAPoint;
  const double finer =
      std::min(kFiner, std::sqrt(std::min(kMostPixels, limits.megapixels * 1e6) / area) * 0.99);
  if (finer < 1) return Error{ErrorKind::Limit, QStringLiteral("the picture is too large to be turned")};

  const double scale = finer * pixelsAPoint;
  RenderRequest upright = request;
  upright.pictureToDevice = {scale, 0, 0, -scale, -part.left() * scale, part.bottom() * scale};
  upright.pixelSize = QSize(int(std::ceil(part.width() * scale)), int(std::ceil(part.height() * scale)));
  Result<Bitmap> pixels = paintImage(upright, limits, paint);
  if (!pixels) return pixels;

  const CairoSurface surface(cairo_image_surface_create_for_data(reinterpret_cast<uchar*>(pixels->row(0)),
                                                                 CAIRO_FORMAT_ARGB32, pixels->width(),
                                                                 pixels->height(), pixels->bytesPerRow()));
  return paintImage(request, limits, [&](cairo_t* context) -> Result<void> {
    const cairo_matrix_t toPicture = toCairo(upright.pictureToDevice.inverted());
    cairo_transform(context, &toPicture);
    cairo_set_source_surface(context, surface.get(), 0, 0);
    cairo_paint(context);
    return {};
  });
}

}  // namespace norvex::engine
