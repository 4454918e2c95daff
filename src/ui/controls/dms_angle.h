// Angles as people type them: degrees, minutes and seconds packed into the digits of one number.
#pragma once

#include <QString>

#include <optional>

namespace norvex {

/// The packed notation: the whole part counts degrees, the first two decimals minutes, the next two seconds,
/// anything after them parts of a second. 12.3045 is 12° 30′ 45″; the sign belongs to all of it. Minutes and
/// seconds of 60 and more carry over (12.75 is 12° 75′, which is 13° 15′).
namespace dms {

/// Packed notation → decimal degrees. Not a number or infinite: 0.
[[nodiscard]] double toDegrees(double packed);
/// Decimal degrees → packed notation, rounded to whole seconds (so that what is shown is what is stored).
[[nodiscard]] double fromDegrees(double degrees);
[[nodiscard]] double toRadians(double packed);
[[nodiscard]] double fromRadians(double radians);
/// "12° 30′ 45″" for people and screen readers; parts that are zero at the end are left out ("90°").
[[nodiscard]] QString text(double packed);
/// The ways to type an angle besides the packed number itself: 90°, 12° 30′, 12°30'45", and degrees with
/// decimals (45.5° is 45° 30′), whose sign is a point or a comma. Nothing: not an angle.
[[nodiscard]] std::optional<double> fromText(const QString& text);

}  // namespace dms

}  // namespace norvex
