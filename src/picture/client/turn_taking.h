// TurnTaking: lets one thread at a time in, and those that wait give up when their answer is no longer
// wanted.
#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

#include "base/cancel_token.h"

namespace norvex {

/// Like a mutex whose waiting can be cancelled. Thread-safe.
class TurnTaking {
 public:
  /// The turn ends with the object; nothing: cancelled while waiting.
  using Turn = std::unique_ptr<void, std::function<void(void*)>>;
  [[nodiscard]] Turn take(const CancelToken& cancel) {
    const CancelListener listener(cancel, [this] {
      const std::lock_guard lock(mutex_);
      free_.notify_all();
    });
    std::unique_lock lock(mutex_);
    free_.wait(lock, [&] { return !busy_ || cancel.cancelled(); });
    if (busy_) return nullptr;
    busy_ = true;
    return Turn(this, [this](void*) { end(); });
  }

 private:
  void end() {
    const std::lock_guard lock(mutex_);
    busy_ = false;
    free_.notify_one();
  }

  std::mutex mutex_;
  std::condition_variable free_;
  bool busy_ = false;
};

}  // namespace norvex
