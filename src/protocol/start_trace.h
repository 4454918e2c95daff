// The steps from command to picture with their times, for whoever makes starting faster: norvex
// --trace-start. Free of Qt, because the first of them are before Qt is loaded.
#pragma once

#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace norvex {

/// Set where steps are told: nanoseconds of the monotonic clock at which the first process began.
inline constexpr char traceVariable[] = "NORVEX_TRACE_START";

[[nodiscard]] inline long long traceClock() {
  timespec now{};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1000000000LL + now.tv_nsec;
}

/// 0: nothing is told. What the environment says at the first call holds for the process and those that it
/// forks.
[[nodiscard]] inline long long traceOrigin() {
  static const long long origin = [] {
    const char* const told = std::getenv(traceVariable);
    return told == nullptr ? 0LL : std::atoll(told);
  }();
  return origin;
}

/// A line on standard error when this place is reached for the first time: process, milliseconds since the
/// start, step. Where standard error has been given up, as every document's process has, it is lost.
/// Thread-safe.
template <auto place = [] {}>
inline void traceStep(const char* step) {
  static std::atomic_flag told;
  if (traceOrigin() == 0 || told.test_and_set()) return;
  ::dprintf(STDERR_FILENO, "trace %d %.2f ms: %s\n", int(::getpid()),
            double(traceClock() - traceOrigin()) / 1e6, step);
}

}  // namespace norvex
