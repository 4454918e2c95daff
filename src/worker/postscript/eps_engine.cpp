#include "worker/postscript/eps_engine.h"

// The engine of Encapsulated PostScript. Facts come from the header; the program is run once, when something
// is to be drawn, and from then on the picture is a PDF.
#include <QElapsedTimer>

#include <algorithm>
#include <optional>

#include "metadata/eps_bounding_box.h"
#include "metadata/eps_program.h"
#include "metadata/eps_resources.h"
#include "protocol/page_contents.h"
#include "protocol/program_stop.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/installed_fonts.h"
#include "worker/examine/ink_box.h"
#include "worker/examine/page_examination.h"
#include "worker/pages/compose_page.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_render.h"
#include "worker/pdf/whole_page.h"
#include "worker/postscript/distill.h"
#include "worker/postscript/program_watch.h"
#include "worker/postscript/separations.h"

namespace norvex::engine {
namespace {

/// Points on each side of the box in which ink is looked for that the box does not tell of.
double surroundingsOf(const QRectF& box) {
  return std::clamp(std::max(box.width(), box.height()) / 2, 144.0, 1000.0);
}

// A picture and its plates may lie in one file, one program behind the other.
QByteArray pictureProgram(const QByteArray& bytes) {
  const QByteArray program = epsProgram(bytes);
  const qsizetype length = compositeOf(program).size();
  return length == program.size() ? program : program.first(length);
}

class EpsEngine final : public DocumentEngine {
 public:
  EpsEngine(const QByteArray& bytes, const QRectF& box, EngineContext& context)
      : bytes_(bytes), box_(box), context_(context) {}

  Result<PictureFacts> facts() override {
    PictureFacts facts;
    facts.pageBounds = {box_};
    facts.pageCount = 1;
    if (distilled_) facts.stoppedBy = distilled_->stoppedBy;
    return facts;
  }

  Result<Bitmap> render(const RenderRequest& request) override {
    QElapsedTimer begun;
    begun.start();
    // A look at what was examined needs no second run of the program.
    if (request.purpose == RenderPurpose::Preview && request.page == 0 && surroundings_ && !distilled_)
      return drawPart(request);
    if (request.page == begunPage && !begun_.isEmpty()) return drawBegun(request);
    ProgramWatch watch(box_.size());
    // Whoever else waits for it, a check or a thumbnail, shows nothing that is not finished.
    const bool isShown = request.purpose == RenderPurpose::View;
    if (const Result<void> ready = prepare(request.page, isShown ? &watch : nullptr); !ready) {
      // A short run has nothing to show and takes away nothing.
      if (Bitmap drawn = watch.drawn(context_.limits);
          ready.error().kind == ErrorKind::Cancelled && !drawn.isEmpty())
        begun_ = std::move(drawn);
      return ready.error();
    }
    PictureLimits left = context_.limits;
    left.seconds = std::max(0, left.seconds - int(begun.elapsed() / 1000));
    return renderer_->render(request, box_.size(), left);
  }

  [[nodiscard]] QStringList drawingRemarks() const override {
    return distilled_ ? distilled_->remarks() : QStringList();
  }

  Result<EngineBytes> pdf(const PdfRequest& request) override {
    if (const Result<void> ready = prepare(request.page); !ready) return ready.error();
    EngineBytes result{distilled_->pdf, {}};
    if (request.attributes) {
      Result<QByteArray> titled = withPdfAttributes(result.bytes, *request.attributes);
      if (!titled) return titled.error();
      result.bytes = std::move(*titled);
    }
    result.report.warnings = distilled_->remarks();
    return result;
  }

  Result<EngineBytes> compose(const ComposeRequest& request) override {
    if (const Result<void> ready = prepare(request.page); !ready) return ready.error();
    Result<EngineBytes> result = composePage(distilled_->pdf, request, context_);
    if (result) result->report.warnings = distilled_->remarks() + result->report.warnings;
    return result;
  }

  Result<EngineBytes> examine(const ExamineRequest& request) override {
    if (request.what == Examination::Text) return letters(request.page);
    if (request.what == Examination::Inks) return inks(request);
    if (request.what != Examination::Contents && request.what != Examination::Drawn)
      return DocumentEngine::examine(request);
    if (const Result<void> ready = prepareSurroundings(request.page); !ready) return ready.error();
    return request.what == Examination::Contents ? contents() : drawn(request.dpi);
  }

 private:
  [[nodiscard]] Result<EngineBytes> letters(int page) {
    if (const Result<void> ready = prepare(page); !ready) return ready.error();
    const Result<PageText> text = renderer_->letters(0, box_.size());
    if (!text) return text.error();
    return EngineBytes{encodePageText(*text), {}};
  }

