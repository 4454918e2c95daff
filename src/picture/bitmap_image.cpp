#include "picture/bitmap_image.h"

namespace norvex {
namespace {

uchar sample(const NSBitmapImageRep& rep, const uchar* row, int index) {
  if (rep.bitsPerSample == 8) return row[index];
  const int bit = index * rep.bitsPerSample;  // 1, 2 or 4 bits: never across a byte
  const int mask = (1 << rep.bitsPerSample) - 1;
  const int value = (row[bit / 8] >> (8 - rep.bitsPerSample - bit % 8)) & mask;
  return uchar(value * 255 / mask);
}

QRgb pixel(const NSBitmapImageRep& rep, const uchar* row, int x) {
  const int s = rep.samplesPerPixel;
  const auto at = [&](int i) { return int(sample(rep, row, x * s + i)); };
  const int alpha = rep.hasAlpha ? at(s - 1) : 255;
  const int colours = s - (rep.hasAlpha ? 1 : 0);
  if (rep.colorSpaceName == QLatin1String(NSDeviceCMYKColorSpace) && colours >= 4) {
    const int k = 255 - at(3);
    const auto ink = [&](int i) { return (255 - at(i)) * k / 255 * alpha / 255; };
    return qRgba(ink(0), ink(1), ink(2), alpha);
  }
  if (colours >= 3) return qRgba(at(0), at(1), at(2), alpha);
  return qRgba(at(0), at(0), at(0), alpha);
}

}  // namespace

QImage toImage(const NSBitmapImageRep& rep) {
  const int depth = rep.bitsPerSample;
  const bool depthKnown = depth == 1 || depth == 2 || depth == 4 || depth == 8;
  if (!rep.isConsistent() || rep.isPlanar || !depthKnown) return {};
  QImage image(rep.pixelsWide, rep.pixelsHigh, QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return {};
  for (int y = 0; y < rep.pixelsHigh; ++y) {
    const auto* row = reinterpret_cast<const uchar*>(rep.data.constData()) + qsizetype(rep.bytesPerRow) * y;
    auto* out = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < rep.pixelsWide; ++x) out[x] = pixel(rep, row, x);
  }
  return image;
}

NSBitmapImageRep bitmapFromImage(const QImage& image) {
  NSBitmapImageRep rep;
  if (image.isNull()) return rep;
  rep.hasAlpha = image.hasAlphaChannel();
  const QImage source =
      image.convertToFormat(rep.hasAlpha ? QImage::Format_RGBA8888_Premultiplied : QImage::Format_RGB888);
  rep.pixelsWide = source.width();
  rep.pixelsHigh = source.height();
  rep.samplesPerPixel = rep.hasAlpha ? 4 : 3;
  rep.bitsPerPixel = rep.samplesPerPixel * 8;
  rep.bytesPerRow = rep.pixelsWide * rep.samplesPerPixel;
  rep.colorSpaceName = QLatin1String(NSCalibratedRGBColorSpace);
  rep.data.reserve(rep.bytesPerPlane());
  for (int y = 0; y < rep.pixelsHigh; ++y)
    rep.data.append(reinterpret_cast<const char*>(source.constScanLine(y)), rep.bytesPerRow);
  return rep;
}

}  // namespace norvex
