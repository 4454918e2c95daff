// How a file is known again: its size and time, and the hash of what it holds.
#pragma once

#include <QByteArray>

#include <optional>

#include "base/result.h"

namespace norvex {

struct FileStamp {
  qint64 size = -1;
  qint64 time = 0;  ///< of its last change, nanoseconds since 1970
  bool operator==(const FileStamp&) const = default;
};

/// Nothing when there is no such file. Follows links.
[[nodiscard]] std::optional<FileStamp> stampOf(const QByteArray& path);

/// SHA-256 of an ordinary file's bytes, read piece by piece; nothing when it cannot be read.
[[nodiscard]] std::optional<QByteArray> contentHash(const QByteArray& path);

}  // namespace norvex
