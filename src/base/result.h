// Failure as a value: Result<T> holds what was asked for or an Error that says why there is none.
#pragma once

#include <QString>

#include <cassert>
#include <cstddef>
#include <utility>
#include <variant>

namespace norvex {

/// The closed list of ways in which an operation fails. Callers branch on it; people read Error::message.
enum class ErrorKind {
  CannotRead,   ///< the file or its bytes could not be read
  NotParsable,  ///< read, but not a document of the kind that was asked for
  Encrypted,    ///< a password is needed
  Unsupported,  ///< well-formed, but not something we can do
  CannotWrite,  ///< the target could not be written
  Limit,        ///< one of the limits (memory, pixels, depth …) was reached
  TimedOut,     ///< not done in the time that was granted
  Cancelled,    ///< the caller's cancel token was set
  Died,         ///< the picture process ended without an answer
  Protocol,     ///< the picture process answered with something that cannot be true
  NoSandbox,    ///< the confinement of the picture process could not be set up
};

struct Error {
  ErrorKind kind = ErrorKind::CannotRead;
  QString message;  ///< one plain sentence without the file's name, without a full stop at its end
};

/// T or Error. value() REQUIRES ok(), error() REQUIRES !ok().
template <typename T>
class [[nodiscard]] Result {
 public:
  Result(T value) : state_(std::in_place_index<0>, std::move(value)) {}
  Result(Error error) : state_(std::in_place_index<1>, std::move(error)) {}

  [[nodiscard]] bool ok() const { return state_.index() == 0; }
  explicit operator bool() const { return ok(); }
  [[nodiscard]] T& value() { return held<0>(state_); }
  [[nodiscard]] const T& value() const { return held<0>(state_); }
  [[nodiscard]] const Error& error() const { return held<1>(state_); }
  T& operator*() { return value(); }
  const T& operator*() const { return value(); }
  T* operator->() { return &value(); }
  const T* operator->() const { return &value(); }

 private:
  /// Asserts the pointer rather than the index: whoever reasons about the code sees that it is not null.
  template <std::size_t index, typename State>
  static auto& held(State& state) {
    auto* const alternative = std::get_if<index>(&state);
    assert(alternative);
    return *alternative;
  }

  std::variant<T, Error> state_;
};

/// Success without a value, or an Error.
template <>
class [[nodiscard]] Result<void> {
 public:
  Result() = default;
  Result(Error error) : error_(std::move(error)), failed_(true) {}

  [[nodiscard]] bool ok() const { return !failed_; }
  explicit operator bool() const { return ok(); }
  [[nodiscard]] const Error& error() const { return assert(failed_), error_; }

 private:
  Error error_;
  bool failed_ = false;
};

}  // namespace norvex
