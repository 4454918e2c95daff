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

struct ConvertPlan {
  QList<ConvertTask> tasks;  ///< in the order of the files
  ConversionOptions options;
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
