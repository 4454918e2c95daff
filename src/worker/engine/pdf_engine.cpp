// The engine of PDF documents and of Illustrator files that are PDF inside.
#include "worker/engine/engine.h"
#include "worker/engine/pdf_facts.h"
#include "worker/engine/pdf_file.h"
#include "worker/engine/pdf_render.h"
#include "worker/engine/whole_page.h"

namespace norvex::engine {
namespace {

class PdfEngine final : public DocumentEngine {
 public:
  PdfEngine(QByteArray bytes, std::unique_ptr<PdfFile> file, PictureFacts facts, EngineContext& context)
      : bytes_(std::move(bytes)),
        file_(std::move(file)),
        facts_(std::move(facts)),
        renderer_(bytes_),
        context_(context) {}

  Result<PictureFacts> facts() override { return facts_; }

  Result<QImage> render(const RenderRequest& request) override {
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    return renderer_.render(request, *size, context_.limits);
  }

  Result<EngineBytes> pdf(const PdfRequest& request) override {
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    return composePage(bytes_, wholePage(request.page, *size, VectorFormat::Pdf), context_);
  }

  Result<EngineBytes> compose(const ComposeRequest& request) override {
    return composePage(bytes_, request, context_);
  }

 private:
  [[nodiscard]] Result<QSizeF> shownSize(int page) {
    if (page < 0 || page >= file_->pageCount()) return noSuchPage(page, file_->pageCount());
    if (page < facts_.pageBounds.size()) return facts_.pageBounds[page].size();
    return guarded([&]() -> Result<QSizeF> { return file_->geometry(page).shownSize(); });
  }

  QByteArray bytes_;
  std::unique_ptr<PdfFile> file_;
  PictureFacts facts_;
  PdfRenderer renderer_;
  EngineContext& context_;
};

}  // namespace

Result<std::unique_ptr<DocumentEngine>> openPdf(const QByteArray& bytes, EngineContext& context) {
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(bytes);
  if (!file) return file.error();
  Result<PictureFacts> facts = pdfFacts(**file);
  if (!facts) return facts.error();
  return std::unique_ptr<DocumentEngine>(
      std::make_unique<PdfEngine>(bytes, std::move(*file), std::move(*facts), context));
}

}  // namespace norvex::engine
