// Line icons that take the colour of the text around them, at every size and scale factor.
#pragma once

#include <QIcon>

namespace norvex {

enum class Symbol {
  Inspector,
  Copy,
  Print,
  SaveTo,
  SaveAs,
  ZoomIn,
  ZoomOut,
  Fit,
  RotateLeft,
  RotateRight,
  Open,
  Reload
};

/// Drawn when it is shown, in the application palette's text colour, paler when disabled.
[[nodiscard]] QIcon symbolicIcon(Symbol symbol);

}  // namespace norvex
