#include "cli/conversion.h"

#include <QPolygonF>
#include <QtMath>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "base/latin1_text.h"
#include "base/time_limit.h"
#include "cli/conversion_check.h"
#include "cli/files/input_file.h"
#include "display/picture_geometry.h"
#include "encoders/picture_encoder.h"
#include "encoders/raster_codecs.h"
#include "picture/pdf_image_rep.h"

namespace norvex {
namespace {

/// Points a side that readers of PDF take; PostScript and SVG are drawn by way of it.
constexpr double kLargestPage = 14400;

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

/// Pixels of the longer side of what is drawn.
double longestSide(const NSImageRep& imageRep, const ConversionOptions& options,
                   const std::optional<PictureRegion>& region) {
  const QSizeF size = region ? region->rect.size() : imageRep.size();
  constexpr double noise = 1e-4;  // of conversions between units
  return std::ceil(std::max(size.width(), size.height()) * options.dpi / 72 - noise);
}

std::optional<Error> tooLarge(const NSImageRep& imageRep, const ConversionOptions& options,
                              const std::optional<PictureRegion>& region) {
  const auto most = isRaster(options.format) ? largestSide(options.format) : std::nullopt;
  if (!most || longestSide(imageRep, options, region) <= *most) return std::nullopt;
  return Error{ErrorKind::Limit, QStringLiteral("%1 holds at most %2 pixels a side, and this would be %3")
                                     .arg(QString(latin1(rowOf(options.format).name)).toUpper())
                                     .arg(*most)
                                     .arg(longestSide(imageRep, options, region), 0, 'f', 0)};
}

std::optional<Error> objection(const NSImageRep& imageRep, const ConversionOptions& options,
                               const std::optional<PictureRegion>& region) {
  if (auto error = tooLarge(imageRep, options, region)) return error;
  const int pages = pageCount(imageRep);
  if (options.page.value_or(1) > pages) {
    return Error{ErrorKind::Unsupported,
                 QStringLiteral("there is no page %1, the document has %2").arg(*options.page).arg(pages)};
  }
  const QSizeF picture = region ? rotatedBoundingSize(imageRep.size(), region->rotate) : QSizeF();
  const double largest = std::max({kLargestPage, picture.width(), picture.height()});
  if (options.crop && std::max(options.crop->width(), options.crop->height()) > largest) {
    return Error{ErrorKind::Limit,
                 QStringLiteral("the rectangle of --crop may have %1 points a side; the picture is %2 by %3")
                     .arg(largest)
                     .arg(picture.width())
                     .arg(picture.height())};
  }
  if (options.crop && region && !showsPicture(imageRep, *region)) {
    return Error{
        ErrorKind::Unsupported,
        QStringLiteral("nothing of the picture lies in the rectangle of --crop; it is %1 by %2 points large")
            .arg(picture.width())
            .arg(picture.height())};
  }
  return std::nullopt;
}

Conversion failed(const Error& error) {
  Conversion conversion;
  conversion.report.error = error;
  return conversion;
}

/// Empty where the format holds all pages, one is chosen, or there is only one.
QStringList pagesLeftOut(const NSImageRep& imageRep, const ConversionOptions& options, bool isWhole) {
  const int pages = pageCount(imageRep);
  const bool holdsAll = options.format == PictureFormat::Pdf && isWhole;
  if (pages == 1 || options.page || holdsAll) return {};
  return {
      QStringLiteral("only page 1 of %1 is in the result (--page N chooses another one, --pages all makes "
                     "a file of each)")
          .arg(pages)};
}

/// `surroundings`: what is not of the options.
Conversion converted(const std::shared_ptr<NSImageRep>& imageRep, EncoderSurroundings surroundings,
                     const QByteArray& source, const ConversionOptions& options, const CancelToken& cancel) {
  const std::optional<PictureRegion> region = regionOf(*imageRep, options);
  if (const auto error = objection(*imageRep, options, region)) return failed(*error);

  surroundings.raster = {options.dpi, options.background};
  surroundings.quality = options.quality;
  surroundings.color = options.color;
  surroundings.actions = options.keepActions ? SourceActions::Keep : SourceActions::LeaveOut;
  surroundings.keepText = options.keepText;
  surroundings.region = region;
  surroundings.subjectMayBeLeftOut = true;
  // The only page is the whole file.
  surroundings.onePage = options.page.has_value() && pageCount(*imageRep) > 1;
  const bool isWhole = !surroundings.region && !surroundings.onePage;
  PictureEncoder encoder(imageRep, surroundings, cancel);
  Conversion conversion;
  conversion.bytes = encodedPicture(encoder, options.format);
  conversion.size = conversion.bytes.size();
  conversion.report = encoder.report();
  conversion.report.warnings =
      imageRep->warnings() + pagesLeftOut(*imageRep, options, isWhole) + conversion.report.warnings;
  conversion.report.warnings.removeDuplicates();
  if (conversion.bytes.isEmpty() && !conversion.report.error) {
    conversion.report.error =
        Error{ErrorKind::Unsupported,
              QStringLiteral("the picture cannot be written as %1").arg(latin1(rowOf(options.format).name))};
  }
  const bool vectorOfSameKind =
      (options.format == PictureFormat::Pdf && imageRep->pictureKind() == PictureKind::Pdf) ||
      (options.format == PictureFormat::Eps && imageRep->pictureKind() == PictureKind::Eps);
  conversion.metadataLost =
      metadataLost(encoder.header(), imageRep->pictureKind(), options.format, vectorOfSameKind && isWhole);
  checkConversion(conversion, encoder, source, isWhole);
  return conversion;
}

/// The rep itself where it shows the page already.
Result<std::shared_ptr<NSImageRep>> shownPage(const std::shared_ptr<NSImageRep>& imageRep, int page) {
  const auto* pdf = dynamic_cast<const NSPDFImageRep*>(imageRep.get());
  if (!pdf || pdf->page() == page - 1) return imageRep;
  auto shown = pdf->imageRepWithPage(page - 1);
  if (!shown) return shown.error();
  return std::shared_ptr<NSImageRep>(*shown);
}

}  // namespace

Conversion convertPicture(PictureService& service, PictureSource source, const ConversionOptions& options,
                          const CancelToken& cancel) {
  if (const auto kind = pictureKindOf(source.bytes, source.typeIdentifier); !kind)
    return failed(kind.error());
  source.page = options.page.value_or(1) - 1;
  const auto read = readAsOptioned(service, source, options.reader, options.limits, cancel);
  if (!read) return failed(read.error());
  // While the picture process starts there is time for what is needed later.
  EncoderSurroundings surroundings = usualSurroundings(service);
  surroundings.isLastUse = true;
  const auto opened = openPicture(service, source, options.limits, cancel);
  if (!opened) return failed(opened.error());
  Conversion conversion = converted(*opened, surroundings, source.bytes, options, cancel);
  conversion.report.warnings = *read + conversion.report.warnings;
  return conversion;
}

Result<void> convertPages(PictureService& service, PictureSource source, const ConversionOptions& options,
                          const PageList& pages, const PageTaker& taker, const CancelToken& cancel) {
  if (const auto kind = pictureKindOf(source.bytes, source.typeIdentifier); !kind) return kind.error();
  source.page = pages.first() - 1;
  const auto read = readAsOptioned(service, source, options.reader, options.limits, cancel);
  if (!read) return read.error();
  EncoderSurroundings surroundings = usualSurroundings(service);
  const TimeLimit opening(std::chrono::seconds(options.limits.seconds), cancel);
  const auto opened = openPicture(service, source, options.limits, opening.token());
  if (!opened) return opening.explained(opened.error());
  const Result<QList<int>> wanted = pages.of(pageCount(**opened));
  if (!wanted) return wanted.error();
  if (const auto error = taker.begin(*wanted)) return *error;
  for (const int page : *wanted) {
    const TimeLimit time(std::chrono::seconds(options.limits.seconds), cancel);
    ConversionOptions ofPage = options;
    ofPage.page = page;
    surroundings.isLastUse = page == wanted->last();
    const auto shown = shownPage(*opened, page);
    Conversion conversion =
        shown ? converted(*shown, surroundings, source.bytes, ofPage, time.token()) : failed(shown.error());
    conversion.report.warnings = *read + conversion.report.warnings;
    if (conversion.report.error) conversion.report.error = time.explained(*conversion.report.error);
    conversion.page = page;
    if (!taker.take(std::move(conversion))) break;
  }
  return {};
}

}  // namespace norvex
