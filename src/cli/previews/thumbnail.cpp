#include "cli/previews/thumbnail.h"

#include <QPainter>

#include <algorithm>
#include <chrono>

#include "base/time_limit.h"
#include "picture/bitmap_image.h"
#include "picture/embedded_preview.h"

namespace norvex {
namespace {

PictureLimits thumbnailLimits() {
  PictureLimits few;
  few.seconds = thumbnailSeconds;
  return few;
}

QImage onPaper(const QImage& image) {
  QImage sheet(image.size(), QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter(&sheet).drawImage(0, 0, image);
  return sheet;
}

QImage fitted(const QImage& image, int side) {
  if (image.width() <= side && image.height() <= side) return image;
  const QSize size = image.size().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
  return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Null where there is none that can be shown: the picture is drawn then.
QImage previewImage(PictureService& service, const QByteArray& bytes, int side, const CancelToken& cancel) {
  const Result<std::optional<NSBitmapImageRep>> preview = embeddedPreview(service, bytes, cancel);
  if (!preview || !*preview) return {};
  const QImage image = toImage(**preview);
  return image.isNull() ? image : onPaper(fitted(image, side));
}

Result<Thumbnail> drawnThumbnail(PictureService& service, const PictureSource& source, int side,
                                 const CancelToken& cancel) {
  const auto opened = openPicture(service, source, thumbnailLimits(), cancel);
  if (!opened) return opened.error();
  const NSImageRep& rep = **opened;
  const QSizeF size = rep.size();
  const double longer = std::max(size.width(), size.height());
  if (!(longer > 0)) return Error{ErrorKind::Unsupported, QStringLiteral("the picture has no size")};
  const Result<QImage> image = rep.rasterImage(side / longer, RenderPurpose::Preview, cancel);
  if (!image) return image.error();
  return Thumbnail{rep.pictureKind() == PictureKind::Svg ? *image : onPaper(*image), rep.warnings()};
}

}  // namespace

Result<Thumbnail> thumbnailOf(PictureService& service, const PictureSource& source, int side,
                              const CancelToken& cancel) {
  const Result<PictureKind> kind = pictureKindOf(source.bytes, source.typeIdentifier);
  if (!kind) return kind.error();
  const TimeLimit time(std::chrono::seconds(thumbnailSeconds), cancel);
  if (*kind == PictureKind::Eps) {
    const QImage preview = previewImage(service, source.bytes, side, time.token());
    if (!preview.isNull()) return Thumbnail{preview, {}};
  }
  Result<Thumbnail> drawn = drawnThumbnail(service, source, side, time.token());
  if (!drawn) return time.explained(drawn.error());
  return drawn;
}

}  // namespace norvex
