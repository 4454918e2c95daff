#include "ui/picture/loading_card.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

#include "base/localized_string.h"
#include "ui/style/floating_card.h"

namespace norvex {

LoadingCard::LoadingCard(QWidget* parent)
    : QFrame(parent), what_(new QLabel(this)), bar_(new QProgressBar(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(16, 10, 10, 10);
  row->setSpacing(12);
  bar_->setRange(0, 0);  // how long the picture will take is not known
  bar_->setTextVisible(false);
  bar_->setFixedSize(120, 6);
  auto* cancel = new QPushButton(localizedString("Cancel"), this);
  row->addWidget(what_);
  row->addWidget(bar_);
  row->addWidget(cancel);
  patience_.setSingleShot(true);
  patience_.setInterval(patienceMs);
  connect(&patience_, &QTimer::timeout, this, [this] {
    adjustSize();
    show();
    raise();
    emit visibilityChanged();
  });
  connect(cancel, &QPushButton::clicked, this, &LoadingCard::cancelled);
  hide();
}

void LoadingCard::begin(const QString& what) {
  what_->setText(what);
  setAccessibleName(what);
  bar_->setAccessibleName(what);
  if (underWay_) return;
  underWay_ = true;
  patience_.start();
}

void LoadingCard::end() {
  underWay_ = false;
  patience_.stop();
  if (isHidden()) return;
  hide();
  emit visibilityChanged();
}

void LoadingCard::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFloatingCard(painter, rect(), palette().color(QPalette::Window), palette());
}

}  // namespace norvex
