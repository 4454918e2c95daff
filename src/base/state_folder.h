// Where the program keeps what it remembers and nobody has chosen.
#pragma once

#include <QString>

namespace norvex {

/// norvex/ in the user's state folder (XDG_STATE_HOME); may not exist yet. Any thread.
[[nodiscard]] QString stateFolder();

}  // namespace norvex
