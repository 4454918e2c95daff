// Paths as PostScript. Poppler writes them as well, but takes longer to print a number than to do all the
// rest.
#pragma once

#include <QByteArray>

class GfxPath;

namespace norvex::engine {

/// The path in user space, by the procedures of Poppler's prolog: m, l, c, h, and re where it is nothing but
/// an upright rectangle. A line each.
void appendPath(QByteArray& text, const GfxPath& path);

}  // namespace norvex::engine
