// A PDF as its reader has chosen to see it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

struct ChosenPdf {
  QByteArray bytes;  ///< not encrypted; layers are by default as they were chosen
  /// One plain sentence where the document is protected and the bytes, or what is made of them, are not.
  QString lostProtection;
};

/// `pdf` opened with the password (empty: none is known) and with these layers (empty: as the document says).
/// Without a need to change them the bytes are those of `pdf`. Fails as PdfFile::open().
[[nodiscard]] Result<ChosenPdf> chosenPdf(const QByteArray& pdf, const QString& password,
                                          const QList<PictureLayer>& layers);

/// That sentence; empty for a document that is not encrypted. May throw.
[[nodiscard]] QString lostProtection(QPDF& qpdf);

}  // namespace norvex::engine
