// The names of the formats in lists that people choose from.
#pragma once

#include <QString>

#include "types/uniform_type.h"

namespace norvex {

/// The type's localized description ("PDF document"); its identifier where there is no other name for it.
[[nodiscard]] QString localizedDescription(const UTType& type);

}  // namespace norvex
