#include "worker/drawing/fine_image.h"

#include <algorithm>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

/// How many rows of the image are drawn at once; 0 where none can be.
int rowsOfABand(QSize image, int finer, double pixels) {
  return int(std::min(pixels / (double(image.width()) * finer * finer), double(image.height())));
}

int bands(QSize image, int rows) {
  return (image.height() + rows - 1) / rows;
}

/// The mean of `finer` by `finer` pixels; premultiplied colours may be averaged one by one.
Argb32 mean(const Bitmap& fine, int x, int y, int finer) {
  const quint32 count = quint32(finer * finer);
  quint32 even = 0, odd = 0;  // two sums of 16 bits each
  for (int row = 0; row < finer; ++row) {
    const Argb32* pixel = fine.row(y * finer + row) + x * finer;
    for (int i = 0; i < finer; ++i) {
      even += pixel[i] & 0x00FF00FF;
      odd += pixel[i] >> 8 & 0x00FF00FF;
    }
  }
  const auto rounded = [count](quint32 sum) { return (sum + count / 2) / count; };
  return rounded(odd >> 16) << 24 | rounded(even >> 16) << 16 | rounded(odd & 0xFFFF) << 8 |
         rounded(even & 0xFFFF);
}

void average(const Bitmap& fine, int finer, Bitmap& image, int top) {
  for (int y = 0; y < fine.height() / finer; ++y) {
    Argb32* row = image.row(top + y);
    for (int x = 0; x < image.width(); ++x) row[x] = mean(fine, x, y, finer);
  }
}

/// The band from row `top` on.
RenderRequest bandOf(const RenderRequest& request, int top, int rows, int finer) {
  RenderRequest band = request;
  band.pixelSize = QSize(request.pixelSize.width(), rows) * finer;
  band.pictureToDevice =
      request.pictureToDevice * AffineTransform(finer, 0, 0, finer, 0, -double(top) * finer);
  return band;
}

}  // namespace

Result<Bitmap> paintFine(const RenderRequest& request, const PictureLimits& limits, const PaintPicture& paint,
                         QDeadlineTimer until) {
  const Error tooLarge{ErrorKind::Limit,
                       QStringLiteral("the picture is too large to be drawn without seams")};
  const QSize size = request.pixelSize;
  const double pixels = std::min(limits::maximumFinePixels, limits.megapixels * 1e6);
  int finer = 4, rows = size.isEmpty() ? 0 : rowsOfABand(size, finer, pixels);
  if (rows == 0 || bands(size, rows) > limits::maximumFineBands) rows = rowsOfABand(size, finer = 2, pixels);
  if (rows == 0 || bands(size, rows) > limits::maximumFineBands) return tooLarge;
  Result<Bitmap> image = Bitmap::create(size);
  for (int top = 0; image && top < size.height(); top += rows) {
    const int count = std::min(rows, size.height() - top);
    const Result<Bitmap> fine = paintImage(bandOf(request, top, count, finer), limits, paint);
    if (!fine) return fine;
    if (until.hasExpired()) return tooLarge;  // and what was painted of the band is not whole
    average(*fine, finer, *image, top);
  }
  return image;
}

}  // namespace norvex::engine
