// True if anything is painted on a page.
#pragma once

#include <qpdf/QPDFObjectHandle.hh>

namespace norvex::engine {

/// True if the page's contents have an operator that paints, be it in white or beyond the page's edge; forms
/// that are painted count as marks, whatever is in them. What cannot be parsed has none. May throw as qpdf.
[[nodiscard]] bool hasMarks(QPDFObjectHandle page);

}  // namespace norvex::engine
