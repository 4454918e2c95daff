// The look of cards that lie over the picture.
#pragma once

#include <QColor>

class QPainter;
class QPalette;
class QRect;

namespace norvex {

/// A rounded rectangle in `fill` with a thin line around it.
void drawFloatingCard(QPainter& painter, const QRect& rect, const QColor& fill, const QPalette& palette);

/// What such a card fills itself with when it says or asks something, and when it warns.
[[nodiscard]] QColor informationFill(const QPalette& palette);
[[nodiscard]] QColor warningFill(const QPalette& palette);

}  // namespace norvex
