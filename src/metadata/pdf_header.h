// The header dictionary of a PDF document.
#pragma once

#include <QLocale>

#include "base/result.h"
#include "metadata/full_date.h"
#include "metadata/header_dictionary.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// Creator, Title, CreationDate (fullDate() in `locale`), For (the author) and Description (the subject),
/// each only when the document has it; Encoding and EncodingNumber always, saying that there is no text.
/// Facts that could not be had give the empty dictionary. Thread-safe.
[[nodiscard]] HeaderDictionary pdfHeader(const Result<PictureFacts>& facts,
                                         const QLocale& locale = userDateLocale());

}  // namespace norvex
