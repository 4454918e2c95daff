// A rectangle of an SVG picture, turned, as an SVG document of its own.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>

namespace norvex::engine {

struct SvgCut {
  QSizeF picture;        ///< size of the whole picture, points
  QRectF rect;           ///< points; origin at the top-left corner of the turned picture's bounding box, y down
  double rotate = 0;     ///< radians, clockwise as seen on the screen
  bool styled = false;   ///< the document has style sheets, which must not take hold of what is put around it
};

/// The document's own root becomes an inner <svg> as large as the whole picture, in a new root whose size and view
/// box are the rectangle in points. Everything before, inside and behind the old root stays as written: document
/// type, entities, definitions, styles, comments. REQUIRES text that inspectSvg() accepted.
[[nodiscard]] QByteArray cutSvg(const QByteArray& utf8, const SvgCut& cut);

}  // namespace norvex::engine
