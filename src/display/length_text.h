// Lengths as people read them.
#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>

namespace norvex {

/// The units that lengths are shown in. The order is that in which a reader steps through them.
enum class LengthUnit { Points, Millimetres, Inches, Picas };

/// "pt", "mm", "in", "pc".
[[nodiscard]] QString unitName(LengthUnit unit);
/// How many points one of it has.
[[nodiscard]] double pointsOf(LengthUnit unit);
/// The unit of that name; points for any other.
[[nodiscard]] LengthUnit unitNamed(const QString& name);
/// The one after it, the first after the last.
[[nodiscard]] LengthUnit nextUnit(LengthUnit unit);

/// A length in points as a number of that unit in the user's notation: points and millimetres with one
/// decimal at most, picas with two, inches with three, without trailing zeros.
[[nodiscard]] QString lengthText(double points, LengthUnit unit);

/// "260 × 150" in that unit, without its name.
[[nodiscard]] QString sizeText(const QSizeF& points, LengthUnit unit = LengthUnit::Points);

}  // namespace norvex
