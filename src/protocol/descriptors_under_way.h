// The kernel bounds the descriptors that all programs of a user have sent and nobody has taken yet: above the
// number of files that a process may open it lets it send no more. Picture processes may open few, so that
// any program of the user can bring them there; it passes as soon as the others take theirs.
#pragma once

#include <sys/poll.h>

#include <cerrno>

namespace norvex {

/// True if a message with descriptors was refused (`error` of sendmsg()) for that alone.
[[nodiscard]] inline bool areTooManyUnderWay(int error) {
  return error == ETOOMANYREFS;
}

/// Waits a moment before the next try. False: the other end of the socket has gone.
[[nodiscard]] inline bool waitForThoseUnderWay(int socket) {
  constexpr int milliseconds = 5;
  pollfd end = {socket, 0, 0};
  return ::poll(&end, 1, milliseconds) <= 0;
}

}  // namespace norvex
