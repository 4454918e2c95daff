#include "ui/check/severity_icon.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace norvex {
namespace {

// Everything is drawn in a square of 16 units.

QPainterPath triangle() {
  QPainterPath path(QPointF(8, 1.6));
  path.lineTo(15, 14);
  path.lineTo(1, 14);
  path.closeSubpath();
  return path;
}

QPainterPath disc() {
  QPainterPath path;
  path.addEllipse(QPointF(8, 8), 7, 7);
  return path;
}

QPainterPath strokes(std::initializer_list<QLineF> lines) {
  QPainterPath path;
  for (const QLineF& line : lines) {
    path.moveTo(line.p1());
    path.lineTo(line.p2());
  }
  return path;
}

QPixmap drawn(int side, double ratio, const QPainterPath& ground, const QColor& fill,
              const QPainterPath& sign) {
  QPixmap pixmap(int(std::ceil(side * ratio)), int(std::ceil(side * ratio)));
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / 16.0, side / 16.0);
  painter.setPen(QPen(fill, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(fill);
  painter.drawPath(ground);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPath(sign);
  return pixmap;
}

}  // namespace

QPixmap severityIcon(Severity severity, int side, double devicePixelRatio, bool dark) {
  switch (severity) {
    case Severity::Error:
      return drawn(side, devicePixelRatio, disc(), dark ? QColor(222, 72, 84) : QColor(196, 36, 52),
                   strokes({{5.4, 5.4, 10.6, 10.6}, {10.6, 5.4, 5.4, 10.6}}));
    case Severity::Warning:
      return drawn(side, devicePixelRatio, triangle(), dark ? QColor(199, 128, 22) : QColor(178, 106, 0),
                   strokes({{8, 5.6, 8, 9.2}, {8, 11.9, 8, 11.95}}));
    case Severity::Note:
      break;
  }
  return drawn(side, devicePixelRatio, disc(), dark ? QColor(70, 132, 204) : QColor(40, 102, 178),
               strokes({{8, 7.4, 8, 11.4}, {8, 4.6, 8, 4.65}}));
}

QPixmap soundIcon(int side, double devicePixelRatio, bool dark) {
  return drawn(side, devicePixelRatio, disc(), dark ? QColor(62, 150, 96) : QColor(38, 126, 72),
               strokes({{4.9, 8.3, 7.2, 10.6}, {7.2, 10.6, 11.2, 5.6}}));
}

}  // namespace norvex
