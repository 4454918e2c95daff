// Ends what a library waits for on a connection, from beside it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include <sys/socket.h>

namespace norvex {

/// Looks in turn, on a thread of its own, whether a step on the connection is to end, and shuts the
/// connection then; whoever reads from it is told of its end. Must be gone before the connection is closed.
class StepGuard {
 public:
  /// `isToEnd` and `connection` (the descriptor as it is now; negative: none) are called on the guard's
  /// thread.
  StepGuard(std::chrono::duration<double> each, std::function<bool()> isToEnd,
            std::function<int()> connection);
  ~StepGuard();
  StepGuard(const StepGuard&) = delete;
  StepGuard& operator=(const StepGuard&) = delete;

 private:
  void look();
  void shut() const;

  std::chrono::duration<double> each_;
  std::function<bool()> isToEnd_;
  std::function<int()> connection_;
  sockaddr_storage peer_{};
  socklen_t peerSize_ = sizeof peer_;
  std::mutex mutex_;
  std::condition_variable over_;
  bool isOver_ = false;
  std::thread looking_;
};

}  // namespace norvex
