// A rectangle of an SVG picture, turned, as an SVG document of its own.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>

#include "base/affine_transform.h"

namespace norvex::engine {

struct SvgCut {
  QSizeF picture;  ///< size of the whole picture, points
  QRectF rect;     ///< what the new document shows, points, y down
  AffineTransform
      placing;          ///< from the picture (points, origin top-left, y down) to the space of `rect`; affine
  bool styled = false;  ///< the document has style sheets, which must not take hold of what is put around it
};

/// Turns the picture clockwise (as seen on the screen, radians) about its centre, and moves it so that its
/// bounding box has its top-left corner at the origin. Points, y down.
[[nodiscard]] AffineTransform turnedInItsBox(const QSizeF& picture, double rotate);

/// The document's own root becomes an inner <svg> as large as the whole picture, in a viewport that is the
/// rectangle (left out where that is the whole picture), in a new root of the rectangle's size. Inside, a
/// unit is a pixel of CSS. Everything before, inside and behind the old root stays as written: document type,
/// entities, definitions, styles, comments. REQUIRES text that inspectSvg() accepted.
[[nodiscard]] QByteArray cutSvg(const QByteArray& utf8, const SvgCut& cut);

}  // namespace norvex::engine
