#include "ui/style/quiet_text.h"

#include <QPalette>
#include <QWidget>

namespace norvex {

QColor quietTextColor(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const QColor ground = palette.color(QPalette::Active, QPalette::Window);
  const auto mix = [](int a, int b) { return (2 * a + b) / 3; };
  return QColor(mix(text.red(), ground.red()), mix(text.green(), ground.green()),
                mix(text.blue(), ground.blue()));
}

void makeQuiet(QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  const QPalette source = parent ? parent->palette() : widget.palette();
  QPalette palette = widget.palette();
  if (palette.color(QPalette::Active, QPalette::WindowText) == quietTextColor(source)) return;
  palette.setColor(QPalette::WindowText, quietTextColor(source));
  widget.setPalette(palette);
}

bool isDarkScheme(const QPalette& palette) {
  return palette.color(QPalette::Window).lightnessF() < 0.5;
}

}  // namespace norvex
