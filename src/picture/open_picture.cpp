#include "picture/open_picture.h"

#include <utility>

#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/process/finished_pictures.h"
#include "picture/web_image_rep.h"
#include "types/document_kind.h"
#include "types/type_identification.h"

namespace norvex {
namespace {

/// Opens PostScript in processes that give a whole picture or none.
class FinishedPicturesService final : public ForwardingService {
 public:
  explicit FinishedPicturesService(PictureService& service) : ForwardingService(service) {}

  std::shared_ptr<PictureProcess> open(const QByteArray& bytes, PictureKind kind,
                                       const PictureLimits& limits) override {
    std::shared_ptr<PictureProcess> process = ForwardingService::open(bytes, kind, limits);
    if (kind != PictureKind::Eps) return process;
    return std::make_shared<FinishedPictures>(std::move(process));
  }
};

template <typename Rep>
Result<std::shared_ptr<NSImageRep>> asImageRep(Result<std::shared_ptr<Rep>> rep) {
  if (!rep) return rep.error();
  return std::shared_ptr<NSImageRep>(std::move(*rep));
}

Result<std::shared_ptr<NSImageRep>> makeRep(PictureService& service, PictureKind kind,
                                            const PictureSource& source, const PictureLimits& limits,
                                            const CancelToken& cancel) {
  switch (kind) {
    case PictureKind::Eps:
      return asImageRep(NSEPSImageRep::imageRepWithData(service, source.bytes, limits));
    case PictureKind::Pdf:
      return asImageRep(NSPDFImageRep::imageRepWithData(service, source.bytes, limits, source.page, cancel));
    case PictureKind::Svg:
      return asImageRep(
          ZyWebImageRep::imageRepWithData(service, source.bytes, source.fileURL, limits, cancel));
  }
  return Error{ErrorKind::Unsupported, QStringLiteral("there is no such kind of picture")};
}

}  // namespace

QList<PictureKind> pictureKindsForType(const QString& typeIdentifier) {
  switch (documentKind(typeIdentifier)) {
    case DocumentKind::Svg:
      return {PictureKind::Svg};
    case DocumentKind::Eps:
      return {PictureKind::Eps};
    case DocumentKind::Illustrator:
      return {PictureKind::Eps, PictureKind::Pdf};
    case DocumentKind::Pdf:
      return {PictureKind::Pdf};
    case DocumentKind::Other:
      break;
  }
  return {};
}

Result<PictureKind> pictureKindOf(const QByteArray& bytes, const QString& typeIdentifier) {
  const QList<PictureKind> kinds = pictureKindsForType(typeIdentifier);
  if (kinds.isEmpty())
    return Error{ErrorKind::Unsupported,
                 QStringLiteral("this is not an EPS, Illustrator, PDF or SVG picture")};
  const bool isPdf = identifyType(bytes, QStringLiteral("x.pdf")).conformsToType(UTTypePDF());
  return kinds.contains(PictureKind::Pdf) && isPdf ? PictureKind::Pdf : kinds.first();
}

Result<std::shared_ptr<NSImageRep>> openPicture(PictureService& service, const PictureSource& source,
                                                const PictureLimits& limits, const CancelToken& cancel) {
  FinishedPicturesService finishedAlone(service);
  PictureService& accepted = source.acceptPartial ? service : finishedAlone;
  Error error{ErrorKind::Unsupported, QStringLiteral("this type of document cannot be shown")};
  for (const PictureKind kind : pictureKindsForType(source.typeIdentifier)) {
    auto rep = makeRep(accepted, kind, source, limits, cancel);
    if (rep) return rep;
    error = rep.error();
  }
  return error;
}

}  // namespace norvex
