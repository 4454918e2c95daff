// How the dial looks.
#include <QPaintEvent>
#include <QPainter>

#include <cmath>
#include <numbers>

#include "ui/controls/zy_dial_knob.h"
#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

QColor withAlpha(QColor color, double alpha) {
  color.setAlphaF(static_cast<float>(alpha));
  return color;
}

}  // namespace

void ZyDialKnob::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (background_) painter.fillRect(rect(), *background_);
  if (!isEnabled()) painter.setOpacity(0.4);
  const QRectF area = QRectF(rect()).adjusted(1, 1, -1, -1);
  const double side = std::min(area.width(), area.height());
  const QPointF middle = area.center();
  drawMarks(painter, middle, side / 2);
  const double face = side / 2 - markLength_ - 4;
  drawFace(painter, middle, face);
  drawNeedle(painter, middle, face);
}

void ZyDialKnob::drawMarks(QPainter& painter, QPointF middle, double radius) const {
  // Black is the colour of ink, not a wish for invisible marks on a dark window.
  const bool ink = marks_ == QColor(Qt::black);
  const QColor color = ink ? palette().color(QPalette::WindowText) : marks_;
  for (int degrees = 0; degrees < 360; degrees += 15) {
    const bool quarter = degrees % 90 == 0, half = degrees % 45 == 0;
    const double length = quarter ? markLength_ : markLength_ * (half ? 0.8 : 0.6);
    painter.setPen(QPen(withAlpha(color, quarter ? 0.85
                                         : half  ? 0.55
                                                 : 0.3),
                        quarter ? 1.6 : 1.2, Qt::SolidLine, Qt::RoundCap));
    const double turn = degrees * std::numbers::pi / 180.0;
    const QPointF out(std::sin(turn), -std::cos(turn));
    painter.drawLine(middle + out * (radius - 0.8), middle + out * (radius - length));
  }
}

void ZyDialKnob::drawFace(QPainter& painter, QPointF middle, double radius) const {
  const bool dark = isDarkScheme(palette());
  QLinearGradient shade(middle - QPointF(0, radius), middle + QPointF(0, radius));
  shade.setColorAt(0, dark ? QColor(0x55, 0x56, 0x5a) : QColor(0xff, 0xff, 0xff));
  shade.setColorAt(1, dark ? QColor(0x43, 0x44, 0x48) : QColor(0xf1, 0xf1, 0xf3));
  const bool focused = hasFocus();
  const QColor rim = focused ? palette().color(QPalette::Highlight)
                             : withAlpha(palette().color(QPalette::WindowText), dark ? 0.35 : 0.22);
  painter.setPen(QPen(rim, focused ? 2 : 1));
  painter.setBrush(shade);
  painter.drawEllipse(middle, radius, radius);
  if (!bordered_) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(withAlpha(palette().color(QPalette::WindowText), 0.25), 1));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void ZyDialKnob::drawNeedle(QPainter& painter, QPointF middle, double radius) const {
  const double degrees = clockwise_ ? degreeValue() : -degreeValue();
  const double turn = degrees * std::numbers::pi / 180.0;
  const QPointF out(std::sin(turn), -std::cos(turn));
  const QColor accent =
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Highlight);
  painter.setPen(QPen(accent, 3, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(middle + out * (radius * 0.42), middle + out * (radius - 5));
}

}  // namespace norvex
