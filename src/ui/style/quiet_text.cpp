#include "ui/style/quiet_text.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QWidget>

namespace norvex {
namespace {

const QString kFollower = QStringLiteral("quietColor");

/// Gives its widget the quiet colour again whenever that would be another one. The widget's own event comes
/// when its parent has the new palette; the parent's comes before its children have it.
class QuietColor final : public QObject {
 public:
  explicit QuietColor(QWidget& widget) : QObject(&widget) {
    setObjectName(kFollower);
    widget.installEventFilter(this);
    apply(widget);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
      apply(*static_cast<QWidget*>(watched));
    return false;
  }

 private:
  static void apply(QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    const QColor quiet = quietTextColor(parent ? parent->palette() : QApplication::palette(&widget));
    QPalette palette = widget.palette();
    if (palette.color(QPalette::Active, QPalette::WindowText) == quiet) return;
    palette.setColor(QPalette::WindowText, quiet);
    widget.setPalette(palette);
  }
};

}  // namespace

QColor quietTextColor(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const QColor ground = palette.color(QPalette::Active, QPalette::Window);
  const auto mix = [](int a, int b) { return (2 * a + b) / 3; };
  return QColor(mix(text.red(), ground.red()), mix(text.green(), ground.green()),
                mix(text.blue(), ground.blue()));
}

void makeQuiet(QWidget& widget) {
  // A child of the widget: it goes with it, and a second call finds it.
  if (!widget.findChild<QObject*>(kFollower, Qt::FindDirectChildrenOnly)) new QuietColor(widget);
}

bool isDarkScheme(const QPalette& palette) {
  return palette.color(QPalette::Window).lightnessF() < 0.5;
}

}  // namespace norvex
