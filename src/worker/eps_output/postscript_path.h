// Paths as PostScript. Poppler writes them as well, but takes longer to print a number than to do all the
// rest.
#pragma once

#include <QByteArray>

class GfxPath;

namespace norvex::engine {

/// A number as PostScript reads it: with at most six decimals, none of them a trailing zero. What is no
/// number or out of a real's range becomes 0. A page may hold a hundred thousand of them: decimal() would
/// take longer than the rest.
void appendNumber(QByteArray& text, double number);

/// The path in user space, by the procedures of Poppler's prolog: m, l, c, h, and re where it is nothing but
/// an upright rectangle. A line each.
void appendPath(QByteArray& text, const GfxPath& path);

}  // namespace norvex::engine
