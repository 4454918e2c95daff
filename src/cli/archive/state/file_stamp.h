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

/// What stays the same as long as nobody writes a file or puts another one in its place: also the time that
/// no program can set. Of one machine and a short while.
struct FileMark {
  FileStamp stamp;
  quint64 device = 0, number = 0;
  qint64 changed = 0;  ///< nanoseconds since 1970
  bool operator==(const FileMark&) const = default;
};

/// Nothing when there is no such file. Follows links.
[[nodiscard]] std::optional<FileStamp> stampOf(const QByteArray& path);
[[nodiscard]] std::optional<FileMark> markOf(const QByteArray& path);

/// The time that FileMark::changed of a file gets which is changed now, where the file system is of this
/// machine.
[[nodiscard]] qint64 fileClock();

/// SHA-256 of an ordinary file's bytes, read piece by piece; nothing when it cannot be read.
[[nodiscard]] std::optional<QByteArray> contentHash(const QByteArray& path);

}  // namespace norvex
