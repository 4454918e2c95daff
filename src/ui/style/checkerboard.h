// The quiet pattern that stands for "nothing is painted here".
#pragma once

#include <QColor>

class QPainter;
class QPalette;
class QRectF;

namespace norvex {

/// Fills `rect` with squares of 8 logical pixels in two neighbouring greys that follow the palette's
/// brightness. The pattern is anchored at the painter's origin, so neighbouring fills join without a seam.
void drawCheckerboard(QPainter& painter, const QRectF& rect, const QPalette& palette);

}  // namespace norvex
