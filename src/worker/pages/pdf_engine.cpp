#include "worker/pages/pdf_engine.h"

// The engine of PDF documents and of Illustrator files that are PDF inside.
#include "protocol/every_page.h"
#include "protocol/page_contents.h"
#include "protocol/shared_errors.h"
#include "worker/drawing/installed_fonts.h"
#include "worker/examine/ink_box.h"
#include "worker/examine/page_examination.h"
#include "worker/pages/actions_left_out.h"
#include "worker/pages/compose_page.h"
#include "worker/pages/illustrator_notice.h"
#include "worker/pages/page_reading.h"
#include "worker/pages/read_pdf.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_render.h"
#include "worker/pdf/pdf_resources.h"
#include "worker/pdf/whole_page.h"

#include <optional>

namespace norvex::engine {
namespace {

class PdfEngine final : public DocumentEngine {
 public:
  PdfEngine(ReadPdf read, EngineContext& context)
      : source_(std::move(read.source)),
        bytes_(std::move(read.bytes)),
        lostProtection_(std::move(read.lostProtection)),
        file_(std::move(read.file)),
        facts_(std::move(read.facts)),
        renderer_(bytes_, context.processors),
        context_(context) {}

  Result<PictureFacts> facts() override { return facts_; }

  Result<Bitmap> render(const RenderRequest& request) override {
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    if (request.purpose == RenderPurpose::Export) noteRemarks(request.page);
    Result<Bitmap> image = drawn(request, *size);
    // Where the drawing knows better than we do what is in a damaged file, it is right.
    if (image && isUnpainted(*image) && reading(request.page) == PageReading::Nothing)
      return nothingCanBeRead(request.page, file_->pageCount());
    return image;
  }

  Result<EngineBytes> pdf(const PdfRequest& request) override {
    if (request.page == everyPage) return wholeFile(request);
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    ComposeRequest whole = wholePage(request.page, *size, VectorFormat::Pdf);
    whole.attributes = request.attributes;
    whole.keepActions = request.keepActions;
    return compose(whole);
  }

  Result<EngineBytes> compose(const ComposeRequest& request) override {
    if (reading(request.page) == PageReading::Nothing)
      return nothingCanBeRead(request.page, file_->pageCount());
    Result<EngineBytes> result = told(composePage(bytes_, request, context_));
    if (!result) return result;
    // A PDF asks for its fonts as the document did; EPS and SVG hold what is drawn instead.
    if (request.format != VectorFormat::Pdf) noteRemarks(request.page);
    result->report.warnings =
        (request.format == VectorFormat::Pdf ? damageOf(request.page) : remarks_) + result->report.warnings;
    return result;
  }

  Result<EngineBytes> examine(const ExamineRequest& request) override {
    const Result<QSizeF> size = shownSize(request.page);
    if (!size) return size.error();
    if (request.what == Examination::Contents) return contents(request.page);
    if (request.what == Examination::Drawn) return inked(request, *size);
    if (request.what == Examination::Text) return letters(request.page, *size);
    if (request.what == Examination::Names) return namesOfPage(*file_, request.page);
    return DocumentEngine::examine(request);
  }

