// Illustrator files without PDF content: what they hold instead of the picture.
#pragma once

#include <QByteArray>

#include "base/result.h"

namespace norvex::engine {

class PdfFile;

/// Illustrator can leave out the PDF form of a picture. The file is a PDF all the same, with one page that
/// holds a notice in English instead. Illustrator's private data are in files with and without the PDF form;
/// so what tells is the page's text, and it is read only where there are such data and the page is as short
/// as a notice: the facts of artwork cost no interpretation of its page. False for what cannot be read.
/// Never fails: an IsNotice of read_pdf.h.
[[nodiscard]] Result<bool> isIllustratorNotice(const QByteArray& bytes, const PdfFile& file);

}  // namespace norvex::engine
