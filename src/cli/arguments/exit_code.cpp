#include "cli/arguments/exit_code.h"

#include <algorithm>

#include "protocol/process_end.h"

namespace norvex {

ExitCode exitCodeOf(const Error& error) {
  switch (error.kind) {
    case ErrorKind::CannotWrite:
      return ExitCode::CannotWrite;
    case ErrorKind::Limit:
    case ErrorKind::TimedOut:
      return ExitCode::Limit;
    case ErrorKind::NoSandbox:
      return ExitCode::NoSandbox;
    case ErrorKind::Cancelled:
      return ExitCode::Interrupted;
    case ErrorKind::Died:
      if (isKilledBySystem(error)) return ExitCode::Limit;
      break;
    case ErrorKind::CannotRead:
    case ErrorKind::NotParsable:
    case ErrorKind::Encrypted:
    case ErrorKind::Unsupported:
    case ErrorKind::Protocol:
      break;
  }
  return ExitCode::CannotRead;
}

ExitCode exitCodeOfAll(const QList<ExitCode>& codes) {
  if (codes.isEmpty()) return ExitCode::Done;
  const bool alike =
      std::all_of(codes.begin(), codes.end(), [&](ExitCode code) { return code == codes.first(); });
  return alike ? codes.first() : ExitCode::SomeFailed;
}

}  // namespace norvex
