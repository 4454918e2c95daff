// Controls that are seen on a dark ground.
#pragma once

#include <QProxyStyle>

namespace norvex {

/// The platform's style makes its frames darker than the ground, where nobody sees them on a dark one, and
/// nothing is darker than black. In dark schemes, and only there, a line is drawn around what can be worked,
/// on black in the colour of the text; what is greyed out or stands in an empty field is grey and not black.
/// Looks at the palette of what it draws, so that a change of scheme needs nothing. Buttons of dialogs have
/// texts and no icons.
class OutlinedStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override;
  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
};

/// True if a frame that is darker than the ground could hardly be told from it.
[[nodiscard]] bool needsOutlines(const QPalette& palette);

}  // namespace norvex
