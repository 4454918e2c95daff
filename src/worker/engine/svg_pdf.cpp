#include "worker/engine/svg_pdf.h"

#include <cairo-pdf.h>

#ifndef POINTERHOLDER_TRANSITION
#define POINTERHOLDER_TRANSITION 4  // qpdf asks which smart pointers its caller means: the standard ones alone
#endif
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>

#include "worker/engine/cairo_surface.h"
#include "worker/engine/svg_length.h"

namespace norvex::engine {
namespace {

constexpr double kEffectsPerInch = 300;   // resolution of filters and masks
constexpr double kEffectPixels = 16.0e6;  // and how large one of their images may be at most

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
  static_cast<QByteArray*>(bytes)->append(reinterpret_cast<const char*>(data), qsizetype(length));
  return CAIRO_STATUS_SUCCESS;
}

/// librsvg makes the images of filters and masks one pixel a unit of the target. A recording in finer units, replayed
/// smaller, keeps all vectors and gives those images the resolution that they need.
Result<void> drawFinely(cairo_t* page, const SvgRenderer& renderer, const QSizeF& pixels) {
  const double scale = std::min(kEffectsPerInch / 96.0, std::sqrt(kEffectPixels / (pixels.width() * pixels.height())));
  const cairo_rectangle_t extents{0, 0, pixels.width() * scale, pixels.height() * scale};
  const CairoSurface recording(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
  {
    const CairoContext context(cairo_create(recording.get()));
    cairo_scale(context.get(), scale, scale);
    if (Result<void> drawn = renderer.draw(context.get(), pixels); !drawn) return drawn;
  }
  cairo_scale(page, 1 / scale, 1 / scale);
  cairo_set_source_surface(page, recording.get(), 0, 0);
  cairo_paint(page);
  return {};
}

Result<QByteArray> withoutInformation(const QByteArray& pdf) {
  try {
    QPDF document;
    document.processMemoryFile("picture", pdf.constData(), size_t(pdf.size()));
    document.getTrailer().removeKey("/Info");
    QPDFWriter writer(document);
    writer.setOutputMemory();
    writer.setDeterministicID(true);
    writer.write();
    const std::shared_ptr<Buffer> written = writer.getBufferSharedPointer();
    return QByteArray(reinterpret_cast<const char*>(written->getBuffer()), qsizetype(written->getSize()));
  } catch (const std::exception&) {
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture cannot be written as PDF")};
  }
}

}  // namespace

Result<QByteArray> svgToPdf(const SvgRenderer& renderer, const QSizeF& pixels, bool hasImageEffects) {
  QByteArray bytes;
  const CairoSurface surface(cairo_pdf_surface_create_for_stream(
      append, &bytes, pixels.width() * pointsPerPixel, pixels.height() * pointsPerPixel));
  {
    const CairoContext page(cairo_create(surface.get()));
    cairo_scale(page.get(), pointsPerPixel, pointsPerPixel);
    const Result<void> drawn =
        hasImageEffects ? drawFinely(page.get(), renderer, pixels) : renderer.draw(page.get(), pixels);
    if (!drawn) return drawn.error();
    cairo_show_page(page.get());
  }
  cairo_surface_finish(surface.get());
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
    return Error{ErrorKind::Unsupported, QStringLiteral("the picture cannot be written as PDF")};
  return withoutInformation(bytes);
}

}  // namespace norvex::engine
