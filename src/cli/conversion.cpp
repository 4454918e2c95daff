#include "cli/conversion.h"

#include <QPolygonF>
#include <QtMath>

#include "base/latin1_text.h"
#include "cli/conversion_check.h"
#include "cli/input_file.h"
#include "display/picture_geometry.h"
#include "encoders/picture_encoder.h"
#include "picture/pdf_image_rep.h"

namespace norvex {
namespace {

/// The rectangle that is asked for, in view coordinates; nothing for the whole picture as it is.
std::optional<PictureRegion> regionOf(const NSImageRep& imageRep, const ConversionOptions& options) {
  const double rotate = normalizedAngle(qDegreesToRadians(options.rotateDegrees));
  if (rotate == 0 && !options.crop) return std::nullopt;
  const QSizeF size = rotatedBoundingSize(imageRep.size(), rotate);
  const QPointF lowerLeft(-size.width() / 2, -size.height() / 2);
  if (!options.crop) return PictureRegion{QRectF(lowerLeft, size), rotate};
  return PictureRegion{options.crop->translated(lowerLeft), rotate};
}

int pageCount(const NSImageRep& imageRep) {
  const auto* pdf = dynamic_cast<const NSPDFImageRep*>(&imageRep);
  return pdf ? pdf->pageCount() : 1;
}

/// True if some of the picture lies in the rectangle.
bool showsPicture(const NSImageRep& imageRep, const PictureRegion& region) {
  const QPolygonF outline(QRectF(QPointF(0, 0), imageRep.size()));
  const QPolygonF turned = pictureToView(imageRep.size(), region.rotate).map(outline);
  return !turned.intersected(QPolygonF(region.rect)).boundingRect().isEmpty();
}

std::optional<Error> objection(const NSImageRep& imageRep, const ConversionOptions& options,
                               const std::optional<PictureRegion>& region) {
  const int pages = pageCount(imageRep);
  if (options.page.value_or(1) > pages) {
    return Error{ErrorKind::Unsupported,
                 QStringLiteral("there is no page %1, the document has %2").arg(*options.page).arg(pages)};
  }
  if (options.crop && region && !showsPicture(imageRep, *region)) {
    const QSizeF size = rotatedBoundingSize(imageRep.size(), region->rotate);
    return Error{
        ErrorKind::Unsupported,
        QStringLiteral("nothing of the picture lies in the rectangle of --crop; it is %1 by %2 points large")
            .arg(size.width())
            .arg(size.height())};
  }
  return std::nullopt;
}

Conversion failed(const Error& error) {
  Conversion conversion;
  conversion.report.error = error;
  return conversion;
}

}  // namespace

Conversion convertPicture(PictureService& service, PictureSource source, const ConversionOptions& options,
                          const CancelToken& cancel) {
  if (const auto kind = pictureKindOf(source.bytes, source.typeIdentifier); !kind)
    return failed(kind.error());
  source.page = options.page.value_or(1) - 1;
  // While the picture process starts there is time for what is needed later.
  EncoderSurroundings surroundings = usualSurroundings(service);
  const auto opened = openPicture(service, source, options.limits, cancel);
  if (!opened) return failed(opened.error());
  const std::shared_ptr<NSImageRep>& imageRep = *opened;
  const std::optional<PictureRegion> region = regionOf(*imageRep, options);
  if (const auto error = objection(*imageRep, options, region)) return failed(*error);

  surroundings.raster = {options.dpi, options.background};
  surroundings.quality = options.quality;
  surroundings.actions = options.keepActions ? SourceActions::Keep : SourceActions::LeaveOut;
  surroundings.region = region;
  surroundings.isLastUse = true;
  surroundings.subjectMayBeLeftOut = true;
  // The only page is the whole file.
  surroundings.onePage = options.page.has_value() && pageCount(*imageRep) > 1;
  PictureEncoder encoder(imageRep, surroundings, cancel);
  Conversion conversion;
  conversion.bytes = encodedPicture(encoder, options.format);
  conversion.size = conversion.bytes.size();
  conversion.report = encoder.report();
  conversion.report.warnings = imageRep->warnings() + conversion.report.warnings;
  if (conversion.bytes.isEmpty() && !conversion.report.error) {
    conversion.report.error =
        Error{ErrorKind::Unsupported,
              QStringLiteral("the picture cannot be written as %1").arg(latin1(rowOf(options.format).name))};
  }
  const bool vectorOfSameKind =
      (options.format == PictureFormat::Pdf && imageRep->pictureKind() == PictureKind::Pdf) ||
      (options.format == PictureFormat::Eps && imageRep->pictureKind() == PictureKind::Eps);
  conversion.metadataLost = metadataLost(encoder.header(), imageRep->pictureKind(), options.format,
                                         vectorOfSameKind && !surroundings.region && !surroundings.onePage);
  checkConversion(conversion, encoder, source.bytes, !surroundings.region && !surroundings.onePage);
  return conversion;
}

}  // namespace norvex
