#include "cli/value_reader.h"

#include <QStringList>

#include <cmath>

#include "base/latin1_text.h"
#include "protocol/limits.h"

namespace norvex {

void ValueReader::complain(const QString& sentence) {
  if (complaint_.isEmpty()) complaint_ = sentence;
}

double ValueReader::number(Option option, double fallback, double least, double most) {
  if (!arguments_.has(option)) return fallback;
  bool good = false;
  const double value = arguments_.values.value(option).toDouble(&good);
  if (good && std::isfinite(value) && value >= least && value <= most) return value;
  complain(QStringLiteral("--%1 is a number from %2 to %3")
               .arg(latin1(rowOf(option).name))
               .arg(least, 0, 'f', 0)
               .arg(most, 0, 'f', 0));
  return fallback;
}

int ValueReader::integer(Option option, int fallback, int least, int most) {
  const double value = number(option, fallback, least, most);
  if (value != std::floor(value))
    complain(QStringLiteral("--%1 is a whole number").arg(latin1(rowOf(option).name)));
  return static_cast<int>(value);
}

std::optional<QRectF> ValueReader::crop() {
  if (!arguments_.has(Option::Crop)) return std::nullopt;
  const QStringList texts = arguments_.values.value(Option::Crop).split(u',');
  QList<double> numbers;
  for (const QString& text : texts) {
    bool good = false;
    const double value = text.trimmed().toDouble(&good);
    if (good && std::abs(value) <= norvex::limits::maximumPoints) numbers << value;
  }
  if (texts.size() == 4 && numbers.size() == 4 && numbers[2] > 0 && numbers[3] > 0) {
    return QRectF(numbers[0], numbers[1], numbers[2], numbers[3]);
  }
  complain(QStringLiteral("--crop is X,Y,W,H: four numbers of points with W and H above 0"));
  return std::nullopt;
}

QColor ValueReader::background() {
  if (!arguments_.has(Option::Background)) return {};
  const QString value = arguments_.values.value(Option::Background);
  const QColor color(value);
  // More digits are read in two orders, and mean something see-through in both.
  const bool isLong = value.startsWith(u'#') && value.size() > 7;
  if (!color.isValid() || isLong) complain(QStringLiteral("--background is a colour: a name or #rrggbb"));
  return color;
}

PictureLimits ValueReader::limits() {
  constexpr int manyDays = 10'000'000;
  PictureLimits limits;
  limits.seconds = integer(Option::Timeout, limits.seconds, 1, manyDays);
  limits.memoryMiB = integer(Option::Memory, limits.memoryMiB, 64, 1 << 20);
  return limits;
}

}  // namespace norvex
