// From a document's bytes and type to its image representation: the one way, for windows and for the command
// line.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <memory>

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/image_rep.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// The sources of an image representation.
struct PictureSource {
  QByteArray bytes;
  QString typeIdentifier;  ///< decides which representation is tried
  QUrl fileURL;            ///< where the bytes are from; may be empty
  int page = 0;            ///< from 0; only PDF has more than one
  /// What a PostScript program had drawn when it stopped is a picture, too; PictureFacts::stoppedBy of the
  /// representation's process tells why from its first drawing on. Otherwise such drawings fail.
  bool acceptPartial = false;
};

/// The engines that can show a type, in the order in which they are tried. Empty for types that are not
/// pictures. An Illustrator file is PostScript or, since that changed, PDF.
[[nodiscard]] QList<PictureKind> pictureKindsForType(const QString& typeIdentifier);

/// The engine that `bytes` of that type need, as far as they tell it by themselves: for an Illustrator file
/// PDF where they begin so, PostScript otherwise. Fails (Unsupported) for a type that is not a picture.
/// Thread-safe.
[[nodiscard]] Result<PictureKind> pictureKindOf(const QByteArray& bytes, const QString& typeIdentifier);

/// Makes the representation on the calling thread, in which the object then lives; blocks for the document's
/// facts. Never null. Fails with the last kind's error, with Cancelled, and (Unsupported) for a type that is
/// not a picture.
[[nodiscard]] Result<std::shared_ptr<NSImageRep>> openPicture(PictureService& service,
                                                              const PictureSource& source,
                                                              const PictureLimits& limits = {},
                                                              const CancelToken& cancel = {});

}  // namespace norvex
