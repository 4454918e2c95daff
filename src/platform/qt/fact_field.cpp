#include "platform/qt/fact_field.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/qt/quiet_text.h"

namespace norvex {

FactField::FactField(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setFrame(false);
  setStyleSheet(QStringLiteral("QLineEdit { background: transparent; padding: 0; border: none; }"));
  setMinimumWidth(40);
}

void FactField::paintEvent(QPaintEvent* event) {
  const bool fits = fontMetrics().horizontalAdvance(text()) <= width() - 4;
  if (!text().isEmpty() && (fits || hasFocus())) return QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setPen(text().isEmpty() ? quietTextColor(palette()) : palette().color(QPalette::Text));
  const QString shown = text().isEmpty() ? QStringLiteral("\u2013") : fontMetrics().elidedText(text(), Qt::ElideRight, width() - 4);
  painter.drawText(rect().adjusted(2, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

}  // namespace norvex
