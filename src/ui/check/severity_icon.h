// A sign for each severity, which is told apart without its colour as well.
#pragma once

#include <QPixmap>

#include "check/finding.h"

namespace norvex {

/// A disc with a cross, a triangle with an exclamation mark, or a disc with an i; `side` in logical pixels.
/// Colours keep their contrast on light and on dark ground.
[[nodiscard]] QPixmap severityIcon(Severity severity, int side, double devicePixelRatio, bool dark);
/// The sign of a picture in which nothing was found: a disc with a tick.
[[nodiscard]] QPixmap soundIcon(int side, double devicePixelRatio, bool dark);

}  // namespace norvex
