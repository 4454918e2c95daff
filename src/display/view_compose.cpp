#include "display/view_compose.h"

#include <cmath>

#include "display/picture_geometry.h"

namespace norvex {

Result<PictureBytes> composeView(NSImageRep* imageRep, const PicturePlacement& placement, VectorFormat format,
                                 const QRectF& rect, const CancelToken& cancel, const VectorWishes& wishes) {
  if (!imageRep) return Error{ErrorKind::CannotRead, QStringLiteral("there is no picture")};
  if (rect.isEmpty() || !isFinite(rect) || !std::isfinite(placement.rotate))
    return Error{ErrorKind::Unsupported, QStringLiteral("the rectangle is empty or out of range")};
  // The process places the centre of the page at (0, 0); the view may have another point of the picture
  // there.
  const QSizeF page = imageRep->size();
  const QPointF centre(page.width() * 0.5, page.height() * 0.5);
  const double s = std::sin(placement.rotate), c = std::cos(placement.rotate);
  const QPointF offset = placement.pivot - centre;
  const QPointF shift(c * offset.x() - s * offset.y(), s * offset.x() + c * offset.y());
  ComposeRequest request;
  request.format = format;
  request.page = imageRep->page();
  request.rect = rect.translated(shift);
  request.rotate = placement.rotate;
  request.attributes = wishes.attributes;
  request.keepActions = wishes.keepActions;
  request.keepText = wishes.keepText;
  return imageRep->process()->compose(request, cancel);
}

}  // namespace norvex
