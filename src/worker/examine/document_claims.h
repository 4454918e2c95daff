// The claims of a PDF document as a whole: encryption, permissions, standards that it claims to keep.
#pragma once

#include "protocol/page_contents.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// Fills the document's part of `contents`. What is damaged is passed over.
void readDocument(PdfFile& file, PageContents& contents);

}  // namespace norvex::engine
