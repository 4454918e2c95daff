// The document attributes that a freshly generated PDF gets.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

#include "metadata/header_dictionary.h"
#include "protocol/worker_protocol.h"

namespace norvex {

struct PdfAttributeDefaults {
  QString applicationName;     ///< the bundle's name
  QString applicationVersion;  ///< the bundle's version
  QString userFullName;
  QDateTime now;
};

/// The program is the creator, the document's own creator becomes the producer, and a description makes the
/// title the subject. Nothing when there is a description but no title: there is then no subject to store.
[[nodiscard]] std::optional<PdfAttributes> pdfAttributes(const HeaderDictionary& header,
                                                         const PdfAttributeDefaults& defaults);

}  // namespace norvex
