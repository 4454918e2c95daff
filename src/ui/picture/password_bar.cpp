#include "ui/picture/password_bar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

#include "base/localized_string.h"
#include "protocol/limits.h"
#include "ui/style/floating_card.h"

namespace norvex {

PasswordBar::PasswordBar(QWidget* parent)
    : QFrame(parent),
      question_(new QLabel(this)),
      password_(new QLineEdit(this)),
      open_(new QPushButton(localizedString("Open"), this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(14, 8, 8, 8);
  row->setSpacing(10);
  question_->setWordWrap(true);
  question_->setTextFormat(Qt::PlainText);
  password_->setObjectName(QStringLiteral("passwordField"));
  password_->setEchoMode(QLineEdit::Password);
  password_->setMaxLength(limits::maximumPasswordLength);
  password_->setPlaceholderText(localizedString("Password"));
  password_->setAccessibleName(localizedString("Password"));
  password_->setMinimumWidth(110);
  auto* close = new QToolButton(this);
  close->setText(QStringLiteral("\u2715"));
  close->setAutoRaise(true);
  close->setAccessibleName(localizedString("Dismiss"));
  close->setToolTip(close->accessibleName());
  row->addWidget(question_, 3);
  row->addWidget(password_, 2);
  row->addWidget(open_);
  row->addWidget(close);
  open_->setEnabled(false);
  connect(password_, &QLineEdit::textChanged, this,
          [this](const QString& text) { open_->setEnabled(!text.isEmpty()); });
  connect(password_, &QLineEdit::returnPressed, this, &PasswordBar::give);
  connect(open_, &QPushButton::clicked, this, &PasswordBar::give);
  connect(close, &QToolButton::clicked, this, &PasswordBar::dismiss);
  hide();
}

void PasswordBar::ask(bool wrong) {
  question_->setText(wrong ? localizedString("The password is wrong.")
                           : localizedString("The document is protected by a password."));
  setAccessibleName(question_->text());
  password_->clear();
  show();
  password_->setFocus(Qt::OtherFocusReason);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void PasswordBar::dismiss() {
  password_->clear();
  hide();
}

QString PasswordBar::question() const {
  return isHidden() ? QString() : question_->text();
}

void PasswordBar::give() {
  const QString password = password_->text();
  if (password.isEmpty()) return;
  dismiss();
  emit passwordGiven(password);
}

bool PasswordBar::event(QEvent* event) {
  // The window's commands have this key too; while something is typed here it is about the question.
  if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    event->accept();
    return true;
  }
  return QFrame::event(event);
}

void PasswordBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return dismiss();
  QFrame::keyPressEvent(event);
}

void PasswordBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFloatingCard(painter, rect(), informationFill(palette()), palette());
}

}  // namespace norvex
