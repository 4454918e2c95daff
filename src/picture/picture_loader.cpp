#include "picture/picture_loader.h"

#include <QThread>
#include <QtConcurrent>

#include "base/waiting_threads.h"
#include "picture/document_file.h"
#include "picture/eps_image_rep.h"
#include "picture/pdf_image_rep.h"
#include "picture/web_image_rep.h"
#include "types/type_identification.h"
#include "types/uniform_type.h"

namespace norvex {
namespace {

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

Result<LoadedPicture> loadFor(QThread* home, PictureService& service, const PictureSource& source,
                              const PictureLimits& limits) {
  Result<LoadedPicture> loaded = loadPicture(service, source, limits);
  if (loaded) loaded->imageRep->moveToThread(home);
  return loaded;
}

}  // namespace

QList<PictureKind> pictureKindsForType(const QString& typeIdentifier) {
  const auto type = UTType::typeWithIdentifier(typeIdentifier);
  if (!type) return {};
  if (type->conformsToType(UTTypeSVG())) return {PictureKind::Svg};
  if (type->conformsToType(NorvexEPSType) || type->conformsToType(NorvexEPSIType)) return {PictureKind::Eps};
  if (type->conformsToType(NorvexIllustratorType)) return {PictureKind::Eps, PictureKind::Pdf};
  if (type->conformsToType(UTTypePDF())) return {PictureKind::Pdf};
  return {};
}

Result<LoadedPicture> loadPicture(PictureService& service, const PictureSource& source,
                                  const PictureLimits& limits, const CancelToken& cancel) {
  Error error{ErrorKind::Unsupported, QStringLiteral("this type of document cannot be shown")};
  for (const PictureKind kind : pictureKindsForType(source.typeIdentifier)) {
    auto rep = makeRep(service, kind, source, limits, cancel);
    if (rep) return LoadedPicture{*rep, source};
    error = rep.error();
  }
  return error;
}

QFuture<Result<LoadedPicture>> loadPictureLater(PictureService& service, const PictureSource& source,
                                                const PictureLimits& limits) {
  return QtConcurrent::run(&waitingThreads(), [home = QThread::currentThread(), &service, source, limits] {
    return loadFor(home, service, source, limits);
  });
}

QFuture<Result<LoadedPicture>> loadPictureFile(PictureService& service, const QUrl& fileURL,
                                               const QString& typeIdentifier, const PictureLimits& limits) {
  return QtConcurrent::run(&waitingThreads(),
                           [home = QThread::currentThread(), &service, fileURL, typeIdentifier,
                            limits]() -> Result<LoadedPicture> {
                             const Result<QByteArray> bytes = readDocumentFile(fileURL.toLocalFile());
                             if (!bytes) return bytes.error();
                             PictureSource source{*bytes, typeIdentifier, fileURL, 0};
                             if (typeIdentifier.isEmpty())
                               source.typeIdentifier = identifyType(*bytes, fileURL.fileName()).identifier();
                             return loadFor(home, service, source, limits);
                           });
}

}  // namespace norvex
