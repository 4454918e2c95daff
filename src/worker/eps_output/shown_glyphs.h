// Which glyphs of the embedded fonts a page shows. For the files that use Poppler's own headers.
#pragma once

#include <QByteArray>

#include <list>

class PDFDoc;

namespace norvex::engine {

/// Looks at the first page and lets every embedded TrueType and CFF font file of the document hold only the
/// outlines that the page shows, none where it shows none. `store` keeps the fonts' bytes and must outlive
/// the document.
void keepShownGlyphs(PDFDoc& document, std::list<QByteArray>& store);

}  // namespace norvex::engine
