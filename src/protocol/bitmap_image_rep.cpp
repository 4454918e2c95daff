#include "protocol/bitmap_image_rep.h"

namespace norvex {

qsizetype NSBitmapImageRep::bytesPerPlane() const {
  return qsizetype(bytesPerRow) * pixelsHigh;
}

bool NSBitmapImageRep::isConsistent() const {
  if (pixelsWide <= 0 || pixelsHigh <= 0) return false;
  if (bitsPerSample < 1 || bitsPerSample > 32 || samplesPerPixel < 1 || samplesPerPixel > 64) return false;
  const qint64 samplesInRow = qint64(pixelsWide) * (isPlanar ? 1 : samplesPerPixel);
  if (bytesPerRow < (samplesInRow * bitsPerSample + 7) / 8) return false;
  return data.size() >= bytesPerPlane() * (isPlanar ? samplesPerPixel : 1);
}

}  // namespace norvex
