// A PDF that was opened, and what is known of it without drawing it.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

#include "base/result.h"
#include "worker/engine/engine.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// A document as it came, and as it is worked with.
struct ReadPdf {
  QByteArray source;
  QByteArray bytes;
  QString lostProtection;         ///< see chosen_pdf.h
  std::unique_ptr<PdfFile> file;  ///< of `bytes`; never null
  PictureFacts facts;
};

/// True if the document shows Illustrator's notice in place of an artwork. Its text may have to be read for
/// that, which not every process can.
using IsNotice = Result<bool> (*)(const QByteArray& bytes, const PdfFile& file);

/// `bytes` with the password and the layers of the context. Fails as PdfFile::open() and `isNotice`.
[[nodiscard]] Result<ReadPdf> readPdf(const QByteArray& bytes, const EngineContext& context,
                                      IsNotice isNotice);

/// The answer to an examination of a page's names. Fails with noSuchPage() and as guarded() does.
[[nodiscard]] Result<EngineBytes> namesOfPage(PdfFile& file, int page);

}  // namespace norvex::engine
