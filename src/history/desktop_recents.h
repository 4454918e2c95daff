// The desktop's own list of recent files, which its file dialogs and menus show.
#pragma once

#include <QString>

namespace norvex {

/// recently-used.xbel in the user's data folder (XDG_DATA_HOME).
[[nodiscard]] QString desktopRecentsFile();

/// Tells the list in `file` that this program has opened the file at `path` just now. A list that cannot be
/// read is left as it is. Any thread; one call after the other.
void addToDesktopRecents(const QString& file, const QString& path, const QString& mimeType);

/// Takes this program's marks off every entry, and the entries that no other program has marked.
void clearFromDesktopRecents(const QString& file);

}  // namespace norvex
