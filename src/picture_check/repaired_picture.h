// An EPS file mended.
#pragma once

#include <QByteArray>
#include <QStringList>

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/process/picture_process.h"

namespace norvex {

/// The fate of a file's preview.
enum class PreviewUse { Keep, Drop, Rebuild };

struct RepairedPicture {
  QByteArray bytes;
  QStringList changes;  ///< one plain sentence each; none: the file was fine
  QStringList
      remaining;  ///< what the check still finds that repair could not mend: errors, one sentence each
};

/// Draws the picture to find its box, puts the file's parts in order and checks the result as it would stand
/// on disk. `fileName` alone says that a program is one which has neither a first line nor a box. Fails
/// (Unsupported) for what is no EPS file, with NotParsable where the program does not draw or the result
/// would have a structure with errors, and as PictureProcess. Blocks.
[[nodiscard]] Result<RepairedPicture> repairedPicture(PictureService& service, const QByteArray& file,
                                                      const QString& fileName, PreviewUse preview,
                                                      const PictureLimits& limits,
                                                      const CancelToken& cancel = {});

}  // namespace norvex
