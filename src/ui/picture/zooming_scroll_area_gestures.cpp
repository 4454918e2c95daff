// Wheel, pinch and panning of the scroll area.
#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QWheelEvent>

#include <algorithm>

#include "display/zoom_factors.h"
#include "ui/picture/norvex_view_widget.h"
#include "ui/picture/zooming_scroll_area.h"

namespace norvex {

namespace {

constexpr double kPixelsPerNotch = 72;

}  // namespace

void ZoomingScrollArea::wheelEvent(QWheelEvent* event) {
  event->accept();
  const QPoint angle = event->angleDelta();
  if (event->modifiers() & Qt::ControlModifier) {
    scrollView_.wheelZoom(angle.y() != 0 ? angle.y() : angle.x(), clip_->mapFrom(this, event->position()));
    synchronize();
    return;
  }
  QPointF delta = event->pixelDelta().isNull() ? QPointF(angle) * (kPixelsPerNotch / 120.0)
                                               : QPointF(event->pixelDelta());
  if (event->modifiers() & Qt::ShiftModifier && delta.x() == 0) delta = QPointF(delta.y(), 0);
  scrollBy(-delta);
}

bool ZoomingScrollArea::event(QEvent* event) {
  if (event->type() == QEvent::Gesture && pinch(event)) return true;
  return QWidget::event(event);
}

void ZoomingScrollArea::pinchTo(double factor, const QPointF& global) {
  scrollView_.zoomTo(std::clamp(factor, smallestZoomFactor, largestZoomFactor), clip_->mapFromGlobal(global));
  synchronize();
}

bool ZoomingScrollArea::pinch(QEvent* event) {
  auto* gesture = static_cast<QGestureEvent*>(event)->gesture(Qt::PinchGesture);
  if (!gesture) return false;
  const auto* pinching = static_cast<QPinchGesture*>(gesture);
  if (pinching->changeFlags() & QPinchGesture::ScaleFactorChanged)
    pinchTo(scrollView_.factor() * pinching->scaleFactor(), pinching->hotSpot());
  // Two fingers also take the picture along.
  const bool goesOn = pinching->state() == Qt::GestureUpdated || pinching->state() == Qt::GestureFinished;
  if (goesOn && pinching->changeFlags() & QPinchGesture::CenterPointChanged)
    scrollBy(pinching->lastCenterPoint() - pinching->centerPoint());
  static_cast<QGestureEvent*>(event)->accept(gesture);
  return true;
}

bool ZoomingScrollArea::pan(QEvent* event) {
  auto* mouse = static_cast<QMouseEvent*>(event);
  if (event->type() == QEvent::MouseButtonPress) {
    const bool wanted =
        mouse->button() == Qt::MiddleButton || (spaceHeld_ && mouse->button() == Qt::LeftButton);
    if (!wanted) return false;
    panFrom_ = mouse->position();
    document_->setPointer(Qt::ClosedHandCursor);
    return true;
  }
  if (!panFrom_) return false;
  scrollBy(*panFrom_ - mouse->position());
  panFrom_ = mouse->position();
  if (event->type() == QEvent::MouseButtonRelease) {
    panFrom_.reset();
    showHand();
  }
  return true;
}

void ZoomingScrollArea::showHand() {
  if (!document_ || panFrom_) return;
  document_->setPointer(spaceHeld_ ? std::optional(Qt::OpenHandCursor) : std::nullopt);
}

bool ZoomingScrollArea::holdSpace(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Space) return false;
  if (event.isAutoRepeat()) return true;
  spaceHeld_ = event.type() == QEvent::KeyPress;
  showHand();
  return true;
}

void ZoomingScrollArea::keyReleaseEvent(QKeyEvent* event) {
  if (!holdSpace(*event)) QWidget::keyReleaseEvent(event);
}

void ZoomingScrollArea::focusInEvent(QFocusEvent* event) {
  showsFocus_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (document_) document_->update();
  QWidget::focusInEvent(event);
}

void ZoomingScrollArea::takeFocusByMouse() {
  showsFocus_ = false;
  setFocus(Qt::MouseFocusReason);
}

void ZoomingScrollArea::focusOutEvent(QFocusEvent* event) {
  showsFocus_ = false;
  if (document_) document_->update();
  spaceHeld_ = false;
  showHand();
  QWidget::focusOutEvent(event);
}

bool ZoomingScrollArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched != document_) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return pan(event);
    case QEvent::NativeGesture: {
      auto* native = static_cast<QNativeGestureEvent*>(event);
      if (native->gestureType() == Qt::PanNativeGesture) return scrollBy(-native->delta()), true;
      if (native->gestureType() != Qt::ZoomNativeGesture) return false;
      pinchTo(scrollView_.factor() * (1 + native->value()), native->globalPosition());
      return true;
    }
    default:
      return false;
  }
}

}  // namespace norvex
