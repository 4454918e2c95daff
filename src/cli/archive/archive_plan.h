// The task of a run over an archive, checked before any work begins.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

#include "base/cancel_token.h"
#include "cli/archive/names/listed_name.h"
#include "cli/archive/names/name_filter.h"
#include "cli/archive/output_names.h"
#include "cli/arguments/arguments.h"

namespace norvex {

/// A part of an archive, so that several runs share it without speaking to each other.
struct Shard {
  int index = 1, count = 1;  ///< from 1
  bool byContent = false;

  /// True if a file belongs to it by the hash of its place or of its bytes.
  [[nodiscard]] bool holds(const QByteArray& hashed) const;
};

struct ArchivePlan {
  Arguments arguments;
  std::optional<QByteArray> list, tree;  ///< at least one of them, or files among the arguments
  QByteArray base;
  NameFilter filter;
  std::optional<OutputNames> outputs;  ///< nothing: the command writes to standard output
  QByteArray state, report;            ///< empty: none
  QByteArray settings;                 ///< hash of all options that a result follows from
  Shard shard;
  int jobs = 1;
  int memoryMiB = 1024;    ///< that one process may take
  int memoryTotalMiB = 0;  ///< 0: not bounded
  bool jsonLines = false, unordered = false, retryFailed = false, quiet = false;

  /// True if a file belongs to the part of this run; reads it where its bytes decide.
  [[nodiscard]] bool isOurs(const ListedName& name) const;
  /// True if the names can be gone through twice.
  [[nodiscard]] bool isRewindable() const;
  /// The names from the first one. CannotRead.
  [[nodiscard]] Result<std::unique_ptr<NameSource>> names(const CancelToken& cancel) const;
};

/// A plan, or why the arguments make none in one sentence.
struct ReadArchivePlan {
  ArchivePlan plan;
  QString complaint;  ///< empty: nothing is wrong
};

[[nodiscard]] ReadArchivePlan readArchivePlan(const Arguments& arguments);

/// A path from the root, of one from the folder where the program was started.
[[nodiscard]] QByteArray absolutePath(const QByteArray& path);

}  // namespace norvex
