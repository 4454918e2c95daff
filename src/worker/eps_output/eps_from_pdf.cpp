#include "worker/eps_output/eps_from_pdf.h"

// A PDF page as EPS: Poppler writes the vectors, the parts that need transparency are cut out and drawn as
// images. docs/eps-generator.md tells why.
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include "protocol/limits.h"
#include "worker/eps_output/colour_space_mending.h"
#include "worker/eps_output/eps_writing.h"
#include "worker/eps_output/harmless_fonts.h"
#include "worker/eps_output/image_streams.h"
#include "worker/eps_output/poppler_postscript.h"
#include "worker/eps_output/postscript_device.h"
#include "worker/eps_output/transparent_regions.h"
#include "worker/pdf/compose_pdf.h"
#include "worker/pdf/pdf_file.h"
#include "worker/pdf/pdf_render.h"
#include "worker/pdf/pdf_transparency.h"
#include "worker/pdf/pdf_writing.h"
#include "worker/pdf/whole_page.h"

namespace norvex::engine {
namespace {

constexpr double kImageDpi = 300;
constexpr double kSamePixel = 1e-4;  // what is lost in counting

struct Opaque {
  QSizeF size;
  bool usedTransparency = false;
  QByteArray pdf;  ///< without transparency, its page grown to whole points
  QStringList warnings;
};

QSize wholePoints(QSizeF size) {
  return QSize(int(std::ceil(size.width() - 1e-6)), int(std::ceil(size.height() - 1e-6)));
}

using OpenedPdf = std::unique_ptr<PdfFile>;

// The page with its corner at the origin, upright and in points, in `pdf` as well: most pages are, the others
// are placed once more.
Result<OpenedPdf> upright(QByteArray& pdf) {
  Result<OpenedPdf> file = PdfFile::open(pdf);
  if (!file) return file.error();
  return guarded([&]() -> Result<OpenedPdf> {
    const PageGeometry geometry = (*file)->geometry(0);
    if (geometry.rotation == 0 && geometry.userUnit == 1 && geometry.box.topLeft().isNull())
      return std::move(*file);
    Result<QByteArray> placed = composePdf(pdf, wholePage(0, geometry.shownSize(), VectorFormat::Eps));
    if (!placed) return placed.error();
    pdf = std::move(*placed);
    return PdfFile::open(pdf);
  });
}

Result<Opaque> withoutTransparency(PdfFile& file) {
  return guarded([&]() -> Result<Opaque> {
    QPDF& qpdf = file.qpdf();
    Opaque opaque;
    opaque.size = file.geometry(0).shownSize();
    QPDFObjectHandle page = file.page(0);
    page.removeKey("/CropBox");
    page.replaceKey("/MediaBox",
                    boxAtOrigin(wholePoints(opaque.size).width(), wholePoints(opaque.size).height()));
    keepOnlyPage(qpdf, page);
    opaque.usedTransparency = usesTransparency(qpdf);
    removeTransparency(qpdf);
    opaque.warnings = makeFontsHarmless(qpdf);
    mendColourSpaces(qpdf);
    prepareImages(qpdf);
    opaque.pdf = writePdfToDraw(qpdf);
    return opaque;
  });
}

// Pixels a point: what the limit on pixels allows for all of them.
double imageScale(const QList<QRectF>& regions, const PictureLimits& limits) {
  double area = 0;
  for (const QRectF& region : regions) area += region.width() * region.height();
  return std::min(kImageDpi / 72, std::sqrt(limits.megapixels * 1e6 / 4 / std::max(1.0, area)));
}

// A part of the page with its transparency: a whole number of pixels from its upper-left corner.
Result<EpsImage> imageOf(PdfRenderer& renderer, const QRectF& region, QSizeF pageSize, double scale,
                         const PictureLimits& limits) {
  RenderRequest request;
  request.purpose = RenderPurpose::Export;
  request.pixelSize = QSize(std::max(1, int(std::ceil(region.width() * scale - kSamePixel))),
                            std::max(1, int(std::ceil(region.height() * scale - kSamePixel))));
  const QSizeF size = QSizeF(request.pixelSize) / scale;
  const QRectF rect(QPointF(region.left(), region.bottom() - size.height()), size);
  request.pictureToDevice = AffineTransform(scale, 0, 0, -scale, -rect.left() * scale, rect.bottom() * scale);
  Result<Bitmap> image = renderer.render(request, pageSize, limits);
  if (!image) return image.error();
  return EpsImage{rect, std::move(*image)};
}

// The pixels of `whole` that `region` touches.
Result<EpsImage> cutOut(const EpsImage& whole, const QRectF& region, double scale) {
  const QRectF there((region.left() - whole.rect.left()) * scale,
                     (whole.rect.bottom() - region.bottom()) * scale, region.width() * scale,
                     region.height() * scale);
  const double s = kSamePixel;
  const QRect pixels = there.adjusted(s, s, -s, -s).toAlignedRect() & whole.image.rect();
  const QRectF rect(whole.rect.left() + pixels.left() / scale,
                    whole.rect.bottom() - (pixels.top() + pixels.height()) / scale, pixels.width() / scale,
                    pixels.height() / scale);
  Result<Bitmap> image = whole.image.copy(pixels);
  if (!image) return image.error();
  return EpsImage{rect, std::move(*image)};
}

// Every drawing reads the page and its images anew: as long as not too much lies between the regions, one
// does for all.
bool drawnTogether(const QList<QRectF>& regions, const QRectF& around, double scale,
                   const PictureLimits& limits) {
  const double pixels = around.width() * around.height() * scale * scale;
  return regions.size() > 1 && pixels <= std::min(limits::maximumPixelsTogether, limits.megapixels * 1e6 / 4);
}

Result<QList<EpsImage>> imagesOf(const QByteArray& pdf, const QList<QRectF>& regions, QSizeF pageSize,
                                 const EngineContext& context) {
  const double scale = imageScale(regions, context.limits);
  PdfRenderer renderer(pdf);
  QRectF around;
  for (const QRectF& region : regions) around |= region;
  std::optional<EpsImage> together;
  if (drawnTogether(regions, around, scale, context.limits)) {
    Result<EpsImage> image = imageOf(renderer, around, pageSize, scale, context.limits);
    if (!image) return image.error();
    together = std::move(*image);
  }
  QList<EpsImage> images;
  for (const QRectF& region : regions) {
    if (context.cancel.cancelled())
      return Error{ErrorKind::Cancelled, QStringLiteral("the work was cancelled")};
    Result<EpsImage> image = together ? cutOut(*together, region, scale)
                                      : imageOf(renderer, region, pageSize, scale, context.limits);
    if (!image) return image.error();
    images << std::move(*image);
  }
  return images;
}

}  // namespace

Result<EngineBytes> epsFromPdf(const QByteArray& source, EngineContext& context) {
  QByteArray pdf = source;
  const Result<OpenedPdf> file = upright(pdf);
  if (!file) return file.error();
  const Result<Opaque> opaque = withoutTransparency(**file);
  if (!opaque) return opaque.error();
  keepPopplerSettings();
  QList<EpsImage> images;
  double dpi = 0;
  if (opaque->usedTransparency) {
    const auto regions =
        transparentRegions(pdf, opaque->size, opaque->pdf, QSizeF(wholePoints(opaque->size)), context.limits);
    if (!regions) return regions.error();
    auto made = imagesOf(pdf, *regions, opaque->size, context);
    if (!made) return made.error();
    images = std::move(*made);
    if (!images.isEmpty()) dpi = imageScale(*regions, context.limits) * 72;
  }
  const Result<PagePostScript> page = postScriptOfPage(opaque->pdf, wholePoints(opaque->size));
  if (!page) return page.error();
  EngineBytes result{writeEps(opaque->size, *page, images), {}};
  result.report.warnings = opaque->warnings;
  if (page->leftOutPrograms)
    result.report.warnings << QStringLiteral("PostScript programs that the document holds were left out");
  result.report.regionsRasterised = int(images.size());
  result.report.rasterisedDpi = dpi;
  double area = 0;
  for (const EpsImage& image : std::as_const(images)) area += image.rect.width() * image.rect.height();
  result.report.rasterisedAreaShare = std::min(1.0, area / (opaque->size.width() * opaque->size.height()));
  return result;
}

}  // namespace norvex::engine
