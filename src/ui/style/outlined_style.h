// Controls that are seen on the darkest ground.
#pragma once

#include <QProxyStyle>

namespace norvex {

/// The platform's style makes its frames darker than the ground, and on black there is nothing darker: there,
/// and only there, a line in the colour of the text is drawn around what can be worked, and what is greyed
/// out is grey and not black. Looks at the palette of what it draws, so that a change of scheme needs
/// nothing. Buttons of dialogs have texts and no icons.
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

/// True if a frame that is darker than the ground could not be told from it.
[[nodiscard]] bool needsOutlines(const QPalette& palette);

}  // namespace norvex
