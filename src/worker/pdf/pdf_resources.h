// The resources of a PDF page's drawing: its fonts and its colour spaces, by name.
#pragma once

#include <QStringList>

#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// Names in the order in which they are found, each once.
struct PdfResources {
  QStringList fonts;  ///< PostScript names without the tag of a subset; of a Type 3 font without a name none
  QStringList colorSpaces;  ///< as PDF calls them: "DeviceRGB", "ICCBased CMYK", "Separation PANTONE 186 C" …
};

/// Looks at the page, its forms, patterns and Type 3 fonts. Contents are read for the colours that no
/// resource names, up to limits::maximumColourScan of them: a very long page may use more than is told. What
/// is damaged is passed over. REQUIRES 0 <= page < file.pageCount().
[[nodiscard]] PdfResources pdfResources(PdfFile& file, int page);

/// The fonts of the page that are not in the file and are none of the 14 that every reader has: others stand
/// in for them when the page is drawn. Contents are not read. REQUIRES as above.
[[nodiscard]] QStringList missingFonts(PdfFile& file, int page);

}  // namespace norvex::engine
