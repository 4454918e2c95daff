// How a process that reads documents ends before its time, as those learn it who outlive it.
#pragma once

#include <sys/wait.h>

#include <csignal>

#include "base/result.h"

namespace norvex {

/// Exit codes of a process that a document has used up; see worker/confinement/last_words.h.
inline constexpr int kStackUsedUp = 121;
inline constexpr int kMemoryUsedUp = 122;

[[nodiscard]] inline Error memoryUsedUp() {
  return {ErrorKind::Limit, QStringLiteral("the picture needs more memory than it is allowed")};
}

[[nodiscard]] inline Error killedBySystem() {
  return {
      ErrorKind::Died,
      QStringLiteral("the picture process was killed by the system, which has probably run out of memory")};
}
/// True if the error is that. Another try may do better, and nothing is known about the document.
[[nodiscard]] inline bool isKilledBySystem(const Error& error) {
  return error.kind == ErrorKind::Died && error.message == killedBySystem().message;
}

/// The limit that a process has reached, or Died where it was none. `status`: as waitpid() gives it.
[[nodiscard]] inline Error errorOfEnd(int status) {
  if (WIFEXITED(status) && WEXITSTATUS(status) == kMemoryUsedUp) return memoryUsedUp();
  if (WIFEXITED(status) && WEXITSTATUS(status) == kStackUsedUp)
    return {ErrorKind::Limit, QStringLiteral("the picture nests deeper than can be drawn")};
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU)
    return {ErrorKind::Limit, QStringLiteral("the picture needs more processor time than it is allowed")};
  // Nobody but the system's own keeper of memory kills so: we do it only where no answer is waited for.
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) return killedBySystem();
  // Of a fault nothing else is left; people read the sentence alone.
  const QString how = WIFSIGNALED(status) ? QStringLiteral("signal %1").arg(WTERMSIG(status))
                                          : QStringLiteral("exit code %1").arg(WEXITSTATUS(status));
  return {ErrorKind::Died, QStringLiteral("the picture process ended without an answer (%1)").arg(how)};
}

}  // namespace norvex
