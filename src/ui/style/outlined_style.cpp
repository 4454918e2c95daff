#include "ui/style/outlined_style.h"

#include <QPainter>
#include <QPalette>
#include <QStyleOption>

namespace norvex {
namespace {

void outline(QPainter& painter, const QStyleOption& option, bool round = false) {
  const bool enabled = option.state & QStyle::State_Enabled;
  QColor line = option.palette.color(option.state & QStyle::State_HasFocus ? QPalette::Highlight
                                                                           : QPalette::WindowText);
  if (!enabled) line.setAlphaF(0.5F);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(line, 1));
  painter.setBrush(Qt::NoBrush);
  const QRectF edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = round ? edge.width() / 2 : 3;
  painter.drawRoundedRect(edge, radius, radius);
  painter.restore();
}

}  // namespace

bool needsOutlines(const QPalette& palette) {
  return palette.color(QPalette::Window).value() < 24;
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (!needsOutlines(option->palette)) return;
  switch (element) {
    case PE_PanelButtonCommand:
    case PE_FrameLineEdit:
    case PE_IndicatorCheckBox:
      return outline(*painter, *option);
    case PE_IndicatorRadioButton:
      return outline(*painter, *option, true);
    default:
      return;
  }
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const bool framed = control == CC_SpinBox || control == CC_ComboBox;
  if (framed && needsOutlines(option->palette)) outline(*painter, *option);
}

}  // namespace norvex
