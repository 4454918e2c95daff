// A command done with one file of an archive, and everything kept that it would have said.
#pragma once

#include <optional>

#include "cli/archive/file_result.h"
#include "cli/job.h"

namespace norvex {

/// A command's answer for one file.
struct FileAnswer {
  ExitCode code = ExitCode::Done;
  std::optional<Error> error;  ///< of the file, where the command told one
  bool isNoFault = false;      ///< of the file that there is no result
  QString fault;               ///< of a file that was looked at and is not as it should be
  QByteArray output;
  QString messages;
};

/// Does a command as if it were called with this file alone: a command works over archives without knowing of
/// them. Any thread. The arguments name one file, and standard input holds nothing for them.
[[nodiscard]] FileAnswer doWithFile(PictureService& service, const Arguments& arguments);

/// The arguments of a run over an archive without what makes it one: those for each of its files. With an
/// output for a command that writes one; empty: it writes none.
[[nodiscard]] Arguments argumentsForFile(const Arguments& run, const QByteArray& path,
                                         const QByteArray& output, bool replace);

}  // namespace norvex
