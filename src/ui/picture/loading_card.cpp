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

namespace {

constexpr int kLongestBar = 120, kShortestBar = 40;  // logical pixels

}  // namespace

LoadingCard::LoadingCard(QWidget* parent)
    : QFrame(parent),
      what_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      cancel_(new QPushButton(localizedString("Cancel"), this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(16, 10, 10, 10);
  row->setSpacing(12);
  bar_->setRange(0, 0);  // how long the picture will take is not known
  bar_->setTextVisible(false);
  bar_->setAutoFillBackground(true);  // else every step of it paints the picture anew
  bar_->setFixedHeight(6);
  bar_->setMinimumWidth(kShortestBar);
  bar_->setMaximumWidth(kLongestBar);
  row->addWidget(what_, 1);
  row->addWidget(bar_);
  row->addWidget(cancel_);
  patience_.setSingleShot(true);
  patience_.setInterval(patienceMs);
  connect(&patience_, &QTimer::timeout, this, [this] {
    what_->setWordWrap(false);  // as wide as it wants to be; whoever places it may have less
    adjustSize();
    show();
    raise();
    emit visibilityChanged();
  });
  connect(cancel_, &QPushButton::clicked, this, &LoadingCard::cancelled);
  hide();
}

void LoadingCard::begin(const QString& what) {
  what_->setText(what);
  setAccessibleName(what);
  bar_->setAccessibleName(what);
  fit();
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

int LoadingCard::roomFor(int width) const {
  const QMargins edges = layout()->contentsMargins();
  return width - edges.left() - edges.right() - 2 * layout()->spacing() - kShortestBar -
         cancel_->sizeHint().width();
}

int LoadingCard::heightForWidth(int width) const {
  const QMargins edges = layout()->contentsMargins();
  const QRect words = what_->fontMetrics().boundingRect(QRect(0, 0, qMax(1, roomFor(width)), QWIDGETSIZE_MAX),
                                                        Qt::TextWordWrap, what_->text());
  return qMax(words.height(), cancel_->sizeHint().height()) + edges.top() + edges.bottom();
}

void LoadingCard::fit() {
  const bool wraps = what_->fontMetrics().horizontalAdvance(what_->text()) > roomFor(width());
  // Said again it would paint the picture below anew, whose painting asks for what is told here.
  if (what_->wordWrap() != wraps) what_->setWordWrap(wraps);
  bar_->setMaximumWidth(wraps ? kShortestBar : kLongestBar);
}

void LoadingCard::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  fit();
}

void LoadingCard::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFloatingCard(painter, rect(), palette().color(QPalette::Window), palette());
}

}  // namespace norvex
