// A document's process and whom it has forked, as one group.
#pragma once

#include <sys/types.h>

namespace norvex {

/// Kills `leader`, a child of ours that has not been waited for, and its group, and waits for it. Until then
/// no other process can bear its number. Answers its status as waitpid() gives it; any thread.
int endProcessGroup(pid_t leader);

}  // namespace norvex
