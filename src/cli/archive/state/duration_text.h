// How long something takes, for people.
#pragma once

#include <QString>

namespace norvex {

/// "42 s", "3 min 20 s", "1 h 5 min": rounded up to whole seconds.
[[nodiscard]] QString durationText(double seconds);

}  // namespace norvex
