#include "print/step_guard.h"

#include <cstring>
#include <utility>

namespace norvex {

StepGuard::StepGuard(std::chrono::duration<double> each, std::function<bool()> isToEnd,
                     std::function<int()> connection)
    : each_(each), isToEnd_(std::move(isToEnd)), connection_(std::move(connection)) {
  if (::getpeername(connection_(), reinterpret_cast<sockaddr*>(&peer_), &peerSize_) != 0) peerSize_ = 0;
  looking_ = std::thread([this] { look(); });
}

StepGuard::~StepGuard() {
  {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
  }
  over_.notify_all();
  looking_.join();
}

void StepGuard::look() {
  std::unique_lock lock(mutex_);
  while (!over_.wait_for(lock, each_, [this] { return isOver_; }))
    if (isToEnd_()) shut();  // again and again: the library may connect anew
}

/// The library may have closed the descriptor meanwhile, and the number be another file's: only what is
/// connected with the same server is shut.
void StepGuard::shut() const {
  sockaddr_storage peer{};
  socklen_t size = sizeof peer;
  const int descriptor = connection_();
  if (::getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) == 0 && size == peerSize_ &&
      std::memcmp(&peer, &peer_, size) == 0)
    ::shutdown(descriptor, SHUT_RDWR);
}

}  // namespace norvex
