#include "worker/pages/pdf_engine.h"

// The engine of PDF documents and of Illustrator files that are PDF inside.
#include "protocol/every_page.h"
#include "protocol/page_contents.h"
#include "worker/drawing/installed_fonts.h"
#include "worker/examine/ink_box.h"
#include "worker/examine/page_examination.h"
#include "worker/pages/actions_left_out.h"
#include "worker/pages/chosen_pdf.h"
#include "worker/pages/compose_page.h"
#include "worker/pages/pdf_layers.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/pdf/illustrator_notice.h"
#include "worker/pdf/pdf_facts.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_render.h"
#include "worker/pdf/pdf_resources.h"
#include "worker/pdf/whole_page.h"

#include <optional>

namespace norvex::engine {
namespace {

/// A document as it came, and as it is worked with.
struct ReadPdf {
  QByteArray source;
  QByteArray bytes;
  QString lostProtection;  ///< see chosen_pdf.h
};

class PdfEngine final : public DocumentEngine {
 public:
  PdfEngine(ReadPdf read, std::unique_ptr<PdfFile> file, PictureFacts facts, EngineContext& context)
      : source_(std::move(read.source)),
        bytes_(std::move(read.bytes)),
        lostProtection_(std::move(read.lostProtection)),
        file_(std::move(file)),
        facts_(std::move(facts)),
        renderer_(bytes_),
        context_(context) {}

  Result<PictureFacts> facts() override { return facts_; }

  Result<Bitmap> render(const RenderRequest& request) override {
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    if (request.purpose == RenderPurpose::Export) noteMissingFonts(request.page);
    Result<Bitmap> image = renderer_.render(request, *size, context_.limits);
    if (image || image.error().kind == ErrorKind::Limit || image.error().kind == ErrorKind::Protocol)
      return image;
    return renderRepaired(request, *size);
  }

  Result<EngineBytes> pdf(const PdfRequest& request) override {
    if (request.page == everyPage)
      return told(request.keepActions ? EngineBytes{bytes_, {}} : leaveOutActions(bytes_));
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    ComposeRequest whole = wholePage(request.page, *size, VectorFormat::Pdf);
    whole.attributes = request.attributes;
    whole.keepActions = request.keepActions;
    return told(composePage(bytes_, whole, context_));
  }

  Result<EngineBytes> compose(const ComposeRequest& request) override {
    Result<EngineBytes> result = told(composePage(bytes_, request, context_));
    // A PDF asks for its fonts as the document did; EPS and SVG hold what is drawn instead.
    if (!result || request.format == VectorFormat::Pdf) return result;
    noteMissingFonts(request.page);
    result->report.warnings = missingFonts_ + result->report.warnings;
    return result;
  }

  Result<EngineBytes> examine(const ExamineRequest& request) override {
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    if (request.what == Examination::Contents) return contents(request.page);
    if (request.what == Examination::Drawn) return drawn(request.page, *size);
    if (request.what == Examination::Text) return letters(request.page, *size);
    return DocumentEngine::examine(request);
  }

  [[nodiscard]] QStringList drawingRemarks() const override { return missingFonts_; }

 private:
  /// What is handed on without the document's protection says so; its own bytes still have it.
  [[nodiscard]] Result<EngineBytes> told(Result<EngineBytes> made) const {
    if (made && !lostProtection_.isEmpty() && made->bytes != source_)
      made->report.warnings.prepend(lostProtection_);
    return made;
  }

  [[nodiscard]] Result<EngineBytes> contents(int page) {
    return guarded([&]() -> Result<EngineBytes> {
      PageContents contents = pageContents(*file_, shownPageOf(*file_, page), context_.cancel);
      contents.remarks = facts_.warnings;
      return EngineBytes{encodePageContents(contents), {}};
    });
  }

  [[nodiscard]] Result<EngineBytes> drawn(int page, QSizeF size) {
    const Result<DrawnInk> ink =
        findInk(QRectF(QPointF(0, 0), size), page, [&](const RenderRequest& part) { return render(part); });
    if (!ink) return ink.error();
    return EngineBytes{encodeDrawnInk(*ink), {}};
  }

  [[nodiscard]] Result<EngineBytes> letters(int page, QSizeF size) {
    const Result<PageText> text = renderer_.letters(page, size);
    if (!text) return text.error();
    return EngineBytes{encodePageText(*text), {}};
  }

  void noteMissingFonts(int page) {
    if (page < 0 || page >= file_->pageCount() || fontsOfPage_ == page) return;
    fontsOfPage_ = page;
    missingFonts_.clear();
    for (const QString& font : missingFonts(*file_, page)) missingFonts_ << missingFontSentence(font);
  }

  [[nodiscard]] Result<QSizeF> shownSize(int page) {
    if (page < 0 || page >= file_->pageCount()) return noSuchPage(page, file_->pageCount());
    if (page < facts_.pageBounds.size()) return facts_.pageBounds[page].size();
    return guarded([&]() -> Result<QSizeF> { return file_->geometry(page).shownSize(); });
  }

  // Of damaged files qpdf finds pages that Poppler misses: it is given the page alone, written anew.
  [[nodiscard]] Result<Bitmap> renderRepaired(RenderRequest request, QSizeF size) {
    if (!repaired_ || repairedPage_ != request.page) {
      Result<QByteArray> page = composePdf(bytes_, wholePage(request.page, size, VectorFormat::Pdf));
      if (!page) return page.error();
      repaired_.emplace(std::move(*page));
      repairedPage_ = request.page;
    }
    request.page = 0;
    return repaired_->render(request, size, context_.limits);
  }

  QByteArray source_;
  QByteArray bytes_;
  QString lostProtection_;
  std::unique_ptr<PdfFile> file_;
  PictureFacts facts_;
  PdfRenderer renderer_;
  std::optional<PdfRenderer> repaired_;
  int repairedPage_ = -1;
  QStringList missingFonts_;  ///< of the page that was handed out last, one sentence each
  int fontsOfPage_ = -1;
  EngineContext& context_;
};

/// What the document says to its readers: layers, protection.
Result<void> lookAtReader(PdfFile& file, PictureFacts& facts, QString& protection) {
  return guarded([&]() -> Result<void> {
    facts.layers = pdfLayers(file.qpdf());
    if (protection.isEmpty()) protection = lostProtection(file.qpdf());
    return {};
  });
}

}  // namespace

Result<std::unique_ptr<DocumentEngine>> openPdf(const QByteArray& bytes, EngineContext& context) {
  ReadPdf read{bytes, bytes, {}};
  if (!context.password.isEmpty() || !context.layers.isEmpty()) {
    Result<ChosenPdf> chosen = chosenPdf(bytes, context.password, context.layers);
    if (!chosen) return chosen.error();
    read.bytes = std::move(chosen->bytes);
    read.lostProtection = std::move(chosen->lostProtection);
  }
  Result<std::unique_ptr<PdfFile>> file = PdfFile::open(read.bytes);
  if (!file) return file.error();
  Result<PictureFacts> facts = pdfFacts(**file);
  if (!facts) return facts.error();
  if (isIllustratorNotice(read.bytes, **file)) facts->warnings << illustratorNoticeSentence();
  if (const Result<void> looked = lookAtReader(**file, *facts, read.lostProtection); !looked)
    return looked.error();
  return std::unique_ptr<DocumentEngine>(
      std::make_unique<PdfEngine>(std::move(read), std::move(*file), std::move(*facts), context));
}

}  // namespace norvex::engine
