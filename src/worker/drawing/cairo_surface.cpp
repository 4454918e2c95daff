#include "worker/drawing/cairo_surface.h"

#include <QRect>

#include <cairo-pdf.h>

#include <algorithm>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

Result<void> checkRequest(const RenderRequest& request, const PictureLimits& limits) {
  const QSize size = request.pixelSize;
  if (size.isEmpty())
    return Error{ErrorKind::Protocol, QStringLiteral("an image without pixels was asked for")};
  if (!request.pictureToDevice.isFinite())
    return Error{ErrorKind::Protocol, QStringLiteral("the picture cannot be drawn through this matrix")};
  if (std::max(size.width(), size.height()) > limits::maximumSide)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the image would have a side of more than %1 pixels").arg(limits::maximumSide)};
  if (double(size.width()) * size.height() > limits.megapixels * 1e6)
    return Error{ErrorKind::Limit,
                 QStringLiteral("the image would have more than %1 megapixels").arg(limits.megapixels)};
  return {};
}

Result<void> paintTile(Argb32* firstPixel, int stride, const QRect& tile,
                       const AffineTransform& pictureToDevice, const PaintPicture& paint) {
  const CairoSurface surface(cairo_image_surface_create_for_data(
      reinterpret_cast<uchar*>(firstPixel), CAIRO_FORMAT_ARGB32, tile.width(), tile.height(), stride));
  const CairoContext context(cairo_create(surface.get()));
  const cairo_matrix_t matrix =
      toCairo(pictureToDevice * AffineTransform::fromTranslate(-tile.x(), -tile.y()));
  cairo_set_matrix(context.get(), &matrix);
  const Result<void> painted = paint(context.get());
  const cairo_status_t status = cairo_status(context.get());
  cairo_surface_flush(surface.get());
  cairo_surface_finish(surface.get());
  if (!painted) return painted;
  if (status == CAIRO_STATUS_NO_MEMORY)
    return Error{ErrorKind::Limit, QStringLiteral("there is not enough memory to draw the picture")};
  if (status != CAIRO_STATUS_SUCCESS)
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture cannot be drawn at this size")};
  return {};
}

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
  static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(data), qsizetype(length));
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

cairo_matrix_t toCairo(const AffineTransform& matrix) {
  cairo_matrix_t result;
  cairo_matrix_init(&result, matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), matrix.dx(),
                    matrix.dy());
  return result;
}

Result<Bitmap> paintImage(const RenderRequest& request, const PictureLimits& limits,
                          const PaintPicture& paint) {
  if (const Result<void> fit = checkRequest(request, limits); !fit) return fit.error();
  const QSize size = request.pixelSize;
  Result<Bitmap> image = Bitmap::create(size);
  if (!image || !request.pictureToDevice.isInvertible()) return image;
  // Larger images are painted tile by tile.
  for (int y = 0; y < size.height(); y += longestSurfaceSide) {
    for (int x = 0; x < size.width(); x += longestSurfaceSide) {
      const QRect tile(x, y, std::min(longestSurfaceSide, size.width() - x),
                       std::min(longestSurfaceSide, size.height() - y));
      const Result<void> painted =
          paintTile(image->row(y) + x, image->bytesPerRow(), tile, request.pictureToDevice, paint);
      if (!painted) return painted.error();
    }
  }
  return image;
}

Result<QByteArray> paintPdf(QSizeF size, int pages, const PaintPdfPage& paint) {
  QByteArray pdf;
  const CairoSurface surface(cairo_pdf_surface_create_for_stream(append, &pdf, size.width(), size.height()));
  for (int page = 0; page < pages; ++page) {
    const CairoContext context(cairo_create(surface.get()));
    if (const Result<void> painted = paint(context.get(), page); !painted) return painted.error();
    cairo_show_page(context.get());
  }
  cairo_surface_finish(surface.get());
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture cannot be written as PDF")};
  return pdf;
}

}  // namespace norvex::engine
