// The state of a run: what has become of each file, kept so that nothing that is done is done again.
//
// No entry lies, whenever the program is killed or the power goes: an entry is begun, and that is on disk,
// before anything is written; the result then appears in one step; and it is on disk before its entry says
// that it is done. What is only begun is done again, and what a killed program left beside it is removed.
#pragma once

#include <QByteArray>
#include <QList>

#include <mutex>
#include <optional>

#include "base/file_descriptor.h"
#include "cli/archive/state/database.h"
#include "cli/archive/state/run_entry.h"
#include "cli/archive/state/state_summary.h"

namespace norvex {

/// A SQLite database with a write-ahead log and one table of entries. Thread-safe; one run uses it at a time,
/// others may look on.
class RunState {
 public:
  /// Opens a state for a run, or makes it. Fails (CannotWrite) when another run has it, and for files that
  /// are no states.
  [[nodiscard]] static Result<std::unique_ptr<RunState>> openForRun(const QByteArray& path);
  /// Opens one that is there to look on; also where nothing can be written beside it.
  [[nodiscard]] static Result<std::unique_ptr<RunState>> openToRead(const QByteArray& path);

  [[nodiscard]] Result<std::optional<RunEntry>> find(const QByteArray& path);
  /// Says that these files are begun: on disk when it returns.
  Result<void> begin(const QList<RunEntry>& entries);
  /// Takes over what became of files. The results are brought to disk first, by their folder's file system
  /// as a whole; the caller has them in one.
  Result<void> finish(const QList<RunEntry>& entries);
  /// How many files the run will look at; nothing: it is not known.
  Result<void> noteTotal(std::optional<qint64> total);
  /// Takes the entries of another state that are newer than ours or new, and what it has left counts with
  /// what we have. Fails when it is not one.
  Result<void> merge(const QByteArray& other);

  /// For what only reads: see state_summary.h.
  [[nodiscard]] Database& database() { return database_; }

 private:
  RunState(FileDescriptor lock, Database database);
  static Result<std::unique_ptr<RunState>> open(const QByteArray& path, FileDescriptor lock, bool forRun);
  static Result<std::unique_ptr<RunState>> of(Result<Database> database, FileDescriptor lock, bool forRun);
  Result<void> write(const QList<RunEntry>& entries);
  Result<void> removeLeftovers();
  bool noteMerged(const StateSummary& ours, const StateSummary& theirs, const QByteArray& other);

  // Released last: closing any descriptor of a file drops what SQLite has locked in it.
  FileDescriptor lock_;
  std::mutex mutex_;
  Database database_;
  Statement find_, write_;
};

/// The columns of an entry in the order of readEntry().
inline constexpr char entryColumns[] =
    "path, settings, size, time, content, outcome, sentence, seconds, memory, changed, output, output_size, "
    "output_time, output_content, finished";
[[nodiscard]] RunEntry readEntry(const Statement& row);

}  // namespace norvex
