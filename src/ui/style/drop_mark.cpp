#include "ui/style/drop_mark.h"

#include <QEvent>
#include <QPainter>

namespace norvex {
namespace {

constexpr int kWidth = 3;  // pixels
constexpr float kTint = 0.12F;

}  // namespace

DropMark::DropMark(QWidget& window) : QWidget(&window) {
  setObjectName(QStringLiteral("dropMark"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setGeometry(window.rect());
  window.installEventFilter(this);
  raise();
  show();
}

bool DropMark::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

void DropMark::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor colour = palette().color(QPalette::Highlight);
  QColor tint = colour;
  tint.setAlphaF(kTint);
  painter.fillRect(rect(), tint);
  painter.setPen(QPen(colour, kWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  constexpr double half = kWidth / 2.0;
  painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
}

}  // namespace norvex
