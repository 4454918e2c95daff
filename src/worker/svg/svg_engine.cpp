#include "worker/svg/svg_engine.h"

#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

#include "protocol/limits.h"
#include "types/gzip_mark.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/installed_fonts.h"
#include "worker/drawing/two_halves.h"
#include "worker/examine/ink_box.h"
#include "worker/svg/gzip_inflate.h"
#include "worker/svg/svg_cut.h"
#include "worker/svg/svg_inspection.h"
#include "worker/svg/svg_length.h"
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

/// A document that takes long to draw and in which nothing, by the words in it, is an image or a gradient:
/// see two_halves.h. `height`: of the document, in units of its paths. What is loaded twice must be small
/// beside the memory that is granted.
bool isLongAndPlain(const QByteArray& utf8, double height, const PictureLimits& limits) {
  constexpr qsizetype long_ = 256 << 10;         // some thousand curves, a tenth of a second
  constexpr qint64 loaded = 24, shareOfAll = 4;  // bytes for each byte of the document
  if (utf8.size() < long_ || utf8.size() * loaded > (qint64(limits.memoryMiB) << 20) / shareOfAll)
    return false;
  for (const char* word : {"image", "radient", "pattern", "foreignObject"})
    if (utf8.contains(word)) return false;
  // What is read, and each path that is looked at, is so twice: only filling long ones is shared.
  return meanPathHeight(utf8) * 4 >= height;
}

class SvgEngine final : public DocumentEngine {
 public:
  /// `source`: the document as it stands, not compressed.
  SvgEngine(QByteArray source, SvgText text, SvgInspection inspection, const SvgVectors& vectors,
            EngineContext& context)
      : context_(context),
        vectors_(vectors),
        source_(std::move(source)),
        text_(std::move(text)),
        inspection_(std::move(inspection)),
        geometry_(svgGeometry(inspection_.rootAttributes)) {}

  /// Finds the picture's size. Call once, before anything else.
  Result<void> measure();

  Result<PictureFacts> facts() override;
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
    return inspection_.needsHugeParser && !inspection_.hasNestedDocument;
  }
  [[nodiscard]] bool needsOwnDocument(const AffineTransform& pixelsToDevice) const;
  Result<Bitmap> renderAsDocument(const RenderRequest& request, const AffineTransform& pixelsToDevice);
  [[nodiscard]] QStringList drawingRemarks() const override { return missingFonts_.value_or(QStringList()); }
  [[nodiscard]] QStringList warnings() const;
  [[nodiscard]] SvgImageEffects imageEffects() const;
  [[nodiscard]] BytesReply pdfReport() const;

  EngineContext& context_;
  const SvgVectors vectors_;
  const QByteArray source_;
  const SvgText text_;
  const SvgInspection inspection_;
  const SvgGeometry geometry_;
  QSizeF pixels_;
  std::unique_ptr<SvgRenderer> renderer_, second_;  ///< `second_`: the same document, for the other half
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
  auto made = SvgRenderer::create(withDeclaredEncoding(text_.utf8, "UTF-8"), hugeParser());
  if (!made) return made.error();
  renderer = std::move(*made);
  return {};
}

Result<const SvgRenderer*> SvgEngine::renderer() {
  if (const Result<void> loaded = load(renderer_); !loaded) return loaded.error();
  if (!missingFonts_) missingFonts_ = missingFamilies(inspection_.fontLists);
  return renderer_.get();
}

Result<void> SvgEngine::measure() {
  std::optional<Error> failed;
  pixels_ = svgPixelSize(geometry_, [&]() -> QSizeF {
    const Result<const SvgRenderer*> loaded = renderer();
    if (loaded) return (*loaded)->drawnExtent();
    failed = loaded.error();
    return {};
  });
  if (failed) return *failed;
  const QSizeF size = points();
  if (!(size.width() > 0 && size.height() > 0))
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture is empty: its width or height is zero")};
  if (!(size.width() <= limits::maximumPoints && size.height() <= limits::maximumPoints))
    return Error{ErrorKind::Limit, QStringLiteral("the picture is wider or higher than %1 points")
                                       .arg(limits::maximumPoints, 0, 'f', 0)};
  return {};
}

