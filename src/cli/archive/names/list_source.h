// The names of a list, read as they come.
#pragma once

#include <QByteArray>

#include "base/cancel_token.h"
#include "base/file_descriptor.h"
#include "base/result.h"
#include "cli/archive/names/listed_name.h"

namespace norvex {

/// The place of a file below the folder of the results: its path below `base`, or its own name alone where
/// that is empty. Nothing for a file that does not lie below it.
[[nodiscard]] std::optional<QByteArray> placeOf(const QByteArray& path, const QByteArray& base);

/// See NameSource. Names are told apart by `separator`; empty ones do not count. What is longer than any path
/// is passed over as a failure, and so is what does not lie below `base`. A list that cannot be read to its
/// end ends with a failure under its own `name`.
class ListSource final : public NameSource {
 public:
  /// Reads `list`; cancelling ends the list, also while it waits for more of it.
  ListSource(FileDescriptor list, char separator, QByteArray base, const CancelToken& cancel,
             QByteArray name = "-");

  std::optional<Listed> next() override;
  bool wouldWait() override;

 private:
  bool fill();
  bool cutOff(int code);
  [[nodiscard]] Listed listed(const QByteArray& name) const;

  const FileDescriptor list_;
  const FileDescriptor cancelled_;  ///< an eventfd
  const char separator_;
  const QByteArray base_, name_;
  QByteArray buffer_;
  qsizetype begin_ = 0;  ///< of the next name in the buffer
  bool ended_ = false;
  int failed_ = 0;        ///< why the list ended before its end, as errno has it
  bool tooLong_ = false;  ///< the rest of the name at hand is dropped
  CancelListener listener_;
};

/// Opens a list by its name; "-" is standard input. Does not wait for somebody to write to a pipe. Fails with
/// CannotRead.
[[nodiscard]] Result<FileDescriptor> openList(const QByteArray& name);

}  // namespace norvex
