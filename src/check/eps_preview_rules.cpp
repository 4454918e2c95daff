#include "check/eps_preview_rules.h"

#include <algorithm>
#include <cmath>

namespace norvex {
namespace {

/// Mean difference of the samples, 0 … 1, below which pictures are the same whatever their details.
constexpr double kAlike = 0.12;
/// Correlation above which they show the same thing in other colours.
constexpr double kRelated = 0.3;

double meanOf(QByteArrayView samples) {
  double sum = 0;
  for (const char c : samples) sum += uchar(c);
  return sum / double(std::max<qsizetype>(1, samples.size()));
}

double correlation(QByteArrayView one, QByteArrayView other) {
  const double a = meanOf(one), b = meanOf(other);
  double product = 0, first = 0, second = 0;
  for (qsizetype i = 0; i < one.size(); ++i) {
    const double x = uchar(one[i]) - a, y = uchar(other[i]) - b;
    product += x * y;
    first += x * x;
    second += y * y;
  }
  return first > 0 && second > 0 ? product / std::sqrt(first * second) : 0;
}

}  // namespace

Findings epsPreviewFindings(const Result<std::optional<NSBitmapImageRep>>& preview,
                            const std::optional<QRectF>& box) {
  if (!preview) return {finding(rule("eps.preview.unreadable"), preview.error().message)};
  if (!*preview) return {finding(rule("eps.preview.missing"), QStringLiteral("there is no preview"))};
  if (!box) return {};
  // Sides are rounded to whole pixels, some writers add one.
  const double width = (*preview)->pixelsWide, height = (*preview)->pixelsHigh;
  const double ratio = box->width() / box->height();
  if ((width + 2) / std::max(1.0, height - 2) * 1.05 >= ratio &&
      std::max(1.0, width - 2) / (height + 2) / 1.05 <= ratio)
    return {};
  return {finding(rule("eps.preview.size"),
                  QStringLiteral("the preview is %1 by %2 pixels large, the bounding box %3 by %4 points")
                      .arg(width)
                      .arg(height)
                      .arg(box->width())
                      .arg(box->height()))};
}

Findings epsPreviewDifference(QByteArrayView preview, QByteArrayView drawn) {
  if (preview.size() != drawn.size() || preview.isEmpty()) return {};
  double difference = 0;
  for (qsizetype i = 0; i < preview.size(); ++i)
    difference += std::abs(int(uchar(preview[i])) - int(uchar(drawn[i])));
  difference /= 255.0 * double(preview.size());
  if (difference <= kAlike || correlation(preview, drawn) >= kRelated) return {};
  return {finding(
      rule("eps.preview.differs"),
      QStringLiteral("the preview shows another picture than the program draws (mean difference %1 %)")
          .arg(qRound(difference * 100)))};
}

}  // namespace norvex
