// Where a page looks different with and without its transparency: the parts that a format without
// transparency can only hold as images.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QRectF>
#include <QSizeF>

#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/drawing/bitmap.h"

namespace norvex::engine {

/// Disjoint rectangles that cover every pixel in which two images of one size differ visibly, grown by a
/// little so that soft edges lie inside. In pixels, inside the images.
[[nodiscard]] QList<QRect> differingRegions(const Bitmap& one, const Bitmap& other);

/// Draws the first page of both files (premultiplied, nothing behind it) and compares. Rectangles in points,
/// origin at the page's lower-left corner, y up. The opaque page may be larger than the other; what lies
/// outside `pageSize` is not looked at.
[[nodiscard]] Result<QList<QRectF>> transparentRegions(const QByteArray& pdf, QSizeF pageSize,
                                                       const QByteArray& opaquePdf, QSizeF opaqueSize,
                                                       const PictureLimits& limits);

}  // namespace norvex::engine
