#include "ui/style/floating_card.h"

#include <QPainter>
#include <QPalette>

namespace norvex {

void drawFloatingCard(QPainter& painter, const QRect& rect, const QColor& fill, const QPalette& palette) {
  painter.setRenderHint(QPainter::Antialiasing);
  QColor line = palette.color(QPalette::WindowText);
  line.setAlphaF(0.18f);
  painter.setPen(line);
  painter.setBrush(fill);
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

}  // namespace norvex
