// A value that is made when it is first wanted, once, for everybody who wants it.
#pragma once

#include <functional>
#include <mutex>
#include <new>
#include <utility>

namespace norvex {

/// Whoever asks first makes the value, on his own thread; whoever asks meanwhile waits for it. Making must
/// not ask for the value itself. A default-made T stands for "could not be made", memory that ran out
/// included. Thread-safe.
template <typename T>
class PromisedValue {
 public:
  explicit PromisedValue(std::function<T()> make) : make_(std::move(make)) {}
  PromisedValue(const PromisedValue&) = delete;
  PromisedValue& operator=(const PromisedValue&) = delete;

  /// Blocks until the value is there.
  [[nodiscard]] T get() {
    std::call_once(once_, [this] {
      try {
        value_ = make_();
      } catch (const std::bad_alloc&) {
        value_ = T();
      }
      make_ = nullptr;  // what it holds on to is needed no longer
    });
    return value_;
  }

 private:
  std::once_flag once_;
  std::function<T()> make_;
  T value_{};
};

}  // namespace norvex
