#include "window/export/exported_picture.h"

#include <algorithm>

#include "base/localized_string.h"
#include "display/picture_geometry.h"
#include "encoders/encoded_picture.h"
#include "encoders/output_check.h"
#include "picture/bitmap_image.h"
#include "protocol/page_excerpts.h"

namespace norvex {
namespace {

constexpr double kPointsPerInch = 72;

/// Nothing where that is the whole picture as it stands, which a source may be handed on for.
std::optional<PictureRegion> regionOf(const PictureSnapshot& snapshot, ExportArea area) {
  if (holdsPages(area)) return std::nullopt;
  if (area == ExportArea::Page && snapshot.placement.rotate == 0) return std::nullopt;
  return regionOf(snapshot);
}

bool hasPages(const NSImageRep& rep) {
  const auto* pdf = dynamic_cast<const NSPDFImageRep*>(&rep);
  return pdf && pdf->pageCount() > 1;
}

/// Leaves the chosen pages of a PDF.
void keepPages(ExportedPicture& made, const PictureSnapshot& snapshot, const ExportChoice& choice,
               const CancelToken& cancel) {
  const QByteArray excerpt = encodePageExcerpts({{made.bytes, choice.firstPage - 1, choice.lastPage - 1}});
  const Result<PictureBytes> pages = snapshot.imageRep->process()->setPdfAttributes(excerpt, {}, cancel);
  made.bytes = pages ? pages->bytes : QByteArray();
  if (!pages) made.error = pages.error();
}

/// The first of the pages that are written; null where it is none.
std::shared_ptr<NSImageRep> shownOf(const PictureSnapshot& snapshot, const ExportChoice& choice) {
  if (choice.area != ExportArea::Pages) return snapshot.imageRep;
  const auto* pdf = dynamic_cast<const NSPDFImageRep*>(snapshot.imageRep.get());
  if (!pdf) return nullptr;
  const auto page = pdf->imageRepWithPage(choice.firstPage - 1);
  return page ? *page : nullptr;
}

/// Formats that the platform reads with what it always brings.
bool isReadHere(PictureFormat format) {
  return format == PictureFormat::Png || format == PictureFormat::Jpeg || format == PictureFormat::Gif;
}

QImage fitted(const QImage& image, int side) {
  return image.width() <= side && image.height() <= side
             ? image
             : image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

ExportedPicture exportedPicture(const PictureSnapshot& snapshot, const ExportChoice& choice,
                                const CancelToken& cancel) {
  EncoderSurroundings surroundings = snapshot.surroundings;
  surroundings.raster = {choice.dpi, choice.background};
  surroundings.quality = choice.quality;
  surroundings.color = choice.color;
  surroundings.keepText = choice.keepText;
  surroundings.region = regionOf(snapshot, choice.area);
  surroundings.onePage = !holdsPages(choice.area) && hasPages(*snapshot.imageRep);
  surroundings.subjectMayBeLeftOut = true;
  if (choice.area == ExportArea::Pages) surroundings.actions = SourceActions::LeaveOut;  // a part, as any
  PictureEncoder encoder(snapshot.imageRep, surroundings, cancel);
  ExportedPicture made;
  made.bytes = encodedPicture(encoder, choice.format);
  made.remarks = encoder.report().warnings;
  made.error = encoder.report().error;
  if (choice.area == ExportArea::Pages && !made.bytes.isEmpty()) keepPages(made, snapshot, choice, cancel);
  if (made.bytes.isEmpty()) {
    if (!made.error)
      made.error =
          Error{ErrorKind::Unsupported, localizedString("The picture cannot be written in this format")};
  } else if (const auto good = checkOutput(made.bytes); !good) {
    made.error = good.error();
    made.bytes.clear();
  }
  return made;
}

QImage previewOf(const ExportedPicture& exported, const PictureSnapshot& snapshot, const ExportChoice& choice,
                 int side, const CancelToken& cancel) {
  if (exported.bytes.isEmpty()) return {};
  if (isReadHere(choice.format)) {
    const QImage read = QImage::fromData(exported.bytes);
    if (!read.isNull()) return fitted(read, side);
  }
  const auto region = regionOf(snapshot, choice.area);
  const auto image = docRasterImage(shownOf(snapshot, choice), region);
  if (!image) return {};
  const double longest = std::max({image->size().width(), image->size().height(), 1e-3});
  const QColor ground = isRaster(choice.format) ? choice.background : QColor();
  const auto drawn = image->bitmap({side * kPointsPerInch / longest, ground}, cancel);
  return drawn ? toImage(*drawn) : QImage();
}

}  // namespace norvex
