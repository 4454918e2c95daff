// A rectangle of a view as a page of vectors, made by the picture process.
#pragma once

#include <QPointF>
#include <QRectF>

#include <optional>

#include "picture/image_rep.h"

namespace norvex {

/// How a view places its picture: the picture point q is drawn at R(rotate)·(q − pivot), R turning
/// counter-clockwise.
struct PicturePlacement {
  QPointF pivot;      ///< picture point that lies at the view's (0, 0)
  double rotate = 0;  ///< radians
};

/// `rect` is in the view's coordinates. Fails without a picture, for a rectangle that is empty or not finite,
/// and where the picture process does. A PDF gets the attributes, and keeps what a PDF does beside being
/// drawn where that is wanted. Blocks; any thread.
[[nodiscard]] Result<PictureBytes> composeView(NSImageRep* imageRep, const PicturePlacement& placement,
                                               VectorFormat format, const QRectF& rect,
                                               const CancelToken& cancel = {},
                                               const std::optional<PdfAttributes>& attributes = {},
                                               bool keepActions = false);

}  // namespace norvex
