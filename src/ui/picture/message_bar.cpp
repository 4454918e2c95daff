#include "ui/picture/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include "base/localized_string.h"
#include "ui/style/floating_card.h"
#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

QColor barColor(MessageBar::Kind kind, bool dark) {
  if (kind == MessageBar::Kind::Warning) return dark ? QColor(0x4a, 0x3a, 0x16) : QColor(0xff, 0xf4, 0xd6);
  return dark ? QColor(0x1f, 0x36, 0x4d) : QColor(0xe6, 0xf1, 0xfc);
}

}  // namespace

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), action_(new QPushButton(this)), close_(new QToolButton(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 8, 8, 8);
  row->setSpacing(10);
  text_->setWordWrap(true);
  text_->setTextFormat(Qt::PlainText);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row->addWidget(text_, 1);
  row->addWidget(action_);
  row->addWidget(close_);
  close_->setText(QStringLiteral("\u2715"));
  close_->setAutoRaise(true);
  close_->setAccessibleName(localizedString("Dismiss"));
  close_->setToolTip(close_->accessibleName());
  connect(close_, &QToolButton::clicked, this, &MessageBar::clearMessage);
  connect(action_, &QPushButton::clicked, this, [this] {
    clearMessage();
    emit actionChosen();
  });
  hide();
}

void MessageBar::showMessage(Kind kind, const QString& text, const QString& action) {
  kind_ = kind;
  text_->setText(text);
  action_->setText(action);
  action_->setVisible(!action.isEmpty());
  setAccessibleName(text);
  show();
  update();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void MessageBar::clearMessage() {
  text_->clear();
  hide();
}

QString MessageBar::message() const {
  return text_->text();
}

void MessageBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFloatingCard(painter, rect(), barColor(kind_, isDarkScheme(palette())), palette());
}

}  // namespace norvex
