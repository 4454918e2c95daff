// Checks of what a process does to itself and cannot undo.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace norvex::kit {

/// Runs the check in a forked child and gives its answer; -1: the child was killed. The answer is below 256.
inline int inForkedChild(const std::function<int()>& check) {
  const pid_t pid = ::fork();
  if (pid == 0) ::_exit(check());
  int status = 0;
  ::waitpid(pid, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace norvex::kit
