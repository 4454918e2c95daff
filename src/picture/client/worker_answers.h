// From a hostile answer to a value: every size is compared with what was asked and with the memory that came.
#pragma once

#include <QImage>

#include "picture/client/worker_connection.h"
#include "picture/process/picture_process.h"
#include "protocol/bitmap_image_rep.h"

namespace norvex {

// Each gives the answer's own Error when it is one, and Protocol when it is another answer than the request
// has or when its numbers, its descriptor and the limits do not agree.

[[nodiscard]] Result<PictureFacts> factsFrom(WorkerAnswer answer);
/// The image's pixels are the shared memory itself, read-only: it detaches when it is changed. `remarks`
/// takes what the answer tells about the drawing.
[[nodiscard]] Result<QImage> imageFrom(WorkerAnswer answer, const QSize& pixelSize, QStringList& remarks);
[[nodiscard]] Result<PictureBytes> bytesFrom(WorkerAnswer answer, const PictureLimits& limits);
[[nodiscard]] Result<NSBitmapImageRep> bitmapFrom(WorkerAnswer answer, const PictureLimits& limits);

}  // namespace norvex
