// The bitmaps within Windows metafiles: a header, a palette, rows of pixels from the bottom.
#pragma once

#include <QByteArrayView>

#include "base/result.h"
#include "worker/drawing/bitmap.h"

namespace norvex::engine {

/// Of 1, 4, 8, 24 or 32 bits a pixel and not compressed, or of 4 or 8 as runs; opaque, rows top to bottom.
/// Fails with Unsupported for others, NotParsable for what is none, Limit for want of memory.
[[nodiscard]] Result<Bitmap> deviceBitmap(QByteArrayView bytes);

}  // namespace norvex::engine
