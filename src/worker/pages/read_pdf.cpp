#include "worker/pages/read_pdf.h"

#include <utility>

#include "protocol/page_names.h"
#include "worker/pages/chosen_pdf.h"
#include "worker/pages/illustrator_page.h"
#include "worker/pages/pdf_layers.h"
#include "worker/pdf/pdf_facts.h"
#include "worker/pdf/pdf_resources.h"

namespace norvex::engine {
namespace {

/// What the document says to its readers: layers, protection.
Result<void> lookAtReader(ReadPdf& read) {
  return guarded([&]() -> Result<void> {
    read.facts.layers = pdfLayers(read.file->qpdf());
    if (read.lostProtection.isEmpty()) read.lostProtection = lostProtection(read.file->qpdf());
    return {};
  });
}

}  // namespace

Result<ReadPdf> readPdf(const QByteArray& bytes, const EngineContext& context, IsNotice isNotice) {
  ReadPdf read{bytes, bytes, {}, {}, {}};
  if (!context.password.isEmpty() || !context.layers.isEmpty()) {
    Result<ChosenPdf> chosen = chosenPdf(bytes, context.password, context.layers);
    if (!chosen) return chosen.error();
    read.bytes = std::move(chosen->bytes);
    read.lostProtection = std::move(chosen->lostProtection);
  }
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(read.bytes);
  if (!file) return file.error();
  read.file = std::move(*file);
  Result<PictureFacts> facts = pdfFacts(*read.file);
  if (!facts) return facts.error();
  read.facts = std::move(*facts);
  const Result<bool> notice = isNotice(read.bytes, *read.file);
  if (!notice) return notice.error();
  if (*notice) read.facts.warnings << illustratorNoticeSentence();
  if (const Result<void> looked = lookAtReader(read); !looked) return looked.error();
  return read;
}

Result<EngineBytes> namesOfPage(PdfFile& file, int page) {
  if (page < 0 || page >= file.pageCount()) return noSuchPage(page, file.pageCount());
  return guarded([&]() -> Result<EngineBytes> {
    PdfResources found = pdfResources(file, page);
    return EngineBytes{encodePageNames({std::move(found.fonts), std::move(found.colorSpaces)}), {}};
  });
}

}  // namespace norvex::engine
