// A file system of one's own that holds nothing but what engines need.
#pragma once

#include <string>

namespace norvex {

/// Moves this process, which has a single thread and has not yet read a document, into a mount namespace of
/// its own (and a user namespace, without which it may not) whose files are enginePlaces(), read-only, and
/// the scratch root (empty: none), at the paths that they always had. Other folders do not exist there,
/// neither does /proc. What it forks inherits the view. It keeps the right to mount until dropPrivileges().
/// False where the system does not permit it: nothing has changed.
[[nodiscard]] bool enterFileView(const std::string& scratchRoot);

/// True if this process, or one that forked or started it, has entered the view.
[[nodiscard]] bool isInFileView();

/// Removes the scratch root for good, for the process that entered the view.
void removeScratchRootOfView();

}  // namespace norvex
