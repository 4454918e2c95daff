// From a document's bytes and type to its image representation.
#pragma once

#include <QByteArray>
#include <QFuture>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

#include "picture/image_rep.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// What an image representation is made from.
struct PictureSource {
  QByteArray bytes;
  QString typeIdentifier;  ///< decides which representation is tried
  QUrl fileURL;            ///< where the bytes are from; may be empty
  int page = 0;            ///< from 0; only PDF has more than one
};

struct LoadedPicture {
  std::shared_ptr<NSImageRep> imageRep;  ///< never null
  PictureSource source;
};

/// The engines that can show a type, in the order in which they are tried. Empty for types that are not
/// pictures. An Illustrator file is PostScript or, since that changed, PDF.
[[nodiscard]] QList<PictureKind> pictureKindsForType(const QString& typeIdentifier);

/// Makes the representation on the calling thread; blocks for the document's facts. The object lives in that
/// thread. Fails with the last kind's error, with Cancelled, and (Unsupported) for a type that is not a
/// picture.
[[nodiscard]] Result<LoadedPicture> loadPicture(PictureService& service, const PictureSource& source,
                                                const PictureLimits& limits = {},
                                                const CancelToken& cancel = {});

/// The same on a worker thread; the object then lives in the caller's thread. `service` must outlive the
/// future.
[[nodiscard]] QFuture<Result<LoadedPicture>> loadPictureLater(PictureService& service,
                                                              const PictureSource& source,
                                                              const PictureLimits& limits = {});

/// Reads the file first, on the worker thread too. `typeIdentifier` empty: it is found out from name and
/// bytes.
[[nodiscard]] QFuture<Result<LoadedPicture>> loadPictureFile(PictureService& service, const QUrl& fileURL,
                                                             const QString& typeIdentifier = {},
                                                             const PictureLimits& limits = {});

}  // namespace norvex
