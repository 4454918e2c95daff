// Secondary text: readable, but not what the eye should meet first.
#pragma once

#include <QColor>

class QPalette;
class QWidget;

namespace norvex {

/// Text colour mixed two to one with the window colour; keeps a contrast of more than 4.5 : 1 in both
/// schemes.
[[nodiscard]] QColor quietTextColor(const QPalette& palette);
/// Gives the widget that colour of its parent's palette, and keeps it when the desktop goes from one scheme
/// to another.
void makeQuiet(QWidget& widget);
/// True if a palette belongs to a dark scheme.
[[nodiscard]] bool isDarkScheme(const QPalette& palette);

}  // namespace norvex
