// What of a page's contents can be read.
#pragma once

#include "base/result.h"
#include "worker/drawing/bitmap.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

enum class PageReading {
  Whole,
  Damaged,  ///< some of it cannot be read, or its data end before their end
  Nothing,  ///< the page has contents and none of them can be read; what would be drawn is an empty page
};

/// Reads all contents of the page once and keeps nothing of them. A page that is meant to be empty is whole;
/// one that shows at least its annotations is only damaged. REQUIRES 0 <= page < file.pageCount().
[[nodiscard]] PageReading readingOf(PdfFile& file, int page);

/// Why there is nothing to show where the reading gave nothing, of this page or of everyPage. NotParsable.
[[nodiscard]] Error nothingCanBeRead(int page, int pageCount);

/// True if nothing at all is drawn in it.
[[nodiscard]] bool isUnpainted(const Bitmap& bitmap);

}  // namespace norvex::engine
