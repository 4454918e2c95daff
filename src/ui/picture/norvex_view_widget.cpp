#include "ui/picture/norvex_view_widget.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>
#include <cmath>

#include "ui/picture/zooming_scroll_area.h"

namespace norvex {

namespace {

constexpr int kPeriodMs = 40;
constexpr double kLargestStep = 40;               // logical pixels
constexpr int kBeside = SelectionHandles::reach;  // the outline and its handles may lie beside the view

/// Input other than moving the pointer and letting go of the left button.
bool isOtherInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::Gesture:
    case QEvent::GestureOverride:
    case QEvent::NativeGesture:
    case QEvent::ContextMenu:
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
      return static_cast<const QMouseEvent&>(event).button() != Qt::LeftButton;
    default:
      return false;
  }
}

}  // namespace

NorvexViewWidget::NorvexViewWidget(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);  // the crosshair is the view's, and the view may be smaller than this widget
  periodic_.setInterval(kPeriodMs);
  connect(&periodic_, &QTimer::timeout, this,
          [this] { view_.periodicEvent(toView(mapFromGlobal(pointer_))); });
  view_.setHost(this);
}

NorvexViewWidget::~NorvexViewWidget() {
  view_.setHost(nullptr);
}

void NorvexViewWidget::setScrollArea(ZoomingScrollArea* area) {
  area_ = area;
}

void NorvexViewWidget::setBackground(const QColor& color) {
  background_ = color;
  update();
}

void NorvexViewWidget::setStandsOnCanvas(bool stands) {
  if (onCanvas_ == stands) return;
  onCanvas_ = stands;
  update();
}

void NorvexViewWidget::setDimsOutside(bool dims) {
  if (dimsOutside_ == dims) return;
  dimsOutside_ = dims;
  update();
}

void NorvexViewWidget::setLengthUnit(LengthUnit unit) {
  if (unit_ == unit) return;
  unit_ = unit;
  update();
}

QTransform NorvexViewWidget::placement() const {
  if (!area_) return {};
  QTransform exact = area_->scrollView().documentViewToClip();
  const QRectF& bounds = view_.bounds();
  const QPointF corner = exact.map(QPointF(bounds.x(), bounds.y() + bounds.height()));
  // A picture that is centred on half a pixel would show its straight edges blurred.
  const double ratio = devicePixelRatioF();
  const QPointF shift =
      QPointF(std::round(corner.x() * ratio), std::round(corner.y() * ratio)) / ratio - corner;
  return exact * QTransform::fromTranslate(shift.x(), shift.y());
}

QPointF NorvexViewWidget::fromView(const QPointF& point) const {
  return placement().map(point);
}

QPointF NorvexViewWidget::toView(const QPointF& point) const {
  return placement().inverted().map(point);
}

QRectF NorvexViewWidget::viewInWidget() const {
  const QRectF& bounds = view_.bounds();
  return QRectF(fromView(bounds.topLeft()), fromView(bounds.bottomRight())).normalized();
}

QRectF NorvexViewWidget::visibleRect() const {
  return area_ ? area_->scrollView().documentViewVisibleRect() : view_.bounds();
}

void NorvexViewWidget::displayRect(const QRectF& rect) {
  const QRectF device = QRectF(fromView(rect.topLeft()), fromView(rect.bottomRight())).normalized();
  const QRect dirty = device.toAlignedRect().adjusted(-kBeside, -kBeside, kBeside, kBeside) & this->rect();
  if (!isVisible() || painting_)
    update(dirty);
  else
    repaint(dirty);
}

void NorvexViewWidget::frameDidChange() {
  if (area_) area_->documentFrameDidChange();
  view_.resetCursorRects();
  update();
}

bool NorvexViewWidget::autoscroll(const QPointF& point) {
  if (!area_) return false;
  const QPointF at = fromView(point);
  // However far outside the pointer is, one step shows only a little more: the user must be able to stop in
  // time.
  const QPointF near(std::clamp(at.x(), -kLargestStep, width() + kLargestStep),
                     std::clamp(at.y(), -kLargestStep, height() + kLargestStep));
  return area_->showPoint(near);
}

void NorvexViewWidget::scrollRectToVisible(const QRectF& rect) {
  if (area_) area_->showRect(QRectF(fromView(rect.topLeft()), fromView(rect.bottomRight())).normalized());
}

bool NorvexViewWidget::makeFirstResponder() {
  // The view takes no keys itself: what surrounds it does, and scrolls.
  if (area_) area_->takeFocusByMouse();
  return true;
}

void NorvexViewWidget::setPeriodicEvents(bool on) {
  if (on)
    periodic_.start();
  else
    periodic_.stop();
}

void NorvexViewWidget::addCrosshairCursorRect(const QRectF& rect) {
  crosshair_ = rect;
  showPointer(mapFromGlobal(QPointF(QCursor::pos())));
}

void NorvexViewWidget::setPointer(std::optional<Qt::CursorShape> shape) {
  shape_ = shape;
  view_.resetCursorRects();
}

void NorvexViewWidget::showPointer(const QPointF& at) {
  if (shape_) return setCursor(*shape_);
  const QRectF device =
      QRectF(fromView(crosshair_.topLeft()), fromView(crosshair_.bottomRight())).normalized();
  const std::optional<Qt::Edges> handle = tracking_ ? held_ : handleAt(at);
  if (handle)
    setCursor(cursorOf(*handle));
  else if (tracking_ || device.contains(at))
    setCursor(Qt::CrossCursor);
  else
    unsetCursor();
}

void NorvexViewWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  held_ = handleAt(event->position());
  if (!held_ && !viewInWidget().contains(event->position())) return event->ignore();
  pointer_ = event->globalPosition();
  track(held_ ? view_.mouseDownOnHandle(*held_, toView(event->position())) : view_.mouseDown());
}

void NorvexViewWidget::mouseMoveEvent(QMouseEvent* event) {
  // The release was for somebody else, who had taken the pointer.
  if (tracking_ && !(event->buttons() & Qt::LeftButton)) loseTracking();
  if (!tracking_) {
    view_.resetCursorRects();
    showPointer(event->position());
    return event->ignore();
  }
  pointer_ = event->globalPosition();
  view_.mouseDragged(toView(event->position()));
}

void NorvexViewWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (!tracking_ || event->button() != Qt::LeftButton) return event->ignore();
  track(false);
  view_.mouseUp(toView(event->position()));
  showPointer(event->position());
}

void NorvexViewWidget::track(bool on) {
  tracking_ = on;
  qApp->removeEventFilter(this);
  if (on) qApp->installEventFilter(this);
}

bool NorvexViewWidget::eventFilter(QObject* watched, QEvent* event) {
  // A modal window of our own gets the release that this one will never see.
  if (event->type() == QEvent::WindowBlocked && watched == window()) loseTracking();
  if (!tracking_ || !isOtherInput(*event)) return QWidget::eventFilter(watched, event);
  event->accept();
  return true;
}

void NorvexViewWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  watchScreen();
  view_.resetCursorRects();
}

void NorvexViewWidget::hideEvent(QHideEvent* event) {
  loseTracking();
  QWidget::hideEvent(event);
}

void NorvexViewWidget::loseTracking() {
  if (!tracking_) return;
  track(false);
  view_.endTracking();
}

void NorvexViewWidget::watchScreen() {
  QWindow* handle = window()->windowHandle();
  if (!handle || screenWatched_) return;
  screenWatched_ = true;
  // Another screen may have another scale factor: what is rendered for the old one would be blurred.
  connect(handle, &QWindow::screenChanged, this, qOverload<>(&QWidget::update));
}

}  // namespace norvex
