#include "ui/controls/dms_angle.h"

#include <QRegularExpression>

#include <cmath>
#include <numbers>

namespace norvex::dms {

namespace {

/// A millionth of a second: fine enough for every angle, coarse enough to absorb what binary fractions add.
constexpr double kTicksPerSecond = 1e6;
constexpr double kLargest =
    1e6;  // degrees; beyond it seconds no longer fit into a double with ticks to spare

double magnitudeToDegrees(double packed) {
  const auto ticks =
      static_cast<long long>(std::llround(std::fmod(packed, kLargest) * 1e4 * kTicksPerSecond));
  const auto perMinute = static_cast<long long>(100 * kTicksPerSecond);
  const double seconds = static_cast<double>(ticks % perMinute) / kTicksPerSecond;
  const double minutes = static_cast<double>(ticks / perMinute % 100);
  const double degrees = static_cast<double>(ticks / perMinute / 100);
  return degrees + minutes / 60.0 + seconds / 3600.0;
}

}  // namespace

double toDegrees(double packed) {
  if (!std::isfinite(packed)) return 0;
  return std::copysign(magnitudeToDegrees(std::abs(packed)), packed);
}

double fromDegrees(double degrees) {
  if (!std::isfinite(degrees)) return 0;
  const long long seconds = std::llround(std::fmod(std::abs(degrees), kLargest) * 3600.0);
  const double packed = static_cast<double>(seconds / 3600) + static_cast<double>(seconds / 60 % 60) / 100.0 +
                        static_cast<double>(seconds % 60) / 10000.0;
  return seconds == 0 ? 0.0 : std::copysign(packed, degrees);
}

double toRadians(double packed) {
  return toDegrees(packed) * std::numbers::pi / 180.0;
}

double fromRadians(double radians) {
  return fromDegrees(radians * 180.0 / std::numbers::pi);
}

QString text(double packed) {
  const double exact = fromDegrees(toDegrees(packed));
  const long long digits = std::llround(std::abs(exact) * 10000.0);
  const long long degrees = digits / 10000, minutes = digits / 100 % 100, seconds = digits % 100;
  QString result =
      (exact < 0 ? QStringLiteral("\u2212") : QString()) + QString::number(degrees) + QChar(0x00B0);
  if (minutes != 0 || seconds != 0) result += QStringLiteral(" %1\u2032").arg(minutes, 2, 10, QChar('0'));
  if (seconds != 0) result += QStringLiteral(" %1\u2033").arg(seconds, 2, 10, QChar('0'));
  return result;
}

std::optional<double> fromText(const QString& text) {
  static const QRegularExpression parts(
      QStringLiteral("^\\s*([+\\-\u2212]?)\\s*(\\d{1,6})(?:([.,]\\d{1,9})\\s*\u00B0|\\s*\u00B0\\s*"
                     "(?:(\\d{1,2})\\s*['\u2032]\\s*)?"
                     "(?:(\\d{1,2}(?:[.,]\\d{1,4})?)\\s*(?:\"|\u2033|''|\u2032\u2032)\\s*)?)\\s*$"));
  // Full-width digits and signs are what Japanese and Chinese keyboards give.
  const auto match = parts.match(text.normalized(QString::NormalizationForm_KC));
  if (!match.hasMatch()) return std::nullopt;
  const auto number = [&match](int part) {
    return match.captured(part).replace(QChar(','), QChar('.')).toDouble();
  };
  const double packed = match.captured(3).isEmpty() ? number(2) + number(4) / 100.0 + number(5) / 10000.0
                                                    : fromDegrees(number(2) + number(3));
  const bool negative = !match.captured(1).isEmpty() && match.captured(1) != QLatin1String("+");
  return negative ? -packed : packed;
}

}  // namespace norvex::dms
