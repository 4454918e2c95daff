#include "worker/svg/svg_engine.h"

#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

#include "protocol/limits.h"
#include "protocol/process_end.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/installed_fonts.h"
#include "worker/drawing/packing_beside.h"
#include "worker/drawing/two_halves.h"
#include "worker/examine/ink_box.h"
#include "worker/svg/inspection/svg_inspection.h"
#include "worker/svg/inspection/svg_length.h"
#include "worker/svg/svg_cut.h"
#include "worker/svg/svg_facts.h"
#include "worker/svg/svg_path_reach.h"
#include "worker/svg/svg_pretty.h"
#include "worker/svg/svg_renderer.h"
#include "worker/svg/svg_text.h"

namespace norvex::engine {
namespace {

/// The lower of two resolutions that are known.
double coarser(double one, double other) {
  return one > 0 && other > 0 ? std::min(one, other) : std::max(one, other);
}

/// True if a length says how long it is on paper.
bool hasUnit(const QString& length) {
  const QString text = length.trimmed();
  return !text.isEmpty() && text.back().isLetter();
}

/// Of the rows of an image: the thread that draws them is the one that reads, too.
constexpr double kUpperShare = 0.42;

/// A document that takes long to draw and in which nothing, by the words in it, is an image or a gradient:
/// see two_halves.h. `height`: of the document, in units of its paths. What may be loaded twice must be small
/// beside the memory that is granted.
bool isLongAndPlain(const QByteArray& utf8, double height, const PictureLimits& limits) {
  constexpr qsizetype long_ = 256 << 10;         // some thousand curves, a tenth of a second
  constexpr qint64 loaded = 24, shareOfAll = 4;  // bytes for each byte of the document
  if (utf8.size() < long_ || utf8.size() * loaded > (qint64(limits.memoryMiB) << 20) / shareOfAll)
    return false;
  for (const char* word : {"image", "radient", "pattern", "foreignObject"})
    if (utf8.contains(word)) return false;
  // Each path that is looked at is so twice: only filling long ones is shared.
  return meanPathHeight(utf8) * 4 >= height;
}

class SvgEngine final : public DocumentEngine {
 public:
  SvgEngine(SvgReading read, const SvgVectors& vectors, EngineContext& context)
      : context_(context), vectors_(vectors), read_(std::move(read)) {}

  /// Finds the picture's size. Call once, before anything else.
  Result<void> measure();

  Result<PictureFacts> facts() override { return svgFacts(read_, pixels_); }
  Result<Bitmap> render(const RenderRequest& request) override;
  Result<EngineBytes> pdf(const PdfRequest& request) override;
  Result<EngineBytes> compose(const ComposeRequest& request) override;
  Result<EngineBytes> svg(const SvgRequest& request) override;
  Result<EngineBytes> examine(const ExamineRequest& request) override;

 private:
  Result<void> start(int page) const;
  Result<PageContents> contents();
  Result<const SvgRenderer*> renderer();
  Result<void> load(std::unique_ptr<SvgRenderer>& renderer) const;
  [[nodiscard]] bool isDrawnInHalves(const RenderRequest& request);
  [[nodiscard]] PaintPicture painting(std::unique_ptr<SvgRenderer>& renderer) const;
  [[nodiscard]] QSizeF points() const { return pixels_ * pointsPerPixel; }
  [[nodiscard]] AffineTransform pixelsToPicture() const {
    return {pointsPerPixel, 0, 0, -pointsPerPixel, 0, points().height()};
  }
  // A document inside the document has not been inspected: for its sake the parser keeps its own bounds.
  [[nodiscard]] bool hugeParser() const {
    return read_.inspection.needsHugeParser && !read_.inspection.hasNestedDocument;
  }
  [[nodiscard]] bool needsOwnDocument(const AffineTransform& pixelsToDevice) const;
  Result<Bitmap> renderAsDocument(const RenderRequest& request, const AffineTransform& pixelsToDevice);
  [[nodiscard]] QStringList drawingRemarks() const override { return missingFonts_.value_or(QStringList()); }
  [[nodiscard]] SvgImageEffects imageEffects() const;
  [[nodiscard]] BytesReply pdfReport() const;

