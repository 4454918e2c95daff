// An Encapsulated PostScript file put together: header, page description, the parts that are images.
#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>

#include "worker/drawing/bitmap.h"
#include "worker/eps_output/poppler_postscript.h"

namespace norvex::engine {

/// A part of the page that is an image. `rect` in points, origin at the page's lower-left corner, y up;
/// `image` is premultiplied ARGB32, its first row the upper one. Pixels without any opacity are not painted;
/// the others lie on white.
struct EpsImage {
  QRectF rect;
  Bitmap image;
};

/// The whole file, 7-bit text. Its header holds the lines %%BoundingBox, %%HiResBoundingBox, %%Title,
/// %%Creator,
/// %%CreationDate and %%For, one each, for rewriting. The date is SOURCE_DATE_EPOCH's, where that is set.
[[nodiscard]] QByteArray writeEps(QSizeF size, const PagePostScript& page, const QList<EpsImage>& images);

/// ASCII base-85 in lines of 76 characters, closed with "~>".
[[nodiscard]] QByteArray ascii85(const QByteArray& bytes);

}  // namespace norvex::engine
