// A run's words on one file, as a line of JSON.
#pragma once

#include <QByteArray>

#include "cli/archive/file_result.h"

namespace norvex {

/// The object that the command writes for the file with `line`, its number among the names of the run, and
/// `outcome`: "done", "unchanged", "failed-before", "failed", "set-aside", "not-written", "interrupted" or
/// "passed-over". Where the command has written none: `file` and `error`. `fileBytes`, in base64, beside a
/// name that is no UTF-8. Ends with a line feed.
[[nodiscard]] QByteArray resultLine(const FileResult& result);

}  // namespace norvex