  EngineContext& context_;
  const SvgVectors vectors_;
  SvgReading read_;
  QSizeF pixels_;
  std::unique_ptr<SvgRenderer> renderer_, second_;  ///< `second_`: the same, where both halves read it
  std::optional<bool> isLongAndPlain_;
  std::optional<QByteArray> pdf_;            ///< without attributes: what every rectangle is cut from
  std::optional<QStringList> missingFonts_;  ///< one sentence each, once something was drawn
};

Result<void> SvgEngine::start(int page) const {
  if (context_.cancel.cancelled())
    return Error{ErrorKind::Cancelled, QStringLiteral("the request was cancelled")};
  if (page != 0) return Error{ErrorKind::Protocol, QStringLiteral("an SVG picture has one page")};
  return {};
}

Result<void> SvgEngine::load(std::unique_ptr<SvgRenderer>& renderer) const {
  if (renderer) return {};
  auto made = SvgRenderer::create(withDeclaredEncoding(read_.text.utf8, "UTF-8"), hugeParser());
  if (!made) return made.error();
  renderer = std::move(*made);
  return {};
}

Result<const SvgRenderer*> SvgEngine::renderer() {
  if (const Result<void> loaded = load(renderer_); !loaded) return loaded.error();
  if (!missingFonts_) missingFonts_ = missingFamilies(read_.inspection.fontLists);
  return renderer_.get();
}

Result<void> SvgEngine::measure() {
  if (read_.inspection.sizesByStyleSheet) {
    const Result<const SvgRenderer*> loaded = renderer();
    if (!loaded) return loaded.error();
    read_.geometry = (*loaded)->styled(read_.geometry);
  }
  const Result<QSizeF> measured = measuredSvg(read_.geometry, [&]() -> Result<QSizeF> {
    const Result<const SvgRenderer*> loaded = renderer();
    return loaded ? Result<QSizeF>((*loaded)->drawnExtent()) : loaded.error();
  });
  if (!measured) return measured.error();
  pixels_ = *measured;
  return {};
}

// librsvg makes layers as large as the whole picture on the device, and makes them wrong when the picture is
// turned.
bool SvgEngine::needsOwnDocument(const AffineTransform& pixelsToDevice) const {
  if (!read_.inspection.hasLayers) return false;
  const double width = pixels_.width() * pixelsToDevice.m11(),
               height = pixels_.height() * pixelsToDevice.m22();
  const bool upright = pixelsToDevice.m12() == 0 && pixelsToDevice.m21() == 0 && width > 0 && height > 0;
  return !upright || std::max(width, height) > limits::maximumLayerSide ||
         width * height > limits::maximumLayerPixels;
}

/// The part of the picture that is asked for becomes a document, and that is drawn upright: its layers are as
/// large as the image.
Result<Bitmap> SvgEngine::renderAsDocument(const RenderRequest& request,
                                           const AffineTransform& pixelsToDevice) {
  const AffineTransform placing =
      AffineTransform::fromScale(1 / pointsPerPixel, 1 / pointsPerPixel) * pixelsToDevice;
  const SvgCut part{points(), QRectF(QPointF(0, 0), QSizeF(request.pixelSize)), placing,
                    read_.inspection.hasStyleSheet};
  RenderRequest upright = request;
  upright.pictureToDevice = AffineTransform();
  std::unique_ptr<SvgRenderer> drawing;
  return paintImage(upright, context_.limits, [&](cairo_t* context) -> Result<void> {
    if (!drawing) {
      auto made =
          SvgRenderer::create(withDeclaredEncoding(cutSvg(read_.text.utf8, part), "UTF-8"), hugeParser());
      if (!made) return made.error();
      drawing = std::move(*made);
    }
    return drawing->draw(context, QSizeF(request.pixelSize));
  });
}

bool SvgEngine::isDrawnInHalves(const RenderRequest& request) {
  if (!isLongAndPlain_) {
    const double height = read_.geometry.viewBox ? read_.geometry.viewBox->height() : pixels_.height();
    isLongAndPlain_ = isLongAndPlain(read_.text.utf8, height, context_.limits);
  }
  return canPaintHalves(request, context_.limits) && !read_.inspection.hasLayers && *isLongAndPlain_;
}

/// Loads what it draws with.
PaintPicture SvgEngine::painting(std::unique_ptr<SvgRenderer>& renderer) const {
  return [this, &renderer](cairo_t* context) -> Result<void> {
    if (const Result<void> loaded = load(renderer); !loaded) return loaded;
    const cairo_matrix_t matrix = toCairo(pixelsToPicture());
    cairo_transform(context, &matrix);
    return renderer->draw(context, pixels_);
  };
}

Result<Bitmap> SvgEngine::render(const RenderRequest& request) {
  if (const Result<void> may = start(request.page); !may) return may.error();
  const AffineTransform pixelsToDevice = pixelsToPicture() * request.pictureToDevice;
  if (request.pictureToDevice.isInvertible() && isDrawnInHalves(request)) {
    if (!missingFonts_) missingFonts_ = missingFamilies(read_.inspection.fontLists);
    const PaintPicture paint = painting(renderer_), again = painting(second_);
    if (context_.processors <= 1) return paintHalves(request, context_.limits, paint, {}, kUpperShare);
    // Letters cannot be told: what was drawn up to the first of them would be drawn again.
    return SvgRenderer::canBeTold() && !read_.text.utf8.contains("<text")
               ? paintHalvesByTelling(request, context_.limits, paint, again, kUpperShare)
               : paintHalves(request, context_.limits, paint, again, kUpperShare);
  }
  const Result<const SvgRenderer*> loaded = renderer();
  if (!loaded) return loaded.error();
  if (request.pictureToDevice.isInvertible() && needsOwnDocument(pixelsToDevice))
    return renderAsDocument(request, pixelsToDevice);
  return paintImage(request, context_.limits, painting(renderer_));
}

// The scale of the view box is all that is known of a filter's user units here.
SvgImageEffects SvgEngine::imageEffects() const {
  SvgImageEffects effects{read_.inspection.filters + read_.inspection.masks > 0,
                          read_.inspection.morphologyRadius, read_.inspection.stretchedText};
  if (const auto& box = read_.geometry.viewBox; box && !box->isEmpty())
    effects.userScale = std::min(pixels_.width() / box->width(), pixels_.height() / box->height());
  effects.morphologyRadius *= effects.userScale;
  effects.largestFont = read_.inspection.largestFont;
  return effects;
}

// Counted are the elements whose own attributes ask for an effect; what style sheets ask for is not seen
// here.
BytesReply SvgEngine::pdfReport() const {
  BytesReply report;
  report.warnings = drawingRemarks();
  report.regionsRasterised = read_.inspection.filters + read_.inspection.masks;
  if (report.regionsRasterised > 0) report.rasterisedDpi = vectors_.effectsDpi(pixels_, imageEffects());
  if (read_.inspection.filters > 0)
    report.warnings << QStringLiteral("what is drawn through a filter (elements: %1) is held as an image")
                           .arg(read_.inspection.filters);
  if (read_.inspection.masks > 0)
    report.warnings << QStringLiteral("masks (elements: %1) are held as images, what they mask is not")
                           .arg(read_.inspection.masks);
  return report;
}

Result<EngineBytes> SvgEngine::pdf(const PdfRequest& request) {
  if (const Result<void> may = start(request.page); !may) return may.error();
  if (!vectors_.toPdf)
    return Error{ErrorKind::Unsupported, QStringLiteral("this picture was opened to be drawn")};
  if (pdf_ && !request.attributes) return EngineBytes{*pdf_, pdfReport()};
  const Result<const SvgRenderer*> loaded = renderer();
  if (!loaded) return loaded.error();
  const PackingBeside beside(context_.processors > 1);
  Result<QByteArray> made = vectors_.toPdf(**loaded, pixels_, imageEffects(), request.attributes);
  if (beside.hasFailed()) return memoryUsedUp();
  if (!made) return made.error();
  if (!request.attributes) pdf_ = *made;
  return EngineBytes{std::move(*made), pdfReport()};
}

Result<EngineBytes> SvgEngine::compose(const ComposeRequest& request) {
  if (!vectors_.compose)
    return Error{ErrorKind::Unsupported,
                 QStringLiteral("this picture was opened to be drawn or to become a PDF")};
  Result<EngineBytes> whole = pdf({request.page});
  if (!whole) return whole;
  Result<EngineBytes> composed = vectors_.compose(whole->bytes, request, context_);
  if (composed) {
    composed->report.regionsRasterised += whole->report.regionsRasterised;
    composed->report.rasterisedDpi = coarser(whole->report.rasterisedDpi, composed->report.rasterisedDpi);
    composed->report.warnings = whole->report.warnings + composed->report.warnings;
  }
  return composed;
}

// What SVG itself says stands beside what its PDF holds.
Result<PageContents> SvgEngine::contents() {
  const Result<EngineBytes> made = pdf({});
  if (!made) return made.error();
  Result<PageContents> found = vectors_.contents(made->bytes, context_.cancel);
  if (!found) return found.error();
  found->size = points();
  found->fonts.clear();  // the PDF's own, not the document's
  if (read_.inspection.filters + read_.inspection.masks > 0) found->images.clear();  // some of them are ours
  found->missingFonts = drawingRemarks();
  found->outsideReferences = read_.inspection.outsideReferences;
  found->filters = read_.inspection.filters;
  found->runsSomething = read_.inspection.hasScript || read_.inspection.hasAnimation;
  found->sizeWithoutUnit = !hasUnit(read_.inspection.rootAttributes.value(QStringLiteral("width"))) ||
                           !hasUnit(read_.inspection.rootAttributes.value(QStringLiteral("height")));
  return found;
}

Result<EngineBytes> SvgEngine::examine(const ExamineRequest& request) {
  if (const Result<void> may = start(request.page); !may) return may.error();
  if (request.what == Examination::Contents && vectors_.contents) {
    const Result<PageContents> found = contents();
    if (!found) return found.error();
    return EngineBytes{encodePageContents(*found), {}};
  }
  if (request.what == Examination::Text && vectors_.text) {
    const Result<EngineBytes> made = pdf({});
    if (!made) return made.error();
    const Result<PageText> found = vectors_.text(made->bytes, points());
    if (!found) return found.error();
    return EngineBytes{encodePageText(*found), {}};
  }
  if (request.what != Examination::Drawn) return DocumentEngine::examine(request);
  const Result<DrawnInk> ink = findInk(QRectF(QPointF(0, 0), points()), 0, request.dpi,
                                       [&](const RenderRequest& part) { return render(part); });
  if (!ink) return ink.error();
  return EngineBytes{encodeDrawnInk(*ink), {}};
}

Result<EngineBytes> SvgEngine::svg(const SvgRequest& request) {
  if (const Result<void> may = start(0); !may) return may.error();
  if (request.pretty) return EngineBytes{encodeSvgText(prettySvg(read_.text.utf8), read_.text), {}};
  if (!request.rect && request.rotate == 0) return EngineBytes{read_.source, {}};
  const QRectF rect = request.rect.value_or(QRectF(QPointF(0, 0), points()));
  const double far = limits::maximumPoints;
  if (!(rect.width() > 0 && rect.height() > 0 && rect.width() <= far && rect.height() <= far &&
        std::abs(rect.x()) <= far && std::abs(rect.y()) <= far && std::isfinite(request.rotate)))
    return Error{ErrorKind::Protocol, QStringLiteral("the rectangle to cut out is empty or out of reach")};
  const SvgCut cut{points(), rect, turnedInItsBox(points(), request.rotate), read_.inspection.hasStyleSheet};
  return EngineBytes{encodeSvgText(cutSvg(read_.text.utf8, cut), read_.text), {}};
}

}  // namespace

Result<std::unique_ptr<DocumentEngine>> openSvgWith(const SvgVectors& vectors, const QByteArray& bytes,
                                                    EngineContext& context) {
  Result<SvgReading> read = readSvg(bytes);
  if (!read) return read.error();
  auto engine = std::make_unique<SvgEngine>(std::move(*read), vectors, context);
  if (const Result<void> measured = engine->measure(); !measured) return measured.error();
  return std::unique_ptr<DocumentEngine>(std::move(engine));
}

}  // namespace norvex::engine