  // Distils once more, with what lies around the box. Unlike the picture it is not needed for long.
  [[nodiscard]] Result<void> prepareSurroundings(int page) {
    if (page != 0) return noSuchPage(page, 1);
    if (surroundings_) return {};
    const double margin = surroundingsOf(box_);
    Result<Distilled> distilled =
        distill(pictureProgram(bytes_), box_.adjusted(-margin, -margin, margin, margin), context_);
    if (!distilled) return distilled.error();
    if (!distilled->stoppedBy.isEmpty()) return Error{ErrorKind::NotParsable, distilled->stoppedBy};
    surroundings_ = std::move(*distilled);
    surroundingsRenderer_.emplace(surroundings_->pdf);
    return {};
  }

  [[nodiscard]] Result<EngineBytes> contents() {
    const auto file = PdfFile::open(surroundings_->pdf);
    if (!file) return file.error();
    return guarded([&]() -> Result<EngineBytes> {
      const double margin = surroundingsOf(box_);
      const ExaminedPage page{0, AffineTransform::fromTranslate(-margin, -margin), box_.size()};
      PageContents contents = pageContents(**file, page, context_.cancel);
      for (const QString& warning : surroundings_->warnings)
        (isMissingFontSentence(warning) ? contents.missingFonts : contents.remarks) << warning;
      return EngineBytes{encodePageContents(contents), {}};
    });
  }

  // The program itself: what a PDF of it would say otherwise is not on its plates.
  [[nodiscard]] Result<EngineBytes> inks(const ExamineRequest& request) {
    if (request.page != 0) return noSuchPage(request.page, 1);
    return inksOfProgram(pictureProgram(bytes_), box_, request, context_);
  }

  /// Of what prepareSurroundings() made.
  [[nodiscard]] Result<Bitmap> drawPart(RenderRequest part) {
    const double margin = surroundingsOf(box_);
    part.pictureToDevice = AffineTransform::fromTranslate(-margin, -margin) * part.pictureToDevice;
    const QSizeF area(box_.width() + 2 * margin, box_.height() + 2 * margin);
    return surroundingsRenderer_->render(part, area, context_.limits);
  }

  [[nodiscard]] Result<EngineBytes> drawn(double dpi) {
    const double margin = surroundingsOf(box_);
    const QRectF area(-margin, -margin, box_.width() + 2 * margin, box_.height() + 2 * margin);
    const Result<DrawnInk> ink =
        findInk(area, 0, dpi, [&](const RenderRequest& part) { return drawPart(part); });
    if (!ink) return ink.error();
    return EngineBytes{encodeDrawnInk(*ink), {}};
  }

  /// Of a program that was stopped.
  [[nodiscard]] Result<Bitmap> drawBegun(const RenderRequest& request) {
    return paintImage(request, context_.limits, [this](cairo_t* context) -> Result<void> {
      const CairoSurface pixels(cairo_image_surface_create_for_data(
          reinterpret_cast<unsigned char*>(begun_.row(0)), CAIRO_FORMAT_ARGB32, begun_.width(),
          begun_.height(), begun_.bytesPerRow()));
      cairo_translate(context, 0, box_.height());
      cairo_scale(context, box_.width() / begun_.width(), -box_.height() / begun_.height());
      cairo_set_source_surface(context, pixels.get(), 0, 0);
      cairo_paint(context);
      return {};
    });
  }

  // Distils at the first call. A failure that lies in the document is remembered: it would fail again.
  [[nodiscard]] Result<void> prepare(int page, ProgramWatch* watch = nullptr) {
    if (page != 0) return noSuchPage(page, 1);
    if (distilled_) return {};
    if (failure_) return *failure_;
    Result<Distilled> distilled = distill(pictureProgram(bytes_), box_, context_, watch);
    if (!distilled) {
      if (distilled.error().kind == ErrorKind::NotParsable) failure_ = distilled.error();
      return distilled.error();
    }
    distilled_ = std::move(*distilled);
    begun_ = {};
    renderer_.emplace(distilled_->pdf, context_.processors);
    return {};
  }

  QByteArray bytes_;
  QRectF box_;
  EngineContext& context_;
  std::optional<Distilled> distilled_;
  std::optional<Error> failure_;
  std::optional<PdfRenderer> renderer_;
  Bitmap begun_;                           ///< of the last drawing that was stopped and had drawn anything
  std::optional<Distilled> surroundings_;  ///< the program within a larger box
  std::optional<PdfRenderer> surroundingsRenderer_;
};

}  // namespace

Result<std::unique_ptr<DocumentEngine>> openEps(const QByteArray& bytes, EngineContext& context) {
  if (epsProgram(bytes).isEmpty())
    return Error{ErrorKind::NotParsable, QStringLiteral("the file holds no PostScript")};
  const std::optional<QRectF> box = epsPictureBox(epsBoundingBoxes(bytes));
  if (!box) return Error{ErrorKind::NotParsable, QStringLiteral("the PostScript has no usable bounding box")};
  return std::unique_ptr<DocumentEngine>(std::make_unique<EpsEngine>(bytes, *box, context));
}

}  // namespace norvex::engine
