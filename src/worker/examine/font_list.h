// The fonts of a page, with what becomes of them in print.
#pragma once

#include <QList>

#include <set>
#include <string>

#include "protocol/page_contents.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// The key of a font: the name in its dictionary, with the tag of a subset. Type 3 fonts have none.
[[nodiscard]] std::string fontName(QPDFObjectHandle font);

/// Those that the page's resources, its forms, patterns and Type 3 fonts name, each once, `shown`: fontName()
/// of those in which text is shown; the others are told as not used. REQUIRES 0 <= page < file.pageCount().
[[nodiscard]] QList<UsedFont> usedFonts(PdfFile& file, int page, const std::set<std::string>& shown);

}  // namespace norvex::engine
