#include "ui/picture/selection_label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>

#include <algorithm>

namespace norvex {
namespace {

constexpr double kGap = 4, kInset = 5;  // logical pixels

}  // namespace

void drawSelectionLabel(QPainter& painter, const QRectF& selection, const QRectF& seen, const QString& text) {
  const QFontMetricsF metrics(painter.font());
  const QSizeF size(metrics.horizontalAdvance(text) + 2 * kInset, metrics.height() + 4);
  if (size.width() > seen.width() || size.height() > seen.height()) return;
  double x = selection.right() - size.width(), y = selection.bottom() + kGap;
  if (y + size.height() > seen.bottom())
    y = std::min(selection.bottom(), seen.bottom()) - kGap - size.height();
  x = std::clamp(x, seen.left(), seen.right() - size.width());
  y = std::clamp(y, seen.top(), seen.bottom() - size.height());
  const QRectF ground(QPointF(x, y), size);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(20, 24, 32, 200));
  painter.drawRoundedRect(ground, 3, 3);
  painter.setPen(Qt::white);
  painter.drawText(ground, Qt::AlignCenter, text);
  painter.restore();
}

}  // namespace norvex
