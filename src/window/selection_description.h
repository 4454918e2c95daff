// The selection in words, for screen readers.
#pragma once

#include <QString>

namespace norvex {

/// A sentence in the user's language from the three texts of a selection report: pairs of numbers separated
/// by white space, or empty. Pure; any thread.
[[nodiscard]] QString selectionDescription(const QString& start, const QString& end, const QString& area);

}  // namespace norvex
