// TurnTaking: lets one thread at a time in, and those that wait give up when their answer is no longer
// wanted.
#pragma once

#include <chrono>
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
    std::unique_lock lock(mutex_);
    while (busy_) {
      if (cancel.cancelled()) return nullptr;
      // A token has no way to wake us, so it is looked at now and then.
      free_.wait_for(lock, std::chrono::milliseconds(10));
    }
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
