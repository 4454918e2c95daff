// What goes into a run: the files, and what is known of them without work.
#pragma once

#include <functional>
#include <optional>

#include "base/result.h"
#include "cli/archive/archive_plan.h"
#include "cli/archive/file_result.h"
#include "cli/archive/state/output_register.h"
#include "cli/archive/state/run_state.h"
#include "cli/archive/work_window.h"

namespace norvex {

/// Puts the files of a plan into the window, in the order of their names: those whose results are known as
/// results, the others as tasks, which the state has as begun before. Used on the thread that reads names;
/// what is borrowed outlives it.
class WorkFeed {
 public:
  using BreakOff = std::function<void(const Error& error, const QByteArray& path)>;
  /// `state` may be null; `claims`: null where no names of results can meet. `breakOff` ends the run.
  WorkFeed(const ArchivePlan& plan, RunState* state, OutputRegister* claims, WorkWindow& window,
           BreakOff breakOff);

  /// Until there are no more names, or the window wants nothing more.
  void feed(NameSource& names);

 private:
  bool feedSome(NameSource& names);
  std::optional<FileResult> knownBefore(FileTask& task);
  [[nodiscard]] std::optional<FileResult> stateAnswer(FileTask& task);

  const ArchivePlan& plan_;
  RunState* const state_;
  OutputRegister* const claims_;
  WorkWindow& window_;
  const BreakOff breakOff_;
  qint64 number_ = 0;
};

}  // namespace norvex
