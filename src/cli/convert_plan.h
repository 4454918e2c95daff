// The request of `norvex convert`, checked before any work begins.
#pragma once

#include <QList>
#include <QString>

#include "cli/arguments/arguments.h"
#include "cli/conversion.h"

namespace norvex {

/// One file and where its conversion goes.
struct ConvertTask {
  QString file;    ///< "-": standard input
  QString output;  ///< "-": standard output
};

/// What became of a task.
struct ConvertedFile {
  QList<Conversion> conversions;  ///< one, or one a page where pages are asked for
};

struct ConvertPlan {
  QList<ConvertTask> tasks;  ///< in the order of the files
  ConversionOptions options;
  std::optional<PageList> pages;  ///< each to a file of its own: outputOfPage() of the task's
  int jobs = 1;
  bool force = false, json = false, quiet = false;
};

/// A plan, or why the arguments make none in one sentence.
struct ReadPlan {
  ConvertPlan plan;
  QString complaint;  ///< empty: nothing is wrong
};

[[nodiscard]] ReadPlan readConvertPlan(const Arguments& arguments);

}  // namespace norvex
