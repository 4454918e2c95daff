#include "ui/controls/touch_strip.h"

#include <QHBoxLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QToolButton>

#include "base/localized_string.h"

namespace norvex {

namespace {

constexpr int kIconSide = 22;

QString buttonStyle() {
  return QStringLiteral(
      "QToolButton { border: 1px solid palette(mid); border-radius: 9px; padding: 4px 6px; background: "
      "palette(button); }"
      "QToolButton:hover:enabled { background: palette(midlight); }"
      "QToolButton:pressed { background: palette(mid); }"
      "QToolButton:focus { border: 2px solid palette(highlight); padding: 3px 5px; }"
      "QToolButton:disabled { background: transparent; color: palette(placeholder-text); }");
}

}  // namespace

TouchStrip::TouchStrip(QWidget* parent) : QWidget(parent), row_(new QHBoxLayout(this)) {
  setObjectName(QStringLiteral("touchStrip"));
  setAccessibleName(localizedString("Touch Bar"));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  row_->setContentsMargins(10, 9, 10, 10);
  row_->setSpacing(8);
}

void TouchStrip::addButton(const QString& identifier, const QString& title, const QIcon& icon,
                           std::function<void()> pressed) {
  auto* button = new QToolButton(this);
  button->setText(title);
  button->setAccessibleName(title);
  button->setIcon(icon);
  button->setIconSize({kIconSide, kIconSide});
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setFocusPolicy(Qt::TabFocus);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  button->setMinimumHeight(smallestButtonHeight);
  button->setMinimumWidth(56);
  button->setStyleSheet(buttonStyle());
  connect(button, &QToolButton::clicked, this, std::move(pressed));
  row_->addWidget(button, 1);
  buttons_.insert(identifier, button);
}

void TouchStrip::setButtonEnabled(const QString& identifier, bool enabled) {
  if (QToolButton* found = button(identifier)) found->setEnabled(enabled);
}

void TouchStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, 0, width(), 0);
}

}  // namespace norvex
