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

/// What a page of vectors gets and keeps beside what is drawn.
struct VectorWishes {
  std::optional<PdfAttributes> attributes = {};  ///< of a PDF
  bool keepActions = false;                      ///< of a PDF: what it does beside being drawn
  bool keepText = false;                         ///< in an SVG: text as text
};

/// `rect` is in the view's coordinates. Fails without a picture, for a rectangle that is empty or not finite,
/// and where the picture process does. Blocks; any thread.
[[nodiscard]] Result<PictureBytes> composeView(NSImageRep* imageRep, const PicturePlacement& placement,
                                               VectorFormat format, const QRectF& rect,
                                               const CancelToken& cancel = {},
                                               const VectorWishes& wishes = {});

}  // namespace norvex
