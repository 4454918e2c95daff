// The facts of a PDF that need no drawing: boxes, page count, document information.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// The facts of an opened file but the names of its resources (pdf_resources.h). Boxes are told for the first
/// limits::maximumPageBoxes pages.
[[nodiscard]] Result<PictureFacts> pdfFacts(PdfFile& file);

/// A date of the document information, "D:YYYYMMDDHHmmSSOHH'mm'" with everything after the year optional and
/// the leading "D:" optional. Without a zone the time is taken as UTC. Nothing when it is no date.
[[nodiscard]] std::optional<QDateTime> parsePdfDate(const QString& text);

/// The other way: "D:20240131235959+01'00'", "Z" for UTC.
[[nodiscard]] QString pdfDate(const QDateTime& date);

}  // namespace norvex::engine