QStringList SvgEngine::warnings() const {
  QStringList list;
  const auto warn = [&](bool when, const QString& text) {
    if (when) list << text;
  };
  warn(text_.handedOnAsUtf8, QStringLiteral("the text is in %1 and is handed on as UTF-8")
                                 .arg(QString::fromUtf8(text_.declaredName.left(40))));
  warn(geometry_.badWidth || geometry_.badHeight,
       QStringLiteral("the document's width or height is not a length and is passed over"));
  warn(geometry_.badViewBox, QStringLiteral("the document's view box is not readable and is passed over"));
  warn(inspection_.outsideReferences > 0,
       QStringLiteral("the document refers to other files, which are never loaded (references: %1)")
           .arg(inspection_.outsideReferences));
  warn(inspection_.hasScript, QStringLiteral("the document has scripts, which are never run"));
  warn(inspection_.hasAnimation,
       QStringLiteral("the document is animated and is shown as it stands at rest"));
  return list;
}

Result<PictureFacts> SvgEngine::facts() {
  PictureFacts facts;
  facts.pageBounds = {QRectF(QPointF(0, 0), points())};
  facts.viewBox = geometry_.viewBox;
  facts.fonts = inspection_.fonts;
  facts.colorSpaces = {
      QStringLiteral("sRGB")};  // the colours of the format; what else a document names is not drawn
  facts.title = inspection_.title;
  facts.description = inspection_.description;
  facts.encodingName = text_.encodingName;
  facts.encodingNumber = text_.encodingNumber;
  if (geometry_.width) facts.fixedRatioX = !geometry_.width->isPercentage;
  if (geometry_.height) facts.fixedRatioY = !geometry_.height->isPercentage;
  facts.warnings = warnings();
  return facts;
}

// librsvg makes layers as large as the whole picture on the device, and makes them wrong when the picture is
// turned.
bool SvgEngine::needsOwnDocument(const AffineTransform& pixelsToDevice) const {
  if (!inspection_.hasLayers) return false;
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
                    inspection_.hasStyleSheet};
  RenderRequest upright = request;
  upright.pictureToDevice = AffineTransform();
  std::unique_ptr<SvgRenderer> drawing;
  return paintImage(upright, context_.limits, [&](cairo_t* context) -> Result<void> {
    if (!drawing) {
      auto made = SvgRenderer::create(withDeclaredEncoding(cutSvg(text_.utf8, part), "UTF-8"), hugeParser());
      if (!made) return made.error();
      drawing = std::move(*made);
    }
    return drawing->draw(context, QSizeF(request.pixelSize));
  });
}

bool SvgEngine::isDrawnInHalves(const RenderRequest& request) {
  if (!isLongAndPlain_) {
    const double height = geometry_.viewBox ? geometry_.viewBox->height() : pixels_.height();
    isLongAndPlain_ = isLongAndPlain(text_.utf8, height, context_.limits);
  }
  return canPaintHalves(request, context_.limits) && !inspection_.hasLayers && *isLongAndPlain_;
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
    if (!missingFonts_) missingFonts_ = missingFamilies(inspection_.fontLists);
    return paintHalves(request, context_.limits, painting(renderer_),
                       context_.processors > 1 ? painting(second_) : PaintPicture());
  }
  const Result<const SvgRenderer*> loaded = renderer();
  if (!loaded) return loaded.error();
  if (request.pictureToDevice.isInvertible() && needsOwnDocument(pixelsToDevice))
    return renderAsDocument(request, pixelsToDevice);
  return paintImage(request, context_.limits, painting(renderer_));
}

// The scale of the view box is all that is known of a filter's user units here.
SvgImageEffects SvgEngine::imageEffects() const {
  SvgImageEffects effects{inspection_.filters + inspection_.masks > 0, inspection_.morphologyRadius,
                          inspection_.stretchedText};
  if (const auto& box = geometry_.viewBox; box && !box->isEmpty())
    effects.userScale = std::min(pixels_.width() / box->width(), pixels_.height() / box->height());
  effects.morphologyRadius *= effects.userScale;
  effects.largestFont = inspection_.largestFont;
  return effects;
}

