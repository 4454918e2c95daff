// The encodings that were chosen for single files, from one run of the program to the next.
#pragma once

#include <QString>

namespace norvex {

/// The encoding in which the file at `path` is to be read; empty: none was chosen, or the file has no path.
/// Thread-safe.
[[nodiscard]] QString chosenEncoding(const QString& path);

/// Remembers the choice, which belongs to the place of the file and not to its contents; an empty name
/// forgets it. Only the latest 200 are kept. They stand in a file of their own in the state folder.
/// Thread-safe.
void rememberEncoding(const QString& path, const QString& encodingName);

}  // namespace norvex
