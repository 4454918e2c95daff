// Landlock: the kernel's rules about files that a process puts on itself.
#pragma once

#include <string>

namespace norvex {

/// The abilities of the running kernel's Landlock; everything it lacks is open, or another layer's to stop.
struct LandlockAbilities {
  int abi = 0;  ///< its version, 0: there is none
  [[nodiscard]] bool files() const { return abi >= 1; }
  [[nodiscard]] bool truncating() const { return abi >= 3; }
  [[nodiscard]] bool network() const { return abi >= 4; }
  [[nodiscard]] bool devices() const { return abi >= 5; }
  [[nodiscard]] bool scopes() const { return abi >= 6; }
};

[[nodiscard]] LandlockAbilities landlockAbilities();

/// Makes the rules of processes without a scratch folder once, for those that this one will fork: opening
/// every place again is what costs most. Harmless where there is no Landlock.
void prepareLandlock();
/// As moveProcessFiles() (process_files.h), for what prepareLandlock() has opened.
[[nodiscard]] int movePreparedLandlock(int descriptor);

/// Puts the rules on this thread and all that it starts, for ever: enginePlaces() as they say, the scratch
/// folder (empty: none) to read and write plain files in; nothing else can be opened, listed, made, renamed
/// or removed. No TCP, no signals and abstract sockets to processes outside. Needs no_new_privs. False:
/// nothing was put on.
///
/// Out of its sight, whichever its version: whether a file exists, its size and its times; changes of mode,
/// owner, times and extended attributes; descriptors that are open already.
[[nodiscard]] bool enterLandlock(const std::string& scratchFolder);

}  // namespace norvex
