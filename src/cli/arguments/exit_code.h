// The program's exit status.
#pragma once

#include <QList>

#include "base/result.h"

namespace norvex {

enum class ExitCode {
  Done = 0,
  SomeFailed = 1,  ///< some file failed, the others were done; or a file has not what was asked for
  Usage = 2,
  CannotRead = 3,  ///< or cannot parse
  CannotWrite = 4,
  Limit = 5,  ///< time, memory or size
  NoSandbox = 6,
  Interrupted = 130,
  PipeClosed = 141,  ///< nobody reads standard output any more; as the shell tells of programs that this ends
};

[[nodiscard]] ExitCode exitCodeOf(const Error& error);

/// Of a run over several files: their code when all ended alike, otherwise SomeFailed.
[[nodiscard]] ExitCode exitCodeOfAll(const QList<ExitCode>& codes);

}  // namespace norvex
