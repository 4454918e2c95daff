#include "picture/rendering/rendered_frame.h"

namespace norvex {
namespace {

// Along a slanted edge, rounding decides which pixels are painted.
constexpr double kSurelyPainted = -1.5;  // pixels
constexpr double kNearEnough = 2;

}  // namespace

RenderedFrame::RenderedFrame(const QTransform& pictureToDevice, const QRect& visible, const QSizeF& size)
    : transform_(pictureToDevice), size_(size) {
  const QRectF picture(QPointF(), size);
  open_ = visible & pixelRect(transform_.mapRect(picture));
  missing_ = mappedRect(transform_, picture, open_);
}

void RenderedFrame::add(const RenderedLayer& layer) {
  if (missing_.isEmpty()) return;
  const bool exact = layer.fits(transform_, size_);
  const QPoint offset = exact ? layer.offset(transform_) : QPoint();
  const QTransform toDevice =
      exact ? QTransform::fromTranslate(offset.x(), offset.y()) : layer.transform().inverted() * transform_;
  const QRegion filled = exact ? layer.covered().translated(offset) & open_
                               : layer.mappedRegion(toDevice, kSurelyPainted, open_);
  if (filled.isEmpty()) return;
  parts_.prepend({&layer, exact, exact ? filled : open_});
  exact_ += exact ? 1 : 0;
  if (!exact)
    for (const QRect& rect : filled) standInPixels_ += qint64(rect.width()) * rect.height();
  open_ -= filled;
  missing_ -= layer.mappedRegion(toDevice, kNearEnough, missing_);
}

void RenderedFrame::paint(QPainter& painter, Sampling sampling) const {
  for (const Part& part : parts_) {
    if (part.exact)
      part.layer->paintExactly(painter, part.layer->offset(transform_), part.region);
    else
      part.layer->paintMapped(painter, part.layer->transform().inverted() * transform_, part.region,
                              sampling);
  }
}

}  // namespace norvex
