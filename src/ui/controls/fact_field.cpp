#include "ui/controls/fact_field.h"

#include <QAction>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

#include "ui/controls/value_copying.h"
#include "ui/style/quiet_text.h"

namespace norvex {

FactField::FactField(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setFrame(false);
  setStyleSheet(QStringLiteral("QLineEdit { background: transparent; padding: 0; border: none; }"));
  setMinimumWidth(40);
  makeValueCopyable(*this);
}

void FactField::paintEvent(QPaintEvent* event) {
  if (hasFocus()) {
    QPainter mark(this);
    mark.fillRect(QRect(0, height() - 2, width(), 2), palette().color(QPalette::Highlight));
  }
  const int room = width() - 4 - roomOfButtons();
  const bool fits = fontMetrics().horizontalAdvance(text()) <= room;
  if (!text().isEmpty() && (fits || hasFocus())) return QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setPen(text().isEmpty() ? quietTextColor(palette()) : palette().color(QPalette::Text));
  const QString shown =
      text().isEmpty() ? QStringLiteral("\u2013") : fontMetrics().elidedText(text(), Qt::ElideRight, room);
  painter.drawText(rect().adjusted(2, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   shown);
}

int FactField::roomOfButtons() const {
  const QList<QAction*> all = actions();
  const bool shown =
      std::any_of(all.cbegin(), all.cend(), [](const QAction* action) { return action->isVisible(); });
  return shown ? height() : 0;  // the buttons in a line edit are as wide as it is high
}

}  // namespace norvex
