// Text from strangers as the value of a structuring comment.
#pragma once

#include <QString>

namespace norvex {

/// `text` as it may stand behind the keyword of a comment line: each line end (LF, CR, CR LF, VT, FF, NEL,
/// U+2028, U+2029) and each tab is one blank, every other control character (C0, DEL, C1) is left out;
/// nothing else changes. What followed a line end would be run as a program.
[[nodiscard]] QString commentValue(const QString& text);

}  // namespace norvex
