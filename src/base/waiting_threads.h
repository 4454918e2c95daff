// Threads for work that mostly waits for picture processes.
#pragma once

class QThreadPool;

namespace norvex {

/// Qt paints on the global pool and waits for it: work that waits must run elsewhere, or a window stands
/// still until another one's picture is made. One that waits long does not hold up the others. Thread-safe;
/// lives as long as the program.
[[nodiscard]] QThreadPool& waitingThreads();

/// Put before what that work uses, it waits at its end until all of it is over, and takes what it told the
/// application. What shall end soon must have been cancelled. Main thread.
struct WaitingThreadsEnd {
  WaitingThreadsEnd() = default;
  ~WaitingThreadsEnd();
  WaitingThreadsEnd(const WaitingThreadsEnd&) = delete;
  WaitingThreadsEnd& operator=(const WaitingThreadsEnd&) = delete;
};

}  // namespace norvex
