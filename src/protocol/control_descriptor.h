// Where a picture process finds its line. Free of Qt, because it is also told before Qt is loaded.
#pragma once

#include <sys/stat.h>

namespace norvex {

/// The descriptor with which a picture process is started and on which it serves.
inline constexpr int controlDescriptor = 3;

/// False for a program that somebody started by hand: nobody is at the other end.
[[nodiscard]] inline bool hasControlSocket() {
  struct stat status = {};
  return ::fstat(controlDescriptor, &status) == 0 && S_ISSOCK(status.st_mode);
}

}  // namespace norvex
