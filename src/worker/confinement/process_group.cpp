#include "worker/confinement/process_group.h"

#include <sys/wait.h>

#include <cerrno>
#include <csignal>

namespace norvex {

int endProcessGroup(pid_t leader) {
  // First the group, which still bears the number of the leader; it may not lead it yet.
  ::kill(-leader, SIGKILL);
  ::kill(leader, SIGKILL);
  int status = 0;
  while (::waitpid(leader, &status, 0) < 0 && errno == EINTR) continue;
  return status;
}

}  // namespace norvex
