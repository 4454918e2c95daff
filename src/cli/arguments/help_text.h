// The help of the program and of each command, from the table.
#pragma once

#include <QString>

#include "cli/arguments/command_table.h"

namespace norvex {

/// Lines of at most 100 characters. For Command::Main: all commands and exit codes.
[[nodiscard]] QString helpText(Command command);
/// One line.
[[nodiscard]] QString versionText();

}  // namespace norvex
