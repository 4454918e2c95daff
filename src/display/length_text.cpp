#include "display/length_text.h"

#include <QLocale>

#include <array>
#include <cmath>

namespace norvex {
namespace {

struct UnitRow {
  LengthUnit unit;
  const char* name;
  double points;  ///< how many make one
  int decimals;
};

constexpr auto units = std::to_array<UnitRow>({
    {LengthUnit::Points, "pt", 1, 1},
    {LengthUnit::Millimetres, "mm", 72 / 25.4, 1},
    {LengthUnit::Inches, "in", 72, 3},
    {LengthUnit::Picas, "pc", 12, 2},
});

const UnitRow& rowOf(LengthUnit unit) {
  return units[size_t(unit)];
}

}  // namespace

QString unitName(LengthUnit unit) {
  return QString::fromLatin1(rowOf(unit).name);
}

double pointsOf(LengthUnit unit) {
  return rowOf(unit).points;
}

LengthUnit unitNamed(const QString& name) {
  for (const UnitRow& row : units)
    if (name == QLatin1String(row.name)) return row.unit;
  return LengthUnit::Points;
}

LengthUnit nextUnit(LengthUnit unit) {
  return units[(size_t(unit) + 1) % units.size()].unit;
}

QString lengthText(double points, LengthUnit unit) {
  const UnitRow& row = rowOf(unit);
  const double scale = std::pow(10.0, row.decimals);
  double value = std::round(points / row.points * scale) / scale;
  if (value == 0) value = 0;  // never "-0"
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'f', QLocale::FloatingPointShortest);
}

QString sizeText(const QSizeF& points, LengthUnit unit) {
  return QStringLiteral("%1 × %2").arg(lengthText(points.width(), unit), lengthText(points.height(), unit));
}

}  // namespace norvex
