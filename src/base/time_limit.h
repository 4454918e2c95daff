// TimeLimit: a token that is cancelled when the time for a piece of work is over.
#pragma once

#include <atomic>
#include <chrono>
#include <thread>

#include "base/cancel_token.h"
#include "base/result.h"

namespace norvex {

/// Cancels its token when `outer` is cancelled or `time` is over, whichever comes first. Not copyable; its
/// end ends the wait. The token may be used on any thread.
class TimeLimit {
 public:
  TimeLimit(std::chrono::milliseconds time, const CancelToken& outer);

  [[nodiscard]] const CancelToken& token() const { return token_; }
  /// The time is over, whether or not somebody else cancelled as well.
  [[nodiscard]] bool isOver() const { return over_; }
  /// The error to tell of work that failed under the token: that its time was over, where it was.
  [[nodiscard]] Error explained(const Error& error) const;

 private:
  std::chrono::milliseconds time_;
  CancelToken token_;
  std::atomic<bool> over_ = false;
  CancelListener outer_;
  std::jthread clock_;
};

}  // namespace norvex