  [[nodiscard]] QStringList drawingRemarks() const override { return remarks_; }

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
      contents.remarks = facts_.warnings + damageOf(page);
      return EngineBytes{encodePageContents(contents), {}};
    });
  }

  [[nodiscard]] Result<EngineBytes> inked(const ExamineRequest& request, QSizeF size) {
    const Result<DrawnInk> ink = findInk(QRectF(QPointF(0, 0), size), request.page, request.dpi,
                                         [&](const RenderRequest& part) { return render(part); });
    if (!ink) return ink.error();
    return EngineBytes{encodeDrawnInk(*ink), {}};
  }

  [[nodiscard]] Result<EngineBytes> letters(int page, QSizeF size) {
    const Result<PageText> text = isCut(page) ? lettersOfRepaired(page, size) : renderer_.letters(page, size);
    if (!text) return text.error();
    return EngineBytes{encodePageText(*text), {}};
  }

  [[nodiscard]] Result<EngineBytes> wholeFile(const PdfRequest& request) {
    if (isUnreadable()) return nothingCanBeRead(everyPage, file_->pageCount());
    Result<EngineBytes> result =
        told(request.keepActions ? EngineBytes{bytes_, {}} : leaveOutActions(bytes_));
    if (result) result->report.warnings = damageOf(0) + result->report.warnings;
    return result;
  }

  void noteRemarks(int page) {
    if (page < 0 || page >= file_->pageCount() || remarksOfPage_ == page) return;
    remarksOfPage_ = page;
    remarks_ = damageOf(page);
    for (const QString& font : missingFonts(*file_, page)) remarks_ << missingFontSentence(font);
  }

  /// Whole for a page that is not there, which others tell.
  [[nodiscard]] PageReading reading(int page) {
    if (page < 0 || page >= file_->pageCount()) return PageReading::Whole;
    if (readPage_ != page) reading_ = readingOf(*file_, page);
    readPage_ = page;
    return reading_;
  }

  /// Of a page in a file that did not show its damage when it was opened: a sentence or none.
  [[nodiscard]] QStringList damageOf(int page) {
    const bool isTold = facts_.warnings.contains(damagedFile());
    return isTold || reading(page) == PageReading::Whole ? QStringList() : QStringList{damagedFile()};
  }

  /// True if none of the pages shows anything, because nothing of them can be read.
  [[nodiscard]] bool isUnreadable() {
    for (int page = 0; page < file_->pageCount(); ++page)
      if (reading(page) != PageReading::Nothing) return false;
    return true;
  }

  [[nodiscard]] Result<Bitmap> drawn(const RenderRequest& request, QSizeF size) {
    if (isCut(request.page)) return renderRepaired(request, size);
    Result<Bitmap> image = renderer_.render(request, size, context_.limits);
    if (image || image.error().kind == ErrorKind::Limit || image.error().kind == ErrorKind::Protocol)
      return image;
    return renderRepaired(request, size);
  }

  [[nodiscard]] Result<QSizeF> shownSize(int page) {
    if (page < 0 || page >= file_->pageCount()) return noSuchPage(page, file_->pageCount());
    if (page < facts_.pageBounds.size()) return facts_.pageBounds[page].size();
    return guarded([&]() -> Result<QSizeF> { return file_->geometry(page).shownSize(); });
  }

  /// Poppler takes the whole media box along an axis on which the crop box reaches beyond it.
  [[nodiscard]] bool isCut(int page) {
    const Result<bool> cut = guarded([&]() -> Result<bool> { return file_->geometry(page).isCut; });
    return cut && *cut;
  }

  // Of damaged files qpdf finds pages that Poppler misses: it is given the page alone, written anew.
  [[nodiscard]] Result<PdfRenderer*> repaired(int page, QSizeF size) {
    if (!repaired_ || repairedPage_ != page) {
      Result<QByteArray> alone = composePdf(bytes_, wholePage(page, size, VectorFormat::Pdf));
      if (!alone) return alone.error();
      repaired_.emplace(std::move(*alone));
      repairedPage_ = page;
    }
    return &*repaired_;
  }

  [[nodiscard]] Result<Bitmap> renderRepaired(RenderRequest request, QSizeF size) {
    const Result<PdfRenderer*> renderer = repaired(request.page, size);
    if (!renderer) return renderer.error();
    request.page = 0;
    return (*renderer)->render(request, size, context_.limits);
  }

  [[nodiscard]] Result<PageText> lettersOfRepaired(int page, QSizeF size) {
    const Result<PdfRenderer*> renderer = repaired(page, size);
    return renderer ? (*renderer)->letters(0, size) : Result<PageText>(renderer.error());
  }

  QByteArray source_;
  QByteArray bytes_;
  QString lostProtection_;
  std::unique_ptr<PdfFile> file_;
  PictureFacts facts_;
  PdfRenderer renderer_;
  std::optional<PdfRenderer> repaired_;
  int repairedPage_ = -1;
  QStringList remarks_;  ///< on the page that was handed out last, one sentence each
  int remarksOfPage_ = -1;
  PageReading reading_ = PageReading::Whole;  ///< of readPage_
  int readPage_ = -1;
  EngineContext& context_;
};

}  // namespace

Result<std::unique_ptr<DocumentEngine>> openPdf(const QByteArray& bytes, EngineContext& context) {
  Result<ReadPdf> read = readPdf(bytes, context, isIllustratorNotice);
  if (!read) return read.error();
  return std::unique_ptr<DocumentEngine>(std::make_unique<PdfEngine>(std::move(*read), context));
}

}  // namespace norvex::engine
