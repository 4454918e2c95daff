#include "picture/image_rep.h"

#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/background_work.h"
#include "picture/first_image.h"
#include "picture/rendering/rendered_picture.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

/// The device pixels that a painter may touch.
QRect visibleDeviceRect(const QPainter& painter) {
  const QPaintDevice* device = painter.device();
  const double ratio = device->devicePixelRatioF();
  // A widget is painted into the middle of its window's store: device pixels are counted from the window's
  // corner. Both transforms end in device pixels.
  const QPointF corner =
      painter.deviceTransform().map(QPointF(0, 0)) - painter.combinedTransform().map(QPointF(0, 0));
  const QRect all(QPoint(int(std::floor(corner.x())), int(std::floor(corner.y()))),
                  QSize(int(std::ceil(device->width() * ratio)), int(std::ceil(device->height() * ratio))));
  if (!painter.hasClipping()) return all;
  return all & pixelRect(painter.deviceTransform().mapRect(painter.clipBoundingRect()));
}

/// Pixels of a side, as a double so that the limit can be checked.
double pixelsFor(double points, double scale) {
  constexpr double roundingError = 1e-6;  // 100 points at 2 are 200 pixels, never 201
  return std::max(1.0, std::ceil(points * scale - roundingError));
}

}  // namespace

NSImageRep::NSImageRep(PictureKind kind, QByteArray bytes, std::shared_ptr<PictureProcess> process, int page)
    : kind_(kind), bytes_(std::move(bytes)), process_(std::move(process)), page_(page) {}

NSImageRep::~NSImageRep() = default;

void NSImageRep::deleteInItsThread(NSImageRep* rep) {
  norvex::deleteInItsThread(rep);
}

RenderedPicture& NSImageRep::rendered() {
  if (!rendered_) {
    rendered_ = std::make_unique<RenderedPicture>(process_, page_, size());
    rendered_->showFirst(firstImageOf(*this));
    connect(rendered_.get(), &RenderedPicture::rendered, this, &NSImageRep::renderingArrived);
    connect(rendered_.get(), &RenderedPicture::failed, this, &NSImageRep::renderingFailed);
  }
  return *rendered_;
}

void NSImageRep::draw(QPainter& painter) {
  if (!painter.isActive()) return;
  drawnTransform_ = painter.deviceTransform();
  drawnRect_ = visibleDeviceRect(painter);
  rendered().draw(painter, drawnTransform_, drawnRect_);
  rendered().request(drawnTransform_, drawnRect_);
}

bool NSImageRep::isSharp() const {
  return rendered_ && rendered_->isSharpFor(drawnTransform_, drawnRect_);
}

bool NSImageRep::isRendering() const {
  return rendered_ && rendered_->isBusy();
}

std::optional<Error> NSImageRep::renderingError() const {
  return rendered_ ? rendered_->error() : std::optional<Error>();
}

void NSImageRep::retryRendering() {
  if (rendered_) rendered_->retry();
}

Result<QImage> NSImageRep::rasterImage(double scale, RenderPurpose purpose, const CancelToken& cancel) const {
  const QSizeF points = size();
  if (!(scale > 0) || !std::isfinite(scale) || points.isEmpty())
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture has no area to be drawn")};
  const double wide = pixelsFor(points.width(), scale);
  const double high = pixelsFor(points.height(), scale);
  if (wide > limits::maximumSide || high > limits::maximumSide)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the bitmap would have more than %1 pixels in a row").arg(limits::maximumSide)};
  RenderRequest request;
  request.page = page_;
  request.purpose = purpose;
  request.pixelSize = QSize(int(wide), int(high));
  // The upper edge of the page is the upper edge of the bitmap; what rounding adds is below and to the right.
  request.pictureToDevice = QTransform(scale, 0, 0, -scale, 0, points.height() * scale);
  return process_->render(request, cancel);
}

}  // namespace norvex
