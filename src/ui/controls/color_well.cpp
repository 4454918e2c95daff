#include "ui/controls/color_well.h"

#include <QColorDialog>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>

#include "ui/style/checkerboard.h"

namespace norvex {

ColorWell::ColorWell(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAcceptDrops(true);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(this, &QAbstractButton::clicked, this, &ColorWell::openDialog);
}

void ColorWell::setColor(const QColor& color) {
  color_ = color;
  setAccessibleDescription(color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb));
  update();
}

void ColorWell::choose(const QColor& color) {
  if (!color.isValid() || color == color_) return;
  setColor(color);
  emit colorChosen(color);
}

void ColorWell::openDialog() {
  if (!dialog_) {
    dialog_ = new QColorDialog(this);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    dialog_->setOptions(QColorDialog::ShowAlphaChannel | QColorDialog::NoButtons);
    dialog_->setCurrentColor(color_);
    connect(dialog_, &QColorDialog::currentColorChanged, this, &ColorWell::choose);
  }
  dialog_->show();
  dialog_->raise();
  dialog_->activateWindow();
}

void ColorWell::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!isEnabled()) painter.setOpacity(0.4);
  const QRectF outer = QRectF(rect()).adjusted(1, 1, -1, -1);
  const QColor text = palette().color(QPalette::WindowText);
  QColor line = text;
  line.setAlphaF(0.3f);
  painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2) : QPen(line, 1));
  painter.setBrush(palette().color(isDown() ? QPalette::Mid : QPalette::Base));
  painter.drawRoundedRect(outer, 5, 5);
  const QRectF inner = outer.adjusted(4, 4, -4, -4);
  if (color_.alpha() < 255) drawCheckerboard(painter, inner, palette());
  painter.setPen(line);
  painter.setBrush(color_);
  painter.drawRoundedRect(inner, 2.5, 2.5);
}

void ColorWell::dragEnterEvent(QDragEnterEvent* event) {
  if (isEnabled() && event->mimeData()->hasColor()) event->acceptProposedAction();
}

void ColorWell::dropEvent(QDropEvent* event) {
  choose(event->mimeData()->colorData().value<QColor>());
}

}  // namespace norvex
