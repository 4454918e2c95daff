#include "ui/source/source_find_bar.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPaintEvent>
#include <QPainter>
#include <QToolButton>

#include "base/localized_string.h"
#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

QToolButton* barButton(QWidget* bar, const QString& name) {
  auto* button = new QToolButton(bar);
  button->setAutoRaise(true);
  button->setAccessibleName(name);
  button->setToolTip(name);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace

SourceFindBar::SourceFindBar(QWidget* parent)
    : QWidget(parent),
      needle_(new QLineEdit(this)),
      outcome_(new QLabel(this)),
      previous_(barButton(this, localizedString("Previous"))),
      next_(barButton(this, localizedString("Next"))) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 6, 6, 7);
  row->setSpacing(4);
  needle_->setPlaceholderText(localizedString("Find"));
  needle_->setAccessibleName(localizedString("Find"));
  needle_->setClearButtonEnabled(true);
  makeQuiet(*outcome_);
  outcome_->setTextFormat(Qt::PlainText);
  outcome_->setAccessibleName(localizedString("Matches"));
  outcome_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  outcome_->setMinimumWidth(outcome_->fontMetrics().horizontalAdvance(QStringLiteral("000 of 000")));
  previous_->setArrowType(Qt::UpArrow);
  next_->setArrowType(Qt::DownArrow);
  auto* close = barButton(this, localizedString("Close the find bar"));
  close->setText(QStringLiteral("\u2715"));
  row->addWidget(needle_, 1);
  row->addWidget(outcome_);
  row->addSpacing(2);
  for (QToolButton* button : {previous_, next_, close}) row->addWidget(button);
  showOutcome(0, 0);
  connect(needle_, &QLineEdit::textChanged, this, &SourceFindBar::needleChanged);
  connect(needle_, &QLineEdit::returnPressed, this,
          [this] { emit wanted(QGuiApplication::keyboardModifiers() & Qt::ShiftModifier); });
  connect(previous_, &QToolButton::clicked, this, [this] { emit wanted(true); });
  connect(next_, &QToolButton::clicked, this, [this] { emit wanted(false); });
  connect(close, &QToolButton::clicked, this, &SourceFindBar::closed);
}

QString SourceFindBar::needle() const {
  return needle_->text();
}

void SourceFindBar::setNeedle(const QString& text) {
  needle_->setText(text);
}

QString SourceFindBar::outcome() const {
  return outcome_->text();
}

void SourceFindBar::begin() {
  needle_->setFocus(Qt::ShortcutFocusReason);
  needle_->selectAll();
}

void SourceFindBar::showOutcome(qsizetype index, qsizetype count) {
  const QLocale locale;
  if (needle().isEmpty())
    outcome_->clear();
  else if (count == 0)
    outcome_->setText(goesOn_ ? localizedString("Not on this page") : localizedString("Not found"));
  else
    outcome_->setText(localizedString("%1 of %2").arg(locale.toString(index + 1), locale.toString(count)));
  const bool leads = count > 0 || (goesOn_ && !needle().isEmpty());
  previous_->setEnabled(leads);
  next_->setEnabled(leads);
}

void SourceFindBar::showFoundNowhere() {
  outcome_->setText(localizedString("Not found"));
}

void SourceFindBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, height() - 1, width(), height() - 1);
}

}  // namespace norvex
