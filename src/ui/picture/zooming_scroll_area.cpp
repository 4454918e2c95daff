#include "ui/picture/zooming_scroll_area.h"

#include <QEvent>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

#include "base/localized_string.h"
#include "display/norvex_view.h"
#include "display/zoom_factors.h"
#include "ui/picture/factor_box.h"
#include "ui/picture/norvex_view_widget.h"

namespace norvex {

namespace {

constexpr int kBarExtent = 14;
constexpr double kHair = 1e-6;  ///< of a pixel: rounding, nothing to scroll

QString barStyle(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  const auto rgba = [&](double alpha) {
    return QStringLiteral("rgba(%1,%2,%3,%4)").arg(text.red()).arg(text.green()).arg(text.blue()).arg(alpha);
  };
  return QStringLiteral(
             "QScrollBar { background: transparent; border: none; }"
             "QScrollBar::handle { background: %1; border-radius: 4px; }"
             "QScrollBar::handle:horizontal { min-width: 32px; margin: 3px 2px; }"
             "QScrollBar::handle:vertical { min-height: 32px; margin: 2px 3px; }"
             "QScrollBar::handle:hover, QScrollBar::handle:pressed { background: %2; }"
             "QScrollBar::handle:disabled { background: transparent; }"
             "QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }"
             "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }")
      .arg(rgba(0.28), rgba(0.5));
}

}  // namespace

ZoomingScrollArea::ZoomingScrollArea(QWidget* parent)
    : QWidget(parent),
      clip_(new QWidget(this)),
      horizontal_(new QScrollBar(Qt::Horizontal, this)),
      vertical_(new QScrollBar(Qt::Vertical, this)),
      popUp_(new FactorBox(scrollView_, this)),
      cards_(*clip_, *this) {
  horizontal_->setAccessibleName(localizedString("Scroll sideways"));
  vertical_->setAccessibleName(localizedString("Scroll up and down"));
  for (QScrollBar* bar : {horizontal_, vertical_}) {
    bar->setSingleStep(24);
    bar->setFocusPolicy(Qt::NoFocus);
    connect(bar, &QScrollBar::valueChanged, this, &ZoomingScrollArea::scrolled);
  }
  styleBars();
  setFocusPolicy(Qt::StrongFocus);
  grabGesture(Qt::PinchGesture);
  // The notification comes before the clip view is rescaled, so what follows it must wait until that is done.
  connect(&scrollView_, &SKTZoomingScrollView::zoomingScrollViewFactorDidChange, this,
          &ZoomingScrollArea::synchronize, Qt::QueuedConnection);
}

ZoomingScrollArea::~ZoomingScrollArea() {
  if (document_) document_->setScrollArea(nullptr);
}

void ZoomingScrollArea::setDocumentWidget(NorvexViewWidget* widget) {
  document_ = widget;
  widget->setParent(clip_);
  widget->setScrollArea(this);
  widget->installEventFilter(this);
  widget->show();
  scrollView_.setDocumentView(&widget->view());
  applyBackground();
  layOut();
}

void ZoomingScrollArea::setBackgroundColor(const QColor& color) {
  background_ = color;
  applyBackground();
}

void ZoomingScrollArea::setDrawsBackground(bool draws) {
  drawsBackground_ = draws;
  applyBackground();
}

void ZoomingScrollArea::applyBackground() {
  if (document_) document_->setBackground(drawsBackground_ ? background_ : QColor());
}

void ZoomingScrollArea::setBare(bool bare) {
  bare_ = bare;
  horizontal_->setVisible(!bare);
  popUp_->setVisible(!bare);
  layOut();
}

QSizeF ZoomingScrollArea::contentSize() const {
  const QSizeF room = roomWithoutBar();
  return needsBar() ? QSizeF(std::max(0.0, room.width() - kBarExtent), room.height()) : room;
}

QSizeF ZoomingScrollArea::roomWithoutBar() const {
  // From this widget's own size, which is known before a hidden window lays its grandchildren out.
  return QSizeF(width(), bare_ ? height() : std::max(0, height() - stripHeight()));
}

int ZoomingScrollArea::barExtent() {
  return kBarExtent;
}

bool ZoomingScrollArea::needsBar() const {
  // The room's height is the same with and without the bar.
  const double height = document_ ? document_->view().frame().height() * scrollView_.factor() : 0;
  return !bare_ && height > roomWithoutBar().height() + kHair;
}

int ZoomingScrollArea::stripHeight() const {
  return std::max(popUp_->sizeHint().height() + 4, kBarExtent + 8);
}

double ZoomingScrollArea::fittingFactor() const {
  const QSizeF size = document_ ? document_->view().frame().size() : QSizeF();
  if (size.isEmpty()) return 1;
  const QSizeF room = roomWithoutBar();
  const double factor = std::min(room.width() / size.width(), room.height() / size.height());
  return std::clamp(factor, smallestZoomFactor, largestZoomFactor);
}

double ZoomingScrollArea::fittingWidthFactor() const {
  const QSizeF size = document_ ? document_->view().frame().size() : QSizeF();
  if (size.isEmpty()) return 1;
  const QSizeF room = roomWithoutBar();
  double factor = room.width() / size.width();
  if (!bare_ && size.height() * factor > room.height() + kHair)
    factor = (room.width() - kBarExtent) / size.width();
  return std::clamp(factor, smallestZoomFactor, largestZoomFactor);
}

void ZoomingScrollArea::addCard(QWidget* card, Qt::Edge edge) {
  cards_.add(card, edge);
}

void ZoomingScrollArea::keepCardOff(const QWidget& card, const QRect& place) {
  cards_.keepOff(card, place);
}

QComboBox* ZoomingScrollArea::popUp() const {
  return popUp_;
}

void ZoomingScrollArea::layOut() {
  barTakesRoom_ = needsBar();
  vertical_->setVisible(barTakesRoom_);
  const int strip = stripHeight();
  const QSize clipSize = contentSize().toSize();
  clip_->setGeometry(QRect(QPoint(0, 0), clipSize));
  vertical_->setGeometry(clipSize.width(), 0, kBarExtent, clipSize.height());
  const TiledBar tiled = scrollView_.tile(QRectF(0, clipSize.height(), clipSize.width(), strip),
                                          QSizeF(popUp_->sizeHint().width() + 12, strip));
  popUp_->setGeometry(tiled.popUp.toRect().adjusted(8, 2, -4, -2));
  const QRect bar = tiled.bar.toRect();
  horizontal_->setGeometry(bar.x(), bar.y() + (strip - kBarExtent) / 2, bar.width(), kBarExtent);
  if (document_) document_->setGeometry(clip_->rect());
  if (ClipView* clipView = scrollView_.clipView()) clipView->setFrameSize(clipSize);
  synchronize();
}

void ZoomingScrollArea::synchronize() {
  if (needsBar() != barTakesRoom_) return layOut();
  ClipView* clipView = scrollView_.clipView();
  const QSizeF range = clipView ? clipView->scrollRange() : QSizeF(0, 0);
  const QPointF offset = clipView ? clipView->scrollOffset() : QPointF();
  const auto set = [](QScrollBar* bar, double most, double at, int page) {
    const QSignalBlocker quiet(bar);
    bar->setRange(0, static_cast<int>(std::ceil(most - kHair)));
    bar->setPageStep(page);
    bar->setValue(static_cast<int>(std::lround(at)));
    bar->setEnabled(bar->maximum() > 0);
  };
  set(horizontal_, range.width(), offset.x(), clip_->width());
  set(vertical_, range.height(), offset.y(), clip_->height());
  popUp_->synchronize();
  cards_.place();
  if (document_) document_->update();
}

void ZoomingScrollArea::documentFrameDidChange() {
  scrollView_.documentFrameDidChange();
  synchronize();
}

void ZoomingScrollArea::scrolled() {
  ClipView* clipView = scrollView_.clipView();
  if (!clipView) return;
  const QPointF before = clipView->scrollOffset();
  // Only an axis that the bar moved takes the bar's whole number; the other keeps its fraction.
  const auto moved = [](double offset, const QScrollBar* bar) {
    return std::lround(offset) == bar->value() ? offset : static_cast<double>(bar->value());
  };
  clipView->setScrollOffset({moved(before.x(), horizontal_), moved(before.y(), vertical_)});
  if (document_) document_->update();
}

void ZoomingScrollArea::scrollToTop() {
  setScrollOffset({0, 0});
}

QPointF ZoomingScrollArea::scrollOffset() {
  const ClipView* clipView = scrollView_.clipView();
  return clipView ? clipView->scrollOffset() : QPointF();
}

void ZoomingScrollArea::setScrollOffset(const QPointF& offset) {
  if (ClipView* clipView = scrollView_.clipView()) clipView->setScrollOffset(offset);
  synchronize();
}

void ZoomingScrollArea::scrollBy(const QPointF& delta) {
  ClipView* clipView = scrollView_.clipView();
  if (!clipView) return;
  const QPointF wanted = clipView->scrollOffset() + delta;
  clipView->setScrollOffset({std::round(wanted.x()), std::round(wanted.y())});
  synchronize();
}

bool ZoomingScrollArea::showPoint(const QPointF& point) {
  ClipView* clipView = scrollView_.clipView();
  if (!clipView || !clipView->autoscroll(clipView->frameToDocument(point))) return false;
  synchronize();
  return true;
}

void ZoomingScrollArea::showRect(const QRectF& rect) {
  ClipView* clipView = scrollView_.clipView();
  if (!clipView) return;
  const QRectF document =
      QRectF(clipView->frameToDocument(rect.topLeft()), clipView->frameToDocument(rect.bottomRight()))
          .normalized();
  if (clipView->scrollRectToVisible(document)) synchronize();
}

void ZoomingScrollArea::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layOut();
}

void ZoomingScrollArea::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) styleBars();
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) layOut();
}

void ZoomingScrollArea::styleBars() {
  const QString style = barStyle(palette());
  for (QScrollBar* bar : {horizontal_, vertical_})
    if (bar->styleSheet() != style) bar->setStyleSheet(style);
}

void ZoomingScrollArea::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return horizontal_->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Right:
      return horizontal_->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Up:
      return vertical_->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
      return vertical_->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_PageUp:
      return vertical_->triggerAction(QAbstractSlider::SliderPageStepSub);
    case Qt::Key_PageDown:
      return vertical_->triggerAction(QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_Home:
      return vertical_->triggerAction(QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
      return vertical_->triggerAction(QAbstractSlider::SliderToMaximum);
    default:
      if (!holdSpace(*event)) QWidget::keyPressEvent(event);
  }
}

}  // namespace norvex
