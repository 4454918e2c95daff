#include "encoders/doc_raster_image.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

#include "display/picture_geometry.h"
#include "picture/bitmap_image.h"

namespace norvex {
namespace {

constexpr double pointsPerInch = 72;
/// Sizes such as 595.0000001 come out of conversions between units; they mean 595.
constexpr double sizeNoise = 1e-4;

int pixels(double points, double scale) {
  return static_cast<int>(std::clamp(std::ceil(points * scale - sizeNoise), 1.0, 1e9));
}

bool isOpaque(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    if (!std::all_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) == 255; })) return false;
  }
  return true;
}

void paintBehind(QImage& image, const QColor& background) {
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
  painter.fillRect(image.rect(), background);
}

}  // namespace

PictureRegion wholePicture(const NSImageRep& imageRep) {
  const QSizeF size = imageRep.size();
  return {QRectF(QPointF(-size.width() / 2, -size.height() / 2), size), 0};
}

Result<NSBitmapImageRep> DocRasterImage::bitmap(const RasterSettings& settings,
                                                const CancelToken& cancel) const {
  const double scale = settings.dpi / pointsPerInch;
  const QRectF& rect = region_.rect;
  RenderRequest request;
  request.page = imageRep_->page();
  request.purpose = RenderPurpose::Export;
  request.pixelSize = {pixels(rect.width(), scale), pixels(rect.height(), scale)};
  // The view's y runs up, the raster's down from the rectangle's upper edge.
  const QTransform viewToDevice(scale, 0, 0, -scale, -rect.left() * scale,
                                (rect.top() + rect.height()) * scale);
  request.pictureToDevice = pictureToView(imageRep_->size(), region_.rotate) * viewToDevice;

  Result<QImage> rendered = imageRep_->process()->render(request, cancel);
  if (!rendered) return rendered.error();
  QImage image = std::move(*rendered);
  if (settings.background.isValid()) paintBehind(image, settings.background);
  if (isOpaque(image)) image = image.convertToFormat(QImage::Format_RGB32);
  NSBitmapImageRep bitmap = bitmapFromImage(image);
  bitmap.pointsWide = rect.width();
  bitmap.pointsHigh = rect.height();
  return bitmap;
}

std::optional<DocRasterImage> docRasterImage(const std::shared_ptr<NSImageRep>& imageRep,
                                             const std::optional<PictureRegion>& region) {
  if (!imageRep) return std::nullopt;
  return DocRasterImage(imageRep, region.value_or(wholePicture(*imageRep)));
}

}  // namespace norvex
