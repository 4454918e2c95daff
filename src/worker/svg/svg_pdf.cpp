#include "worker/svg/svg_pdf.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <algorithm>
#include <cmath>
#include <exception>
#include <functional>

#include "protocol/limits.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/stroke_measure.h"
#include "worker/pdf/page_form.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/pdf/pdf_writing.h"
#include "worker/svg/inspection/svg_length.h"

namespace norvex::engine {
namespace {

constexpr double kUnitsPerInch = 300;
constexpr double kLargestLetter = 60'000;
constexpr double kStrokeTolerance = 0.1;  // of a point: cairo's own, for a page drawn in points
constexpr double kMorphologyReach = 10;   // librsvg cuts feMorphology's radius to so many units of the target

/// librsvg places glyphs, and makes the images of filters and masks, in whole units of the target. The page
/// is drawn larger for their sake; fitPage() makes it small again.
double drawingScale(const QSizeF& pixels, const SvgImageEffects& effects) {
  const double fine = kUnitsPerInch / 72;
  if (!effects.any) return fine;
  const double area = pixels.width() * pixels.height() * pointsPerPixel * pointsPerPixel;
  const double reach = effects.morphologyRadius * pointsPerPixel;
  const double withinReach = reach > 0 ? std::max(1.0, kMorphologyReach / reach) : fine;
  return std::min({fine, withinReach, std::sqrt(limits::maximumEffectPixels / area)});
}

/// For text that stays text librsvg loads letters at their size times the scale of the target once more.
/// FreeType refuses some 65,000 pixels, and whoever has asked for them gets nothing of that font any more.
bool isTooLarge(const SvgImageEffects& effects, double units) {
  const double scale = effects.userScale * units;
  return effects.largestFont * scale * scale > kLargestLetter;
}

/// The page as a form. cairo's contents are one stream: it becomes the form as it is, without being unpacked
/// and packed again.
QPDFObjectHandle formOf(QPDFPageObjectHelper& page) {
  QPDFObjectHandle contents = page.getObjectHandle().getKey("/Contents");
  if (!contents.isStream()) return page.getFormXObjectForPage();
  QPDFObjectHandle form = contents.getDict();
  form.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  form.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
  form.replaceKey("/BBox", page.getMediaBox());
  form.replaceKey("/Resources", page.getAttribute("/Resources", false));
  if (QPDFObjectHandle group = page.getAttribute("/Group", false); group.isDictionary())
    form.replaceKey("/Group", group);
  return contents;
}

/// The drawing becomes a form on a page of the right size: unlike a scaled page, a form takes its patterns
/// with it. cairo's document information, which holds the time of day, is dropped.
void fitPage(QPDF& document, double width, double height, double scale) {
  QPDFPageObjectHelper page(document.getAllPages().at(0));
  const QByteArray small = QByteArray::number(1 / scale, 'f', 9);
  keepOnlyPage(document, pageOfForms(document, width, height, {{"/Drawing", formOf(page)}},
                                     "q " + small + " 0 0 " + small + " 0 0 cm /Drawing Do Q\n"));
}

Result<QByteArray> rewritten(const QByteArray& pdf, const QSizeF& pixels, double scale,
                             const std::optional<PdfAttributes>& attributes) {
  try {
    QPDF document;
    document.setSuppressWarnings(true);
    document.processMemoryFile("picture", pdf.constData(), size_t(pdf.size()));
    fitPage(document, pixels.width() * pointsPerPixel, pixels.height() * pointsPerPixel, scale);
    if (attributes) setPdfAttributes(document, *attributes);
    return writePdf(document);
  } catch (const std::exception&) {
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture cannot be written as PDF")};
  }
}

/// Onto a surface of which librsvg does not know that it ends in a PDF: it draws outlines there. As text,
/// glyphs would stand as far apart as if nothing were stretched.
Result<void> drawOutlined(cairo_t* page, const QSizeF& size,
                          const std::function<Result<void>(cairo_t*)>& draw) {
  const cairo_rectangle_t extents{0, 0, size.width(), size.height()};
  const CairoSurface recording(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
  const CairoContext context(cairo_create(recording.get()));
  if (const Result<void> drawn = draw(context.get()); !drawn) return drawn;
  cairo_set_source_surface(page, recording.get(), 0, 0);
  cairo_paint(page);
  return {};
}

}  // namespace

double svgEffectsDpi(const QSizeF& pixels, const SvgImageEffects& effects) {
  return drawingScale(pixels, effects) * 72;
}

Result<QByteArray> svgToPdf(const SvgRenderer& renderer, const QSizeF& pixels, const SvgImageEffects& effects,
                            const std::optional<PdfAttributes>& attributes) {
  const double scale = drawingScale(pixels, effects);
  const double units = pointsPerPixel * scale;
  const auto draw = [&](cairo_t* target) {
    cairo_scale(target, units, units);
    askForCoarseStrokes(target, kStrokeTolerance * scale);
    return renderer.draw(target, pixels);
  };
  const bool outlined = effects.stretchedText || isTooLarge(effects, units);
  const Result<QByteArray> bytes = paintPdf(pixels * units, 1, [&](cairo_t* page, int) {
    return outlined ? drawOutlined(page, pixels * units, draw) : draw(page);
  });
  if (!bytes) return bytes.error();
  return rewritten(*bytes, pixels, scale, attributes);
}

}  // namespace norvex::engine
