// How much can be done at a time with the files that the system lets a program open. Free of Qt, because it
// is asked before Qt is loaded.
#pragma once

#include <sys/resource.h>

#include <algorithm>

namespace norvex {

/// Below this the libraries that we stand on end the program: a thread of Qt's that finds no descriptor does.
inline constexpr rlim_t fewestOpenFiles = 32;

[[nodiscard]] inline rlim_t mostOpenFiles() {
  rlimit limit{};
  return ::getrlimit(RLIMIT_NOFILE, &limit) == 0 ? limit.rlim_cur : fewestOpenFiles;
}

/// So many threads that work on a picture each, or fewer; at least one.
[[nodiscard]] inline int threadsWithinOpenFiles(int wanted) {
  constexpr rlim_t ours = 20, each = 10;
  const rlim_t most = mostOpenFiles();
  const rlim_t fitting = most > ours + each ? (most - ours) / each : 1;
  return int(std::min(rlim_t(std::max(wanted, 1)), fitting));
}

}  // namespace norvex
