#include "ui/pages/page_switch.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

#include "base/localized_string.h"
#include "ui/style/quiet_text.h"

namespace norvex {

PageSwitch::PageSwitch(QWidget* parent)
    : QWidget(parent), back_(nullptr), number_(new QSpinBox(this)), count_(new QLabel(this)), on_(nullptr) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  back_ = addButton(QStringLiteral("\u2039"), localizedString("Previous Page"), -1);
  row->addWidget(number_);
  row->addWidget(count_);
  makeQuiet(*count_);
  on_ = addButton(QStringLiteral("\u203a"), localizedString("Next Page"), 1);
  number_->setButtonSymbols(QAbstractSpinBox::NoButtons);
  number_->setAlignment(Qt::AlignRight);
  number_->setKeyboardTracking(false);  // a number that is being typed is none yet
  number_->setAccessibleName(localizedString("Page"));
  number_->setToolTip(localizedString("Page"));
  connect(number_, &QSpinBox::valueChanged, this, [this](int number) { emit pageChosen(number - 1); });
  number_->installEventFilter(this);
  setPages(0, 1);
}

QToolButton* PageSwitch::addButton(const QString& arrow, const QString& name, int step) {
  auto* button = new QToolButton(this);
  button->setText(arrow);
  button->setAutoRaise(true);
  button->setToolTip(name);
  button->setAccessibleName(name);
  layout()->addWidget(button);
  connect(button, &QToolButton::clicked, this,
          [this, step] { emit pageChosen(number_->value() - 1 + step); });
  return button;
}

void PageSwitch::setPages(int shown, int count) {
  const QSignalBlocker quiet(number_);
  number_->setRange(1, count);
  number_->setValue(shown + 1);
  count_->setText(localizedString("of %1").arg(count));
  back_->setEnabled(shown > 0);
  on_->setEnabled(shown + 1 < count);
  setVisible(count > 1);
}

void PageSwitch::editNumber() {
  number_->setFocus(Qt::ShortcutFocusReason);
  number_->selectAll();
}

bool PageSwitch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool takesBack = key == Qt::Key_Escape;
  if (!takesBack && key != Qt::Key_Return && key != Qt::Key_Enter)
    return QWidget::eventFilter(watched, event);
  event->accept();
  if (event->type() == QEvent::ShortcutOverride) return true;
  if (takesBack)
    number_->setValue(number_->value());
  else
    number_->interpretText();
  emit leftNumber();
  return true;
}

}  // namespace norvex
