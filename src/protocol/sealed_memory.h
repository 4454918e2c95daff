// SealedMemory: bytes in shared memory that nobody, neither side of a socket, can change or shorten any more.
#pragma once

#include <QByteArray>

#include <memory>

#include "base/file_descriptor.h"
#include "base/result.h"

namespace norvex {

/// A read-only view of a sealed memfd. The seals are checked before the first access: without them the other
/// side could shorten the memory under our hands (a bus error) or change it between a check and the use. A
/// value; copies share the mapping, which lives as long as the last of them. Thread-safe, as nothing changes.
class SealedMemory {
 public:
  /// A memfd with a copy of the bytes and all four seals (shrink, grow, write, seal).
  /// Fails with Limit when there is no memory for it.
  static Result<FileDescriptor> seal(const void* bytes, qsizetype size);
  static Result<FileDescriptor> seal(const QByteArray& bytes);

  /// Checks and maps what came from the other side, and closes the descriptor in every case. Fails with
  /// Protocol when it is no memfd, lacks a seal or holds more than `maximumBytes`.
  static Result<SealedMemory> map(FileDescriptor fd, qsizetype maximumBytes);

  SealedMemory() = default;
  /// Null when size() is 0.
  [[nodiscard]] const char* data() const { return static_cast<const char*>(mapping_.get()); }
  [[nodiscard]] qsizetype size() const { return size_; }
  /// A copy that does not need the mapping any more.
  [[nodiscard]] QByteArray toByteArray() const { return QByteArray(data(), size_); }
  /// The bytes without a copy: valid only as long as this object or a copy of it.
  [[nodiscard]] QByteArray view() const { return QByteArray::fromRawData(data(), size_); }

 private:
  std::shared_ptr<const void> mapping_;
  qsizetype size_ = 0;
};

}  // namespace norvex
