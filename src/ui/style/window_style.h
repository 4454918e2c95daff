// The quiet look of the document window and its inspector, on top of the platform's style.
#pragma once

#include <QString>

namespace norvex {

/// Style sheet for a document window and for an inspector. Colours are the palette's, so both schemes are
/// served.
[[nodiscard]] QString windowStyleSheet();

}  // namespace norvex
