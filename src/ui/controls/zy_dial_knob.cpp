#include "ui/controls/zy_dial_knob.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>
#include <numbers>

#include "ui/controls/dms_angle.h"
#include "ui/controls/number_field.h"
#include "ui/controls/zy_dial_knob_accessible.h"

namespace norvex {

namespace {

constexpr double kSnap = 15;
constexpr double kMinute = 1.0 / 60.0;

double withinOneTurn(double degrees) {
  double turn = std::fmod(degrees, 360.0);
  if (turn < 0) turn += 360.0;
  return turn >= 360.0 ? 0.0 : turn;
}

double roundedTo(double step, double degrees) {
  return std::round(degrees / step) * step;
}

/// A pixel at the rim turns far more than a pixel ten times as far out, so distance buys precision.
double stepAtDistance(double distance) {
  if (distance < 90) return 1;
  return distance < 240 ? 0.5 : 0.1;
}

double stepFor(Qt::KeyboardModifiers modifiers) {
  if (modifiers & Qt::ShiftModifier) return kSnap;
  return modifiers & Qt::ControlModifier ? kMinute : 1;
}

}  // namespace

ZyDialKnob::ZyDialKnob(QWidget* parent) : QWidget(parent) {
  installDialKnobAccessibility();
  setFocusPolicy(Qt::WheelFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ZyDialKnob::setTickMarks(const QColor& marks, const std::optional<QColor>& background, double width) {
  marks_ = marks;
  background_ = background;
  markLength_ = width;
  update();
}

void ZyDialKnob::setBordered(bool bordered) {
  bordered_ = bordered;
  update();
}

void ZyDialKnob::setEditable(bool editable) {
  editable_ = editable;
  setFocusPolicy(editable ? Qt::WheelFocus : Qt::NoFocus);
}

void ZyDialKnob::setDmsTextField(NumberField* field) {
  field_ = field;
}

void ZyDialKnob::setClockwise(bool clockwise) {
  if (clockwise_ == clockwise) return;
  clockwise_ = clockwise;
  update();
}

void ZyDialKnob::setDMSValue(double packed) {
  packed_ = std::isfinite(packed) ? packed : 0;
  announce();
}

double ZyDialKnob::degreeValue() const {
  return dms::toDegrees(packed_);
}

double ZyDialKnob::radianValue() const {
  return dms::toRadians(packed_);
}

void ZyDialKnob::turnTo(double degrees) {
  const double packed = dms::fromDegrees(withinOneTurn(degrees));
  packed_ = packed >= 360 ? 0 : packed;
  announce();
  emit turned();
}

void ZyDialKnob::announce() {
  if (field_) field_->setDoubleValue(packed_);
  update();
  QAccessibleValueChangeEvent event(this, degreeValue());
  QAccessible::updateAccessibility(&event);
}

QSize ZyDialKnob::sizeHint() const {
  return {92, 92};
}

double ZyDialKnob::degreesAt(QPointF position) const {
  const QPointF arm = position - QRectF(rect()).center();
  const double clockwiseFromTop = std::atan2(arm.x(), -arm.y()) * 180.0 / std::numbers::pi;
  return withinOneTurn(clockwise_ ? clockwiseFromTop : -clockwiseFromTop);
}

void ZyDialKnob::mousePressEvent(QMouseEvent* event) {
  if (!editable_ || event->button() != Qt::LeftButton) return event->ignore();
  const QPointF arm = event->position() - QRectF(rect()).center();
  const bool nearRim = std::hypot(arm.x(), arm.y()) > 0.25 * std::min(width(), height());
  const double at = degreesAt(event->position());
  // Near the needle a press must not make it jump; elsewhere on the rim the needle comes to the pointer.
  const double off = std::remainder(degreeValue() - at, 360.0);
  grab_ = !nearRim || std::abs(off) < 12 ? off : 0.0;
  if (*grab_ == 0.0) followPointer(*event);
}

void ZyDialKnob::mouseMoveEvent(QMouseEvent* event) {
  if (grab_) followPointer(*event);
}

void ZyDialKnob::followPointer(const QMouseEvent& event) {
  const QPointF arm = event.position() - QRectF(rect()).center();
  const double distance = std::hypot(arm.x(), arm.y());
  if (distance < 3) return;  // no direction at the very middle
  const double step = event.modifiers() & Qt::ShiftModifier ? kSnap : stepAtDistance(distance);
  const double degrees = withinOneTurn(roundedTo(step, degreesAt(event.position()) + *grab_));
  if (std::abs(degrees - degreeValue()) > 1e-6) turnTo(degrees);
}

void ZyDialKnob::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) grab_.reset();
}

void ZyDialKnob::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!editable_ || event->button() != Qt::LeftButton) return event->ignore();
  grab_.reset();
  turnTo(0);
}

void ZyDialKnob::wheelEvent(QWheelEvent* event) {
  if (!editable_ || !isEnabled()) return event->ignore();
  // Some platforms turn the wheel sideways while a modifier is held.
  const QPoint delta = event->angleDelta();
  wheelRest_ += delta.y() != 0 ? delta.y() : delta.x();
  const double notches = std::trunc(wheelRest_ / 120.0);
  event->accept();
  if (notches == 0) return;
  wheelRest_ -= notches * 120.0;
  const double step = stepFor(event->modifiers());
  turnTo(roundedTo(step, degreeValue() + notches * step));
}

void ZyDialKnob::keyPressEvent(QKeyEvent* event) {
  if (!editable_) return event->ignore();
  const double step = stepFor(event->modifiers());
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      return turnTo(degreeValue() + step);
    case Qt::Key_Down:
    case Qt::Key_Left:
      return turnTo(degreeValue() - step);
    case Qt::Key_PageUp:
      return turnTo(degreeValue() + kSnap);
    case Qt::Key_PageDown:
      return turnTo(degreeValue() - kSnap);
    case Qt::Key_Home:
      return turnTo(0);
    default:
      QWidget::keyPressEvent(event);
  }
}

void ZyDialKnob::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange || event->type() == QEvent::PaletteChange) update();
  QWidget::changeEvent(event);
}

}  // namespace norvex
