// The manual page of the program, made from the table of commands.
#pragma once

#include <QString>

namespace norvex {

/// `norvex(1)` as man reads it (roff with the macros of an): every command with its options, the exit codes,
/// the variables of the environment.
[[nodiscard]] QString manualPage();

}  // namespace norvex
