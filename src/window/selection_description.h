// The selection in words, for screen readers, and in numbers.
#pragma once

#include <QString>

namespace norvex {

class WindowParts;

/// A sentence in the user's language from the three texts of a selection report: pairs of numbers separated
/// by white space, or empty. Pure; any thread.
[[nodiscard]] QString selectionDescription(const QString& start, const QString& end, const QString& area);

/// The same texts in the fields of `parts`, and the description where screen readers look for it. Main
/// thread.
void showSelection(WindowParts& parts, const QString& start, const QString& end, const QString& area);

}  // namespace norvex
