// Pages that take long to draw and may be drawn in parts.
#pragma once

#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// A PDF shorter than this has no page that takes long.
inline constexpr qsizetype leastLongPdf = 64 << 10;

/// True if the page has long contents that are nothing but lines, areas in one colour, and letters, of which
/// the lines and areas are most and reach far, so that filling them takes longest: these
/// look the same wherever the drawing of them begins. False for what it cannot tell of. May throw as qpdf
/// does. REQUIRES 0 <= page < file.pageCount().
[[nodiscard]] bool isLongAndPlain(PdfFile& file, int page);

}  // namespace norvex::engine
