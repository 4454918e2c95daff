#include "encoders/picture_encoder.h"

#include <QLoggingCategory>

#include "display/picture_geometry.h"
#include "display/view_compose.h"
#include "encoders/color_conversion.h"
#include "encoders/dos_eps_writer.h"
#include "encoders/eps_header_rewriter.h"
#include "encoders/epsi_writer.h"
#include "encoders/monoclome_bitmap.h"
#include "encoders/pdf_attributes.h"
#include "metadata/eps_lines.h"
#include "metadata/eps_utf8_comments.h"
#include "metadata/full_date.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/picture_header.h"
#include "picture/web_image_rep.h"
#include "protocol/every_page.h"

namespace norvex {
namespace {

Q_LOGGING_CATEGORY(encoderLog, "norvex.encoders")

/// The facts that an SVG has elements for.
PdfAttributes svgAttributes(const HeaderDictionary& facts) {
  PdfAttributes attributes;
  for (const auto& [key, name] :
       {std::pair(header::Title, "Title"), std::pair(header::Description, "Subject"),
        std::pair(header::For, "Author"), std::pair(header::Creator, "Creator"),
        std::pair(header::CreationDate, "CreationDate"), std::pair(header::Copyright, "Copyright")})
    if (const QString text = facts.value(key).toString(); !text.isEmpty())
      attributes.texts.insert(QString::fromLatin1(name), text);
  return attributes;
}

bool isEps(const NSImageRep* imageRep) {
  return dynamic_cast<const NSEPSImageRep*>(imageRep) != nullptr;
}

/// The previews of EPS files are of one pixel a point, whatever a raster file is to have.
RasterSettings previewSettings(const RasterSettings& settings) {
  return {72, settings.background};
}

}  // namespace

PictureEncoder::PictureEncoder(std::shared_ptr<NSImageRep> imageRep, EncoderSurroundings surroundings,
                               CancelToken cancel)
    : imageRep_(std::move(imageRep)), surroundings_(std::move(surroundings)), cancel_(std::move(cancel)) {}

QByteArray PictureEncoder::fail(const Error& error) {
  report_.error = error;
  return {};
}

QByteArray PictureEncoder::take(Result<PictureBytes> result) {
  if (!result) return fail(result.error());
  report_.regionsRasterised += result->report.regionsRasterised;
  report_.rasterisedAreaShare = std::max(report_.rasterisedAreaShare, result->report.rasterisedAreaShare);
  const double dpi = result->report.rasterisedDpi;
  if (dpi > 0) report_.rasterisedDpi = report_.rasterisedDpi > 0 ? std::min(report_.rasterisedDpi, dpi) : dpi;
  addWarnings(result->report.warnings);
  return result->bytes;
}

/// Nothing is left to ask of the picture.
void PictureEncoder::retire() const {
  if (surroundings_.isLastUse) imageRep_->process()->retire();
}

/// The same may be told of the drawing and of the preview.
void PictureEncoder::addWarnings(const QStringList& warnings) {
  for (const QString& warning : warnings)
    if (!report_.warnings.contains(warning)) report_.warnings << warning;
}

QByteArray PictureEncoder::composed(VectorFormat format, const std::optional<PdfAttributes>& attributes) {
  const PictureRegion region = surroundings_.region.value_or(wholePicture(*imageRep_));
  const QPointF centre(imageRep_->size().width() / 2, imageRep_->size().height() / 2);
  const VectorWishes wishes{attributes, surroundings_.actions == SourceActions::Keep, surroundings_.keepText};
  return take(composeView(imageRep_.get(), {centre, region.rotate}, format, region.rect, cancel_, wishes));
}

// ---- EPS --------------------------------------------------------------------------------------------------

QByteArray PictureEncoder::postScriptData() {
  if (!imageRep_) return {};
  if (const auto* eps = dynamic_cast<const NSEPSImageRep*>(imageRep_.get()); eps && handsOnSource()) {
    return eps->EPSRepresentation();
  }
  const QByteArray generated = composed(VectorFormat::Eps);
  return generated.isEmpty() ? QByteArray() : addEPSHeader(generated);
}

QByteArray PictureEncoder::addEPSHeader(const QByteArray& postScript) {
  // A cut EPS is a new file with the old one's facts.
  const bool own = isEps(imageRep_.get()) && !surroundings_.region;
  const HeaderDictionary facts = own ? HeaderDictionary() : header();
  EpsHeaderDefaults defaults;
  defaults.creator = QStringLiteral("%1 by Tembrolix.").arg(QStringLiteral("MainWindowController"));
  defaults.creationDate = fullDate(surroundings_.now, surroundings_.locale);
  defaults.userFullName = surroundings_.userFullName;
  return rewriteEpsHeader(postScript, facts, defaults);
}

QByteArray PictureEncoder::programOfEps() {
  const auto* eps = dynamic_cast<const NSEPSImageRep*>(imageRep_.get());
  const qint64 number = header().value(header::EncodingNumber).toLongLong();
  return epsWithUtf8Comments(eps->EPSRepresentation(), number);
}

const HeaderDictionary& PictureEncoder::header() {
  if (!header_) header_ = pictureHeader(imageRep_.get(), {}, surroundings_.locale);
  return *header_;
}

/// The preview is drawn all the same.
void PictureEncoder::noteDepth(int bitsPerPixel) const {
  if (NSBestDepth(8, bitsPerPixel) != surroundings_.defaultDepthLimit)
    qCInfo(encoderLog, "setCacheDepthMatchesImageDepth YES.");
}

QByteArray PictureEncoder::postScriptDataWithPreview() {
  if (!imageRep_) return {};
  noteDepth(32);
  const auto bitmap = bitmapOf(imageRep_, previewSettings(surroundings_.raster));
  if (!bitmap) return {};
  const QByteArray tiff = encodeRaster(PictureFormat::Tiff, *bitmap, {72, {}});
  if (tiff.isEmpty())
    return fail({ErrorKind::Unsupported, QStringLiteral("the preview could not be written as TIFF")});
  const bool own = isEps(imageRep_.get()) && handsOnSource();
  const QByteArray postScript = own ? programOfEps() : postScriptData();
  if (cancel_.cancelled()) return {};
  if (postScript.isEmpty()) {
    report_.shortcoming =
        own ? QStringLiteral("the source has no PostScript, so the file holds a preview and nothing else")
            : QStringLiteral("the picture gives no PostScript, so the file holds a preview and nothing else");
    addWarnings({report_.shortcoming});
  }
  return dosEpsFile(tiff, postScript);
}

QByteArray PictureEncoder::epsiData() {
  if (!imageRep_) return {};
  const bool own = isEps(imageRep_.get()) && handsOnSource();
  const QByteArray program = own ? programOfEps() : postScriptData();
  if (program.isEmpty()) {
    return own ? fail({ErrorKind::Unsupported, QStringLiteral("the source has no PostScript")}) : program;
  }
  if (lineBeginningWith(program, "%%BeginPreview:") >= 0) return own ? postScriptData() : program;
  noteDepth(24);
  const auto bitmap = bitmapOf(imageRep_, previewSettings(surroundings_.raster));
  if (!bitmap) return {};
  const auto grey = monoclomeBitmap(*bitmap);
  if (!grey) return {};
  const QByteArray out = insertEpsiPreview(program, *grey);
  if (out.isNull()) {
    return fail(
        {ErrorKind::Unsupported, QStringLiteral("the source has no comments that a preview could follow")});
  }
  return out;
}

// ---- PDF --------------------------------------------------------------------------------------------------

QByteArray PictureEncoder::pdfData() {
  if (!imageRep_) return {};
  if (const auto* pdf = dynamic_cast<const NSPDFImageRep*>(imageRep_.get()); pdf && handsOnSource()) {
    if (surroundings_.actions != SourceActions::LeaveOut) return pdf->PDFRepresentation();
    const QByteArray made = take(pdf->process()->pdf({everyPage, std::nullopt, false}, cancel_));
    retire();
    return made;
  }
  const bool wholeSvg = imageRep_->pictureKind() == PictureKind::Svg && handsOnSource();
  const std::optional<PdfAttributes> attributes = attributesFrom(header());
  if (!attributes) return {};
  const QByteArray made = wholeSvg ? take(imageRep_->process()->pdf({imageRep_->page(), attributes}, cancel_))
                                   : composed(VectorFormat::Pdf, attributes);
  retire();
  return made;
}

QByteArray PictureEncoder::addPDFHeader(const QByteArray& pdf) {
  if (pdf.isEmpty() || !imageRep_) return {};
  const bool own = imageRep_->pictureKind() == PictureKind::Pdf && handsOnSource();
  const std::optional<PdfAttributes> attributes = attributesFrom(own ? HeaderDictionary() : header());
  if (!attributes) return {};
  return take(imageRep_->process()->setPdfAttributes(pdf, *attributes, cancel_));
}

std::optional<PdfAttributes> PictureEncoder::attributesFrom(const HeaderDictionary& facts) {
  const PdfAttributeDefaults defaults{surroundings_.applicationName, surroundings_.applicationVersion,
                                      surroundings_.userFullName, surroundings_.now};
  auto attributes = pdfAttributes(facts, defaults);
  if (!attributes && surroundings_.subjectMayBeLeftOut) {
    HeaderDictionary undescribed = facts;
    undescribed.remove(header::Description);
    attributes = pdfAttributes(undescribed, defaults);
    addWarnings(
        {QStringLiteral("the PDF has no subject, because the document has a description but no title")});
  }
  if (!attributes)
    (void)fail({ErrorKind::Unsupported,
                QStringLiteral("the document has a description but no title to store with it")});
  return attributes;
}

// ---- SVG and raster ---------------------------------------------------------------------------------------

QByteArray PictureEncoder::svgData() {
  if (!imageRep_) return {};
  const auto* svg = dynamic_cast<const ZyWebImageRep*>(imageRep_.get());
  if (!svg) return composed(VectorFormat::Svg, svgAttributes(header()));
  if (!surroundings_.region) return take(svg->process()->svg({}, cancel_));
  const QRectF& rect = surroundings_.region->rect;
  const QSizeF turned = rotatedBoundingSize(svg->size(), normalizedAngle(surroundings_.region->rotate));
  return svgInside({QRectF(rect.x() + turned.width() * 0.5,
                           turned.height() * 0.5 - (rect.y() + rect.height()), rect.width(), rect.height()),
                    -surroundings_.region->rotate});
}

QByteArray PictureEncoder::svgInside(const SvgCut& cut) {
  const auto* svg = dynamic_cast<const ZyWebImageRep*>(imageRep_.get());
  if (!svg) return {};
  // A full turn is none.
  const double angle = normalizedAngle(cut.angle);
  const SvgRequest request{.pretty = false, .rect = cut.rect, .rotate = angle < twoPi ? angle : 0};
  return take(svg->process()->svg(request, cancel_));
}

std::optional<NSBitmapImageRep> PictureEncoder::bitmapOf(const std::shared_ptr<NSImageRep>& imageRep,
                                                         const RasterSettings& settings) {
  const bool own = imageRep == imageRep_;
  const auto image = docRasterImage(imageRep, own ? surroundings_.region : std::nullopt);
  if (!image) return std::nullopt;
  Result<NSBitmapImageRep> bitmap = image->bitmap(settings, cancel_);
  if (!bitmap) report_.error = bitmap.error();
  addWarnings(imageRep->process()->drawingRemarks());
  return bitmap ? std::optional(std::move(*bitmap)) : std::nullopt;
}

std::optional<NSBitmapImageRep> PictureEncoder::rasterOf(const std::shared_ptr<NSImageRep>& imageRep) {
  auto bitmap = bitmapOf(imageRep, surroundings_.raster);
  if (imageRep && imageRep == imageRep_) retire();
  return bitmap;
}

RasterProperties PictureEncoder::rasterProperties() const {
  return {surroundings_.raster.dpi, surroundings_.iccProfile, surroundings_.quality};
}

QByteArray PictureEncoder::rasterData(PictureFormat format, const std::shared_ptr<NSImageRep>& imageRep) {
  const auto bitmap = rasterOf(imageRep);
  if (!bitmap) return {};
  if (surroundings_.color == OutputColor::Rgb) return encodeRaster(format, *bitmap, rasterProperties());
  const auto colored = inColor(surroundings_.color, *bitmap, format != PictureFormat::Jpeg);
  if (!colored) return fail(colored.error());
  RasterProperties properties = rasterProperties();
  properties.iccProfile = colored->iccProfile;
  return encodeRaster(format, colored->raster, properties);
}

QByteArray PictureEncoder::tiffData(const std::shared_ptr<NSImageRep>& imageRep) {
  return rasterData(PictureFormat::Tiff, imageRep);
}

QByteArray PictureEncoder::pngData(const std::shared_ptr<NSImageRep>& imageRep) {
  return rasterData(PictureFormat::Png, imageRep);
}

QByteArray PictureEncoder::jpgData(const std::shared_ptr<NSImageRep>& imageRep) {
  return rasterData(PictureFormat::Jpeg, imageRep);
}

QByteArray PictureEncoder::gifData(const std::shared_ptr<NSImageRep>& imageRep) {
  return rasterData(PictureFormat::Gif, imageRep);
}

}  // namespace norvex
