#include "ui/controls/zy_dial_knob_accessible.h"

#include "ui/controls/dms_angle.h"
#include "ui/controls/zy_dial_knob.h"

namespace norvex {

namespace {

QAccessibleInterface* make(const QString&, QObject* object) {
  auto* knob = qobject_cast<ZyDialKnob*>(object);
  return knob ? new DialKnobAccessible(knob) : nullptr;  // Qt takes ownership
}

}  // namespace

DialKnobAccessible::DialKnobAccessible(ZyDialKnob* knob) : QAccessibleWidget(knob, QAccessible::Dial) {}

ZyDialKnob* DialKnobAccessible::knob() const {
  return static_cast<ZyDialKnob*>(object());
}

void* DialKnobAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QString DialKnobAccessible::text(QAccessible::Text kind) const {
  return kind == QAccessible::Value ? dms::text(knob()->DMSValue()) : QAccessibleWidget::text(kind);
}

QVariant DialKnobAccessible::currentValue() const {
  return knob()->degreeValue();
}

void DialKnobAccessible::setCurrentValue(const QVariant& value) {
  knob()->turnTo(value.toDouble());
}

void installDialKnobAccessibility() {
  static const bool installed = (QAccessible::installFactory(&make), true);
  Q_UNUSED(installed)
}

}  // namespace norvex
