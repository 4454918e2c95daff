#include "encoders/png_rows.h"

#include <libdeflate.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

/// Of 12: 4 leaves a twentieth more of a drawing, 8 takes three times as long for a hundredth.
constexpr int kLevel = 5;
constexpr int kSampleLevel = 1;

/// One part in so many of a picture is packed both ways, in bands of so many rows.
constexpr int kSampleShare = 8;
constexpr int kSampleRows = 8;

enum Filter : char { kNone, kSub, kUp, kAverage, kPaeth, kFilters };

struct CompressorEnd {
  void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
};
using Compressor = std::unique_ptr<libdeflate_compressor, CompressorEnd>;

QByteArray packed(const QByteArray& rows, int level) {
  const Compressor compressor(libdeflate_alloc_compressor(level));
  if (!compressor) return {};
  const auto size = size_t(rows.size());
  QByteArray out(qsizetype(libdeflate_zlib_compress_bound(compressor.get(), size)), Qt::Uninitialized);
  const size_t written =
      libdeflate_zlib_compress(compressor.get(), rows.constData(), size, out.data(), size_t(out.size()));
  out.truncate(qsizetype(written));
  return out;
}

/// Grey that is not multiplied by its opacity.
void unpremultiplyGreyRow(const uchar* from, uchar* to, int pixels) {
  for (int x = 0; x < pixels; ++x, from += 2, to += 2) {
    to[0] = unpremultiplied(from[0], from[1]);
    to[1] = from[1];
  }
}

/// Rows of one length, each behind its filter's number.
class Rows {
 public:
  Rows(QByteArray& bytes, int rowBytes, int pixelBytes)
      : bytes_(bytes),
        rowBytes_(rowBytes),
        pixelBytes_(pixelBytes),
        row_(size_t(pixelBytes + rowBytes)),
        above_(size_t(pixelBytes + rowBytes)) {
    for (auto& filtered : filtered_) filtered.resize(size_t(rowBytes));
  }

  /// The row behind its filter's number.
  uchar* samples(int y) {
    return reinterpret_cast<uchar*>(bytes_.data()) + qsizetype(y) * (rowBytes_ + 1) + 1;
  }

  /// The unfiltered rows [from, to) get filters, of which each row takes the one that leaves the smallest sum
  /// of differences (section 12.7). From below, as a filter looks at the row above as it was.
  void filter(int from, int to) {
    for (int y = to - 1; y >= from; --y) {
      std::memcpy(row_.data() + pixelBytes_, samples(y), size_t(rowBytes_));
      if (y > 0)
        std::memcpy(above_.data() + pixelBytes_, samples(y - 1), size_t(rowBytes_));
      else
        std::fill(above_.begin(), above_.end(), uchar(0));
      const Filter best = smallest();
      samples(y)[-1] = best;
      std::memcpy(samples(y), filtered_[best].data(), size_t(rowBytes_));
    }
  }

 private:
  /// Fills in the row as `filter` leaves it, and returns the sum of its bytes taken as signed.
  template <typename Predict>
  quint64 sumWith(Filter filter, Predict predict) {
    const uchar* row = row_.data() + pixelBytes_;
    const uchar* left = row_.data();
    const uchar* above = above_.data() + pixelBytes_;
    const uchar* aboveLeft = above_.data();
    uchar* out = filtered_[filter].data();
    quint32 sum = 0;
    for (int i = 0; i < rowBytes_; ++i) {
      out[i] = uchar(row[i] - predict(left[i], above[i], aboveLeft[i]));
      sum += quint32(std::abs(int(static_cast<signed char>(out[i]))));
    }
    return sum;
  }

  Filter smallest() {
    const std::array<quint64, kFilters> sums = {
        sumWith(kNone, [](int, int, int) { return 0; }),
        sumWith(kSub, [](int left, int, int) { return left; }),
        sumWith(kUp, [](int, int above, int) { return above; }),
        sumWith(kAverage, [](int left, int above, int) { return (left + above) / 2; }),
        sumWith(kPaeth, [](int left, int above, int aboveLeft) {
          const int toLeft = std::abs(above - aboveLeft);
          const int toAbove = std::abs(left - aboveLeft);
          const int toAboveLeft = std::abs(left + above - 2 * aboveLeft);
          const int nearest = toAbove <= toAboveLeft ? above : aboveLeft;
          return toLeft <= toAbove && toLeft <= toAboveLeft ? left : nearest;
        })};
    return Filter(std::min_element(sums.begin(), sums.end()) - sums.begin());
  }

  QByteArray& bytes_;
  int rowBytes_, pixelBytes_;
  std::vector<uchar> row_, above_;  ///< behind a clear pixel: what is left of the first one
  std::array<std::vector<uchar>, kFilters> filtered_;
};

/// The bands of the picture that stand for all of it, as they are in `rows`.
QByteArray sampleOf(const QByteArray& rows, qsizetype stride, int height) {
  QByteArray sample;
  for (int y = 0; y < height; y += kSampleRows * kSampleShare)
    sample += rows.mid(y * stride, kSampleRows * stride);
  return sample;
}

bool filtersPay(const QByteArray& rows, int rowBytes, int pixelBytes, int height) {
  const qsizetype stride = rowBytes + 1;
  QByteArray sample = sampleOf(rows, stride, height);
  const auto plain = packed(sample, kSampleLevel).size();
  Rows(sample, rowBytes, pixelBytes).filter(0, int(sample.size() / stride));
  return packed(sample, kSampleLevel).size() < plain;
}

QByteArray plainRows(const NSBitmapImageRep& raster, int rowBytes) {
  QByteArray rows((qsizetype(rowBytes) + 1) * raster.pixelsHigh, Qt::Uninitialized);
  auto* to = reinterpret_cast<uchar*>(rows.data());
  const auto* from = reinterpret_cast<const uchar*>(raster.data.constData());
  for (int y = 0; y < raster.pixelsHigh; ++y, from += raster.bytesPerRow, to += rowBytes) {
    *to++ = kNone;
    if (raster.hasAlpha)
      (raster.samplesPerPixel == 2 ? unpremultiplyGreyRow : unpremultiplyRow)(from, to, raster.pixelsWide);
    else
      std::memcpy(to, from, size_t(rowBytes));
  }
  return rows;
}

}  // namespace

QByteArray packedPngRows(const NSBitmapImageRep& raster) {
  const int pixelBytes = raster.samplesPerPixel, rowBytes = raster.pixelsWide * pixelBytes;
  QByteArray rows = plainRows(raster, rowBytes);
  if (filtersPay(rows, rowBytes, pixelBytes, raster.pixelsHigh))
    Rows(rows, rowBytes, pixelBytes).filter(0, raster.pixelsHigh);
  return packed(rows, kLevel);
}

}  // namespace norvex
