#include "worker/postscript/separated_pages.h"

#include <utility>

#include "worker/pdf/pdf_file.h"
#include "worker/postscript/separations.h"

namespace norvex::engine {
namespace {

class SeparatedPages final : public DocumentEngine {
 public:
  SeparatedPages(std::unique_ptr<DocumentEngine> pages, QByteArray pdf, EngineContext& context)
      : pages_(std::move(pages)), pdf_(std::move(pdf)), context_(context) {}

  Result<PictureFacts> facts() override { return pages_->facts(); }
  Result<Bitmap> render(const RenderRequest& request) override { return pages_->render(request); }
  Result<EngineBytes> pdf(const PdfRequest& request) override { return pages_->pdf(request); }
  Result<EngineBytes> compose(const ComposeRequest& request) override { return pages_->compose(request); }
  Result<EngineBytes> svg(const SvgRequest& request) override { return pages_->svg(request); }
  [[nodiscard]] QStringList drawingRemarks() const override { return pages_->drawingRemarks(); }

  Result<EngineBytes> examine(const ExamineRequest& request) override {
    if (request.what != Examination::Inks) return pages_->examine(request);
    const Result<PictureFacts> facts = pages_->facts();
    if (!facts) return facts.error();
    if (request.page < 0 || request.page >= facts->pageCount)
      return noSuchPage(request.page, facts->pageCount);
    // The boxes of very late pages are not among the facts; their plates are measured when they are there.
    const QSizeF size = facts->pageBounds.value(request.page).size();
    return inksOfPdf(pdf_, size, request, context_);
  }

 private:
  const std::unique_ptr<DocumentEngine> pages_;
  const QByteArray pdf_;
  EngineContext& context_;
};

}  // namespace

Result<std::unique_ptr<DocumentEngine>> withInks(Result<std::unique_ptr<DocumentEngine>> pages,
                                                 const QByteArray& pdf, EngineContext& context) {
  if (!pages) return pages;
  return std::unique_ptr<DocumentEngine>(std::make_unique<SeparatedPages>(std::move(*pages), pdf, context));
}

}  // namespace norvex::engine
