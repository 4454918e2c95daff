#include "display/selection_report.h"

#include <array>
#include <charconv>
#include <cmath>

namespace norvex {
namespace {

/// As printf writes it in the C locale; to_chars is defined to agree with it.
QString number(double value, std::chars_format format, int precision) {
  std::array<char, 400> text;  // the largest double has 309 digits before the point
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, format, precision).ptr;
  return QString::fromLatin1(text.data(), end - text.data());
}

QString general(double value) {
  return number(value, std::chars_format::general, 6);
}

QString nineWide(double value) {
  return number(value, std::chars_format::fixed, 2).rightJustified(9);
}

}  // namespace

QString shortPair(double first, double second) {
  return general(first) + u'\t' + general(second);
}

QString widePair(double first, double second) {
  return nineWide(first) + u'\t' + nineWide(second);
}

SelectionReport selectionReport(const QRectF& selectRect, const QPointF& topLeft,
                                const QPointF& bottomRight) {
  if (selectRect.width() <= 0) return {};
  const QString start = shortPair(topLeft.x(), topLeft.y());
  if (selectRect.height() == 0) return {start, {}, {}};
  return {start, shortPair(bottomRight.x(), bottomRight.y()),
          shortPair(selectRect.width(), selectRect.height())};
}

SelectionReport flippedSelectionReport(const QRectF& selectRect, const QSizeF& imageSize, double rotate) {
  if (selectRect.width() <= 0) return {};
  const double s = std::sin(rotate), c = std::cos(rotate);
  const double centreX = imageSize.width() * 0.5, centreY = imageSize.height() * 0.5;
  const double x = selectRect.x(), upper = selectRect.y() + selectRect.height();
  const QPointF first(centreX + c * x + s * upper, centreY + s * x - c * upper);
  if (selectRect.height() == 0) return {shortPair(first.x(), first.y()), {}, {}};
  const double right = x + selectRect.width();
  const QPointF second(centreX + c * right - s * upper, centreY + s * right + c * upper);
  return {widePair(first.x(), first.y()), widePair(second.x(), second.y()),
          widePair(selectRect.width(), selectRect.height())};
}

}  // namespace norvex
