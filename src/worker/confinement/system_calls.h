// The list of system calls that a picture process may make.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <vector>

namespace norvex {

/// Whom a list is for.
enum class CallsFor {
  Engines,      ///< files are opened for reading alone, nothing is started
  Interpreter,  ///< PostScript's: it writes and removes scratch files, too
  Program,      ///< the same, and it starts itself with its first call
};

/// A list in the form that the kernel takes. Made once (half a millisecond) and put on in as many processes
/// as one likes.
class SystemCallList {
 public:
  SystemCallList() = default;  ///< none
  /// Without any when this system has no such lists.
  static SystemCallList make(CallsFor whom);
  /// The same, made at the first call in this process or in one that it was forked from.
  static const SystemCallList& shared(CallsFor whom);

  [[nodiscard]] bool valid() const { return !steps_.empty(); }
  /// Puts the list on every thread of this process and on all that they start, for ever. Calls that are not
  /// on it fail with EPERM, or with ENOSYS where libraries then take another way; calls of another
  /// architecture end the process. Needs no_new_privs. May be called between fork and exec.
  [[nodiscard]] bool enter() const;

 private:
  struct Step {  ///< as struct sock_filter
    uint16_t code;
    uint8_t whenTrue, whenFalse;
    uint32_t operand;
  };
  std::vector<Step> steps_;
};

/// True if the running kernel takes such lists.
[[nodiscard]] bool hasSystemCallLists();

}  // namespace norvex
