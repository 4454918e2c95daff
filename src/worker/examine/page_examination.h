// The contents of a page of a PDF.
#pragma once

#include "base/affine_transform.h"
#include "base/cancel_token.h"
#include "base/result.h"
#include "protocol/page_contents.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// Where a page lies in the picture that it is examined for.
struct ExaminedPage {
  int number = 0;                 ///< from 0
  AffineTransform userToPicture;  ///< the page's user space → picture coordinates
  QSizeF size;                    ///< of the picture, points
};

/// The page as it is shown.
[[nodiscard]] ExaminedPage shownPageOf(const PdfFile& file, int page);

/// Everything that contents and resources tell; annotations are left out. What is damaged is passed over.
/// REQUIRES 0 <= page.number < file.pageCount().
[[nodiscard]] PageContents pageContents(PdfFile& file, const ExaminedPage& page, const CancelToken& cancel);

/// The first page of a finished PDF. Fails as PdfFile::open().
[[nodiscard]] Result<PageContents> onlyPageContents(const QByteArray& pdf, const CancelToken& cancel);

}  // namespace norvex::engine
