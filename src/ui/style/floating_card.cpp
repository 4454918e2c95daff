#include "ui/style/floating_card.h"

#include <QPainter>
#include <QPalette>

#include "ui/style/quiet_text.h"

namespace norvex {

void drawFloatingCard(QPainter& painter, const QRect& rect, const QColor& fill, const QPalette& palette) {
  painter.setRenderHint(QPainter::Antialiasing);
  QColor line = palette.color(QPalette::WindowText);
  line.setAlphaF(0.18f);
  painter.setPen(line);
  painter.setBrush(fill);
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

QColor informationFill(const QPalette& palette) {
  return isDarkScheme(palette) ? QColor(0x1f, 0x36, 0x4d) : QColor(0xe6, 0xf1, 0xfc);
}

QColor warningFill(const QPalette& palette) {
  return isDarkScheme(palette) ? QColor(0x4a, 0x3a, 0x16) : QColor(0xff, 0xf4, 0xd6);
}

}  // namespace norvex
