// The preview of a binary EPS file, of either kind.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/bitmap_image_rep.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// A Windows metafile as decodeMetafile(), anything else as decodeTiff().
[[nodiscard]] Result<NSBitmapImageRep> decodePreview(const QByteArray& preview, const PictureLimits& limits);

}  // namespace norvex::engine
