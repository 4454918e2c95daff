// Completion scripts for shells, from the table.
#pragma once

#include <QString>

namespace norvex {

/// The script for "bash", "zsh" or "fish"; empty for any other name.
[[nodiscard]] QString completionScript(const QString& shell);

}  // namespace norvex
