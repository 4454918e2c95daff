// Wrappings in which other systems keep a file: MacBinary and AppleSingle, which put a Macintosh file's two
// forks into one.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

namespace norvex {

/// The forks of a wrapped file. Borrowed from it.
struct WrappedFile {
  QString wrapping;  ///< "MacBinary" or "AppleSingle"
  QByteArrayView dataFork;
  QByteArrayView resourceFork;  ///< empty: there is none
};

/// Nothing: the file is not wrapped, or what the wrapping says of its parts cannot be true. Thread-safe.
[[nodiscard]] std::optional<WrappedFile> wrappedFile(QByteArrayView file);

/// The file inside of all wrappings that wrappedFile() knows; the file itself without any. A copy of its own
/// where there was one.
[[nodiscard]] QByteArray withoutWrapping(const QByteArray& file);

}  // namespace norvex
