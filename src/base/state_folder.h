// Folders of whoever uses the program: where it keeps what it remembers and nobody has chosen, and what
// somebody has; and where pictures are.
#pragma once

#include <QString>

namespace norvex {

/// norvex/ in the user's state folder (XDG_STATE_HOME); may not exist yet. Any thread.
[[nodiscard]] QString stateFolder();

/// norvex/ in the user's folder of settings (XDG_CONFIG_HOME); may not exist yet. Any thread.
[[nodiscard]] QString settingsFolder();

/// Where pictures are kept; the home folder where there is no such place. Any thread.
[[nodiscard]] QString picturesFolder();

/// The path of a folder as people write it: "~/Pictures". Any thread.
[[nodiscard]] QString writtenFolder(const QString& path);

}  // namespace norvex
