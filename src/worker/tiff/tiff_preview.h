// TIFF previews of binary EPS files.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "protocol/bitmap_image_rep.h"
#include "protocol/worker_protocol.h"

namespace norvex::engine {

/// The first image of a TIFF file, samples uncompressed and interleaved, rows without padding.
Result<NSBitmapImageRep> decodeTiff(const QByteArray& tiff, const PictureLimits& limits);

}  // namespace norvex::engine
