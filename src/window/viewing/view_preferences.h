// What is chosen once for all windows, as the preferences show it.
#pragma once

#include <QList>

#include "ui/panels/preference.h"

namespace norvex {

[[nodiscard]] QList<Preference> viewPreferences();

}  // namespace norvex
