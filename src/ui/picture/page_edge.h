// Where the picture ends and the ground around it begins.
#pragma once

class QPainter;
class QPalette;
class QPolygonF;

namespace norvex {

/// A thin line around `page` and a soft shadow below it, both outside of it; logical pixels.
void drawPageEdge(QPainter& painter, const QPolygonF& page, const QPalette& palette);

}  // namespace norvex
