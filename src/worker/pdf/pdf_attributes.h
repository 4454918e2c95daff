// The document information of a PDF.
#pragma once

#include <QByteArray>

#include <qpdf/QPDF.hh>

#include "base/result.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// Sets the attributes in the document information of what is about to be written; other entries stay.
/// Metadata that would contradict them is dropped. Throws as qpdf does.
void setPdfAttributes(QPDF& qpdf, const PdfAttributes& attributes);

/// The same for a finished PDF. Fails as PdfFile::open() does.
Result<QByteArray> withPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes);

}  // namespace norvex::engine