// Counted are the elements whose own attributes ask for an effect; what style sheets ask for is not seen
// here.
BytesReply SvgEngine::pdfReport() const {
  BytesReply report;
  report.warnings = drawingRemarks();
  report.regionsRasterised = inspection_.filters + inspection_.masks;
  if (report.regionsRasterised > 0) report.rasterisedDpi = vectors_.effectsDpi(pixels_, imageEffects());
  if (inspection_.filters > 0)
    report.warnings << QStringLiteral("what is drawn through a filter (elements: %1) is held as an image")
                           .arg(inspection_.filters);
  if (inspection_.masks > 0)
    report.warnings << QStringLiteral("masks (elements: %1) are held as images, what they mask is not")
                           .arg(inspection_.masks);
  return report;
}

Result<EngineBytes> SvgEngine::pdf(const PdfRequest& request) {
  if (const Result<void> may = start(request.page); !may) return may.error();
  if (!vectors_.toPdf)
    return Error{ErrorKind::Unsupported, QStringLiteral("this picture was opened to be drawn")};
  if (pdf_ && !request.attributes) return EngineBytes{*pdf_, pdfReport()};
  const Result<const SvgRenderer*> loaded = renderer();
  if (!loaded) return loaded.error();
  Result<QByteArray> made = vectors_.toPdf(**loaded, pixels_, imageEffects(), request.attributes);
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
  if (inspection_.filters + inspection_.masks > 0) found->images.clear();  // some of them are ours
  found->missingFonts = drawingRemarks();
  found->outsideReferences = inspection_.outsideReferences;
  found->filters = inspection_.filters;
  found->runsSomething = inspection_.hasScript || inspection_.hasAnimation;
  found->sizeWithoutUnit = !hasUnit(inspection_.rootAttributes.value(QStringLiteral("width"))) ||
                           !hasUnit(inspection_.rootAttributes.value(QStringLiteral("height")));
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
  if (request.pretty) return EngineBytes{encodeSvgText(prettySvg(text_.utf8), text_), {}};
  if (!request.rect && request.rotate == 0) return EngineBytes{source_, {}};
  const QRectF rect = request.rect.value_or(QRectF(QPointF(0, 0), points()));
  const double far = limits::maximumPoints;
  if (!(rect.width() > 0 && rect.height() > 0 && rect.width() <= far && rect.height() <= far &&
        std::abs(rect.x()) <= far && std::abs(rect.y()) <= far && std::isfinite(request.rotate)))
    return Error{ErrorKind::Protocol, QStringLiteral("the rectangle to cut out is empty or out of reach")};
  const SvgCut cut{points(), rect, turnedInItsBox(points(), request.rotate), inspection_.hasStyleSheet};
  return EngineBytes{encodeSvgText(cutSvg(text_.utf8, cut), text_), {}};
}

}  // namespace

Result<std::unique_ptr<DocumentEngine>> openSvgWith(const SvgVectors& vectors, const QByteArray& bytes,
                                                    EngineContext& context) {
  QByteArray plain = bytes;
  if (isGzip(bytes)) {
    Result<QByteArray> inflated = inflateGzip(bytes);
    if (!inflated) return inflated.error();
    plain = std::move(*inflated);
  }
  if (plain.size() > limits::maximumInflatedBytes)
    return Error{
        ErrorKind::Limit,
        QStringLiteral("the document is larger than %1 MiB").arg(limits::maximumInflatedBytes >> 20)};
  Result<SvgText> text = decodeSvgText(plain);
  if (!text) return text.error();
  Result<SvgInspection> inspection = inspectSvg(text->utf8);
  if (!inspection) return inspection.error();
  auto engine = std::make_unique<SvgEngine>(std::move(plain), std::move(*text), std::move(*inspection),
                                            vectors, context);
  if (const Result<void> measured = engine->measure(); !measured) return measured.error();
  return std::unique_ptr<DocumentEngine>(std::move(engine));
}

}  // namespace norvex::engine
