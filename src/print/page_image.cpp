#include "print/page_image.h"

#include <QPainter>

#include "print/print_job.h"

namespace norvex {

Result<QImage> pageImage(const PageImageRequest& request, PictureService& service,
                         const CancelToken& cancel) {
  const Result<QByteArray> sheet =
      composeSheet(request.source, request.info, request.sheet, request.picture, service, cancel);
  if (!sheet) return sheet.error();
  const QSizeF paper = request.info.paperSize();
  RenderRequest render;
  render.pixelSize = request.pixels;
  render.purpose = RenderPurpose::Preview;
  const double x = request.pixels.width() / paper.width(), y = request.pixels.height() / paper.height();
  render.pictureToDevice = QTransform(x, 0, 0, -y, 0, request.pixels.height());
  const Result<QImage> drawn = service.open(*sheet, PictureKind::Pdf)->render(render, cancel);
  if (!drawn) return drawn.error();
  QImage image(request.pixels, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter(&image).drawImage(0, 0, *drawn);
  return image;
}

}  // namespace norvex
