// The source of an SVG document, indented for reading.
#pragma once

#include <QByteArray>

namespace norvex::engine {

/// Every child on a line of its own, two blanks a level. Only white space between tags changes, and only
/// where it means nothing: the document type, entity references, comments, CDATA sections, processing
/// instructions and the tags themselves stay as written, and so does all that is inside text, titles,
/// descriptions, styles, scripts and foreign objects, inside mixed content and under xml:space="preserve".
/// The line end is the document's own. REQUIRES text that inspectSvg() found well-formed.
[[nodiscard]] QByteArray prettySvg(const QByteArray& utf8);

}  // namespace norvex::engine
