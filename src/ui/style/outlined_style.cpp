#include "ui/style/outlined_style.h"

#include <QFrame>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>

#include "ui/style/quiet_text.h"

namespace norvex {
namespace {

bool isBlack(const QPalette& palette) {
  return palette.color(QPalette::Active, QPalette::Window).value() < 24;
}

/// The text's colour, mixed with so much of the ground, 0 … 1.
QColor paler(const QPalette& palette, double share) {
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const QColor ground = palette.color(QPalette::Active, QPalette::Window);
  const auto mix = [share](float a, float b) { return float(a * (1 - share) + b * share); };
  return QColor::fromRgbF(mix(text.redF(), ground.redF()), mix(text.greenF(), ground.greenF()),
                          mix(text.blueF(), ground.blueF()));
}

void outline(QPainter& painter, const QStyleOption& option, bool round = false) {
  const bool enabled = option.state & QStyle::State_Enabled;
  // What is greyed out may be as dark as the ground in the palette's own colours.
  QColor line = option.state & QStyle::State_HasFocus
                    ? option.palette.color(QPalette::Active, QPalette::Highlight)
                    : paler(option.palette, isBlack(option.palette) ? 0 : 0.5);
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
  return isDarkScheme(palette);
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
    case PE_PanelButtonTool:  // one that is switched on
      if (option->state & State_On) outline(*painter, *option);
      return;
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

void OutlinedStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  const bool framed = element == CE_ShapedFrame && frame && frame->frameShape == QFrame::StyledPanel;
  if (framed && needsOutlines(option->palette)) outline(*painter, *option);
}

int OutlinedStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* result) const {
  // Half of them have none, and those of the others are made for one scheme.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, result);
}

void OutlinedStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  if (!needsOutlines(palette)) return;
  const QColor quiet = paler(palette, 0.4);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, quiet);
  palette.setColor(QPalette::PlaceholderText, quiet);
  if (!isBlack(palette)) return;
  // What style sheets take for lines, and for the ground of what is switched on.
  palette.setColor(QPalette::Mid, quiet);
  palette.setColor(QPalette::Midlight, QColor(0x38, 0x38, 0x38));
}

}  // namespace norvex
