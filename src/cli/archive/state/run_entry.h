// The entry of one file in a state.
#pragma once

#include <QByteArray>
#include <QString>

#include "cli/archive/state/file_stamp.h"

namespace norvex {

/// How work on a file ended. The numbers stand in states.
enum class Outcome {
  Begun = 0,  ///< it has not: the run was interrupted, or the result could not be written
  Done = 1,
  Failed = 2,    ///< because of the file
  SetAside = 3,  ///< it made its picture process end, twice
};

[[nodiscard]] constexpr const char* nameOf(Outcome outcome) {
  constexpr const char* names[] = {"begun", "done", "failed", "set-aside"};
  return names[int(outcome)];
}

struct RunEntry {
  QByteArray path;      ///< of the file, from the root
  QByteArray settings;  ///< hash of what the result follows from besides the file
  FileStamp stamp;      ///< of the file before and after it was worked on
  QByteArray content;   ///< SHA-256 of it; null: it could not be read
  Outcome outcome = Outcome::Begun;
  QString sentence;  ///< why there is no result
  double seconds = 0;
  qint64 memoryKiB = 0;  ///< at most, of its picture process; 0: not known
  double changed = 0;    ///< share of the picture's area that became an image, where it was not to
  QByteArray output;     ///< path of the result from the root; null: there is no file
  FileStamp outputStamp;
  QByteArray outputContent;
  qint64 finished = 0;  ///< seconds since 1970
};

}  // namespace norvex
