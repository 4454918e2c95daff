// Windows metafile previews of binary EPS files.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/bitmap_image_rep.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// A metafile, placeable or not, drawn on white: RGB without opacity, a pixel for each unit that it declares
/// as its extent, two a point where its frame tells its size, and less where that is too many. Fails with
/// NotParsable when it is none or tells no size, with Limit as other pictures.
[[nodiscard]] Result<NSBitmapImageRep> decodeMetafile(const QByteArray& metafile,
                                                      const PictureLimits& limits);

}  // namespace norvex::engine
