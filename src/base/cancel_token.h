// A flag that one thread sets to tell another that the answer is no longer wanted.
#pragma once

#include <atomic>
#include <memory>

namespace norvex {

/// Copies share one flag. A default-made token is live and can be cancelled through any of its copies.
/// Thread-safe. Cancelling is permanent; make a new token for the next request.
class CancelToken {
 public:
  CancelToken() : flag_(std::make_shared<std::atomic<bool>>(false)) {}
  void cancel() const { flag_->store(true, std::memory_order_release); }
  [[nodiscard]] bool cancelled() const { return flag_->load(std::memory_order_acquire); }

 private:
  std::shared_ptr<std::atomic<bool>> flag_;
};

}  // namespace norvex
