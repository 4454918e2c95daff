// The size of a selection, written beside it.
#pragma once

#include <QString>

class QPainter;
class QRectF;

namespace norvex {

/// Draws `text` on a dark ground below the lower right corner of `selection`, inside `seen` (both in the
/// painter's coordinates, y down): where there is no room below, into the selection.
void drawSelectionLabel(QPainter& painter, const QRectF& selection, const QRectF& seen, const QString& text);

}  // namespace norvex
