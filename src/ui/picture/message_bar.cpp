#include "ui/picture/message_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/localized_string.h"
#include "ui/style/floating_card.h"
#include "ui/style/quiet_text.h"

namespace norvex {

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent),
      text_(new QLabel(this)),
      details_(new QLabel(this)),
      showDetails_(new QToolButton(this)),
      action_(new QPushButton(this)),
      other_(new QPushButton(this)),
      close_(new QToolButton(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 8, 8, 8);
  row->setSpacing(10);
  for (QLabel* label : {text_, details_}) {
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  makeQuiet(*details_);
  details_->hide();
  auto* texts = new QVBoxLayout;
  texts->setSpacing(4);
  texts->addWidget(text_);
  texts->addWidget(details_);
  row->addLayout(texts, 1);
  row->addWidget(showDetails_);
  row->addWidget(action_);
  row->addWidget(other_);
  showDetails_->setObjectName(QStringLiteral("detailsButton"));
  showDetails_->setText(localizedString("Details"));
  showDetails_->setToolTip(localizedString("What the library that reads the picture says"));
  showDetails_->setCheckable(true);
  showDetails_->setAutoRaise(true);
  connect(showDetails_, &QToolButton::toggled, details_, &QWidget::setVisible);
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
  connect(other_, &QPushButton::clicked, this, [this] {
    clearMessage();
    emit otherChosen();
  });
  hide();
}

void MessageBar::showMessage(Kind kind, const QString& text, const QString& action, const QString& details,
                             const QString& other) {
  kind_ = kind;
  text_->setText(text);
  showDetails_->setChecked(false);
  showDetails_->setVisible(!details.isEmpty());
  details_->setText(details);
  action_->setText(action);
  action_->setVisible(!action.isEmpty());
  other_->setText(other);
  other_->setVisible(!other.isEmpty());
  setAccessibleName(text);
  show();
  update();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void MessageBar::clearMessage() {
  text_->clear();
  details_->clear();
  hide();
}

QString MessageBar::details() const {
  return details_->text();
}

QString MessageBar::message() const {
  return text_->text();
}

void MessageBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor fill = kind_ == Kind::Warning ? warningFill(palette()) : informationFill(palette());
  drawFloatingCard(painter, rect(), fill, palette());
}

}  // namespace norvex
