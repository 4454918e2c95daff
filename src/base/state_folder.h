// Where the program keeps what it remembers and nobody has chosen, and what somebody has.
#pragma once

#include <QString>

namespace norvex {

/// norvex/ in the user's state folder (XDG_STATE_HOME); may not exist yet. Any thread.
[[nodiscard]] QString stateFolder();

/// norvex/ in the user's folder of settings (XDG_CONFIG_HOME); may not exist yet. Any thread.
[[nodiscard]] QString settingsFolder();

}  // namespace norvex
