#include "worker/metafile/metafile_preview.h"

#include <algorithm>
#include <cmath>

#include "worker/drawing/cairo_surface.h"
#include "worker/metafile/metafile_drawing.h"
#include "worker/metafile/metafile_functions.h"

namespace norvex::engine {
namespace {

constexpr int kLongestSide = 2048;     // a preview need not be larger, whatever its units are
constexpr double kPixelsPerPoint = 2;  // where the size is told in inches

struct Size {
  QSize pixels;
  QSizeF points;  ///< empty: not told
};

QSize fitted(QSizeF size) {
  const double shrink = std::min(1.0, kLongestSide / std::max(size.width(), size.height()));
  return {std::max(1, qRound(size.width() * shrink)), std::max(1, qRound(size.height() * shrink))};
}

// A frame tells it, else the first extent that is set.
Result<Size> sizeOf(const Metafile& metafile) {
  if (!metafile.frame.isEmpty() && metafile.unitsPerInch > 0) {
    const QSizeF points = QSizeF(metafile.frame.size()) * 72 / metafile.unitsPerInch;
    return Size{fitted(points * kPixelsPerPoint), points};
  }
  for (const MetafileRecord& record : metafile.records) {
    if (record.function != SetWindowExt) continue;
    MetafileWords words(record.parameters);
    const int height = std::abs(words.signedWord()), width = std::abs(words.signedWord());
    if (width > 0 && height > 0) return Size{fitted(QSizeF(width, height)), {}};
  }
  return Error{ErrorKind::NotParsable, QStringLiteral("the embedded Windows metafile tells no size")};
}

NSBitmapImageRep opaqueRgb(const Bitmap& bitmap) {
  NSBitmapImageRep image;
  image.pixelsWide = bitmap.width(), image.pixelsHigh = bitmap.height();
  image.samplesPerPixel = 3, image.bitsPerPixel = 24;
  image.bytesPerRow = bitmap.width() * 3;
  image.colorSpaceName = QString::fromLatin1(NSCalibratedRGBColorSpace);
  image.data.resize(qsizetype(image.bytesPerRow) * image.pixelsHigh);
  char* target = image.data.data();
  for (int y = 0; y < bitmap.height(); ++y)
    for (int x = 0; x < bitmap.width(); ++x) {
      const Argb32 pixel = bitmap.row(y)[x];
      *target++ = char(red(pixel)), *target++ = char(green(pixel)), *target++ = char(blue(pixel));
    }
  return image;
}

}  // namespace

Result<NSBitmapImageRep> decodeMetafile(const QByteArray& bytes, const PictureLimits& limits) {
  const Result<Metafile> metafile = readMetafile(bytes);
  if (!metafile) return metafile.error();
  const Result<Size> size = sizeOf(*metafile);
  if (!size) return size.error();
  RenderRequest request;
  request.pixelSize = size->pixels;
  const Result<Bitmap> bitmap = paintImage(request, limits, [&](cairo_t* context) -> Result<void> {
    cairo_set_source_rgb(context, 1, 1, 1);
    cairo_paint(context);
    MetafileDrawing drawing(context, *metafile, size->pixels);
    for (const MetafileRecord& record : metafile->records) drawing.carryOut(record);
    return {};
  });
  if (!bitmap) return bitmap.error();
  NSBitmapImageRep image = opaqueRgb(*bitmap);
  image.pointsWide = std::max(0.0, size->points.width());
  image.pointsHigh = std::max(0.0, size->points.height());
  return image;
}

}  // namespace norvex::engine
