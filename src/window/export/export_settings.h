// The last export's choices, for the next one.
#pragma once

#include "ui/export/export_choice.h"

namespace norvex {

/// The stored choice; the usual one for what was not, or is none any more. Kept in a file of its own in the
/// user's configuration folder.
[[nodiscard]] ExportChoice storedExportChoice();
void storeExportChoice(const ExportChoice& choice);

}  // namespace norvex
