// A flag that one thread sets to tell another that the answer is no longer wanted.
#pragma once

#include <functional>
#include <stop_token>
#include <utility>

namespace norvex {

/// Copies share one flag. A default-made token is live and can be cancelled through any of its copies.
/// Thread-safe. Cancelling is permanent; make a new token for the next request.
class CancelToken {
 public:
  void cancel() const { (void)source_.request_stop(); }
  [[nodiscard]] bool cancelled() const { return source_.stop_requested(); }

 private:
  friend class CancelListener;
  std::stop_source source_;
};

/// Wakes who waits: calls `heard` once when the token is cancelled, on the thread that cancels it, or at once
/// when it is cancelled already. Its end waits for a call under way: hold no lock then that `heard` takes.
class CancelListener {
 public:
  CancelListener(const CancelToken& token, std::function<void()> heard)
      : callback_(token.source_.get_token(), std::move(heard)) {}

 private:
  std::stop_callback<std::function<void()>> callback_;
};

}  // namespace norvex
