#include "ui/picture/brief_note.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>

#include "ui/picture/zooming_scroll_area.h"
#include "ui/style/floating_card.h"

namespace norvex {

BriefNote::BriefNote(QWidget* parent) : QFrame(parent), label_(new QLabel(this)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(16, 8, 16, 8);
  label_->setTextFormat(Qt::PlainText);
  row->addWidget(label_);
  end_.setSingleShot(true);
  end_.setInterval(shownMs);
  connect(&end_, &QTimer::timeout, this, &QWidget::hide);
  hide();
}

void BriefNote::tell(ZoomingScrollArea& area, const QString& text) {
  auto* note = area.findChild<BriefNote*>();
  if (!note) {
    note = new BriefNote(&area);
    area.addCard(note, Qt::BottomEdge);
  }
  note->label_->setText(text);
  note->setAccessibleName(text);
  note->hide();  // it is placed for its text when it is shown
  note->show();
  note->end_.start();
  QAccessibleEvent alert(note, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

QString BriefNote::text() const {
  return label_->text();
}

void BriefNote::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFloatingCard(painter, rect(), palette().color(QPalette::Window), palette());
}

}  // namespace norvex
