#include "ui/picture/page_edge.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPolygonF>

namespace norvex {
namespace {

constexpr double kFall = 2;  // of the shadow, below the page
constexpr double kFarthest = 1.0e6;

}  // namespace

void drawPageEdge(QPainter& painter, const QPolygonF& page, const QPalette& palette) {
  const QRectF bounds = page.boundingRect();
  if (!(bounds.width() < kFarthest && bounds.height() < kFarthest)) return;
  QPainterPath paper;
  paper.addPolygon(page);
  paper.closeSubpath();
  QPainterPath outside;
  outside.addRect(bounds.adjusted(-20, -20, 20, 20));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipPath(outside.subtracted(paper), Qt::IntersectClip);
  painter.setBrush(Qt::NoBrush);
  for (const double width : {12.0, 8.0, 4.0}) {
    painter.setPen(QPen(QColor(0, 0, 0, 14), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(paper.translated(0, kFall));
  }
  QColor line = palette.color(QPalette::WindowText);
  line.setAlphaF(0.3F);
  painter.setPen(QPen(line, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));  // one half of it is clipped
  painter.drawPath(paper);
  painter.restore();
}

}  // namespace norvex
