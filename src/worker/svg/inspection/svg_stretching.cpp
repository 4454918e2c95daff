#include "worker/svg/inspection/svg_stretching.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

#include "worker/svg/inspection/svg_length.h"

namespace norvex::engine {
namespace {

constexpr double kNoticeable = 1e-3;

QList<double> numbersIn(QStringView list) {
  QList<double> numbers;
  while (!list.isEmpty() && numbers.size() < 6) {
    if (const std::optional<double> number = takeSvgNumber(list))
      numbers << *number;
    else
      list = list.mid(1);  // it stands between numbers
  }
  return numbers;
}

/// True if two vectors are not those of a square.
bool differ(double ax, double ay, double bx, double by) {
  const double a = std::hypot(ax, ay), b = std::hypot(bx, by);
  const double longer = std::max(a, b);
  return std::abs(a - b) > kNoticeable * longer ||
         std::abs(ax * bx + ay * by) > kNoticeable * longer * longer;
}

}  // namespace

bool stretches(const QString& transform) {
  static const QRegularExpression function(QStringLiteral("(matrix|scale|skewX|skewY)\\s*\\(([^)]*)\\)"));
  for (auto match = function.globalMatch(transform); match.hasNext();) {
    const QRegularExpressionMatch found = match.next();
    const QString name = found.captured(1);
    const QList<double> n = numbersIn(found.capturedView(2));
    if (name == QLatin1String("matrix") && n.size() >= 4 && differ(n[0], n[1], n[2], n[3])) return true;
    if (name == QLatin1String("scale") && n.size() >= 2 && differ(n[0], 0, 0, n[1])) return true;
    if (name.startsWith(QLatin1String("skew")) && !n.isEmpty() && std::abs(n[0]) > kNoticeable) return true;
  }
  return false;
}

double enlargement(const QString& transform) {
  static const QRegularExpression function(QStringLiteral("(matrix|scale)\\s*\\(([^)]*)\\)"));
  double factor = 1;
  for (auto match = function.globalMatch(transform); match.hasNext();) {
    const QRegularExpressionMatch found = match.next();
    const QList<double> n = numbersIn(found.capturedView(2));
    if (found.captured(1) == QLatin1String("scale") && !n.isEmpty())
      factor *= std::max(std::abs(n.first()), std::abs(n.size() > 1 ? n[1] : n[0]));
    else if (n.size() >= 4)
      factor *= std::max(std::hypot(n[0], n[1]), std::hypot(n[2], n[3]));
  }
  return std::isfinite(factor) ? factor : 1;
}

void SvgStretching::open(const QString& element, const QString& transform,
                         const QString& preserveAspectRatio) {
  const bool own = (!transform.isEmpty() && stretches(transform)) ||
                   preserveAspectRatio.trimmed().startsWith(QLatin1String("none"));
  stretched_ << (own || (!stretched_.isEmpty() && stretched_.last()));
  if (element == QLatin1String("use")) stretchedUse_ = stretchedUse_ || stretched_.last();
  if (element != QLatin1String("text")) return;
  text_ = true;
  stretchedText_ = stretchedText_ || stretched_.last();
}

void SvgStretching::close() {
  if (!stretched_.isEmpty()) stretched_.removeLast();
}

}  // namespace norvex::engine
