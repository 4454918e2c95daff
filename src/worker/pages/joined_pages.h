// Pages of PDFs put together into one.
#pragma once

#include <QByteArray>
#include <QList>

#include "base/result.h"
#include "protocol/page_excerpts.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// The excerpts' pages in their order, with their links and notes; what leads to a page that is not there
/// leads nowhere, and outlines, forms and scripts of the documents are gone. What several excerpts bring with
/// them, fonts above all, is there once. The document information is the first one's. Fails as
/// PdfFile::open(), and with Unsupported for a page that a PDF does not have.
[[nodiscard]] Result<QByteArray> joinedPages(const QList<PageExcerpt>& excerpts);

/// withPdfAttributes(), also for what encodePageExcerpts() made.
[[nodiscard]] Result<QByteArray> joinedWithAttributes(const QByteArray& bytes,
                                                      const PdfAttributes& attributes);

}  // namespace norvex::engine
