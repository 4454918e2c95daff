// The outcome of one name of a run over an archive.
#pragma once

#include <QByteArray>
#include <QString>

#include "cli/archive/names/listed_name.h"
#include "cli/archive/state/run_entry.h"
#include "cli/arguments/exit_code.h"

namespace norvex {

enum class Verdict {
  Done,
  Unchanged,    ///< the state has it done already
  KnownFailed,  ///< the state has it failed, and failures are not tried again
  Failed,
  SetAside,
  Unwritten,  ///< for a reason that is not the file's: it is done again by the next run
  Interrupted,
  PassedOver,
};

struct FileResult {
  qint64 number = 0;  ///< of the name in the run, from 1
  Verdict verdict = Verdict::Done;
  ExitCode code = ExitCode::Done;
  QByteArray path;
  QByteArray text;          ///< for standard output, as the command writes it for this file alone
  QString messages;         ///< for standard error, lines with their ends
  QString sentence;         ///< why there is no result
  RunEntry entry;           ///< for the state
  bool isInTheWay = false;  ///< not written because its own place is taken: no sign that others cannot be

  /// The bytes that it takes while it waits to be told, about.
  [[nodiscard]] qint64 weight() const { return 512 + text.size() + 2 * messages.size(); }
};

/// A name that is to be worked on.
struct FileTask {
  qint64 number = 0;
  ListedName name;
  QByteArray output;     ///< empty: the command writes no file
  bool replace = false;  ///< what is at the output is ours
};

}  // namespace norvex
