// A Bitmap as a QImage and back, for tests that look at pixels.
#pragma once

#include <QImage>

#include <cstring>

#include "worker/drawing/bitmap.h"

namespace norvex::kit {

inline QImage imageOf(const engine::Bitmap& bitmap) {
  QImage image(bitmap.size(), QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < bitmap.height(); ++y)
    std::memcpy(image.scanLine(y), bitmap.row(y), size_t(bitmap.bytesPerRow()));
  return image;
}

inline Result<QImage> imageOf(const Result<engine::Bitmap>& bitmap) {
  return bitmap ? Result<QImage>(imageOf(*bitmap)) : Result<QImage>(bitmap.error());
}

/// REQUIRES an image in QImage::Format_ARGB32_Premultiplied.
inline engine::Bitmap bitmapOf(const QImage& image) {
  engine::Bitmap bitmap = *engine::Bitmap::create(image.size());
  for (int y = 0; y < bitmap.height(); ++y)
    std::memcpy(bitmap.row(y), image.constScanLine(y), size_t(bitmap.bytesPerRow()));
  return bitmap;
}

}  // namespace norvex::kit
