// The dial for assistive technology.
#pragma once

#include <QAccessibleWidget>

namespace norvex {

class ZyDialKnob;

/// The dial as a value from 0 to 360 degrees in steps of 1; its text is the angle in degrees, minutes and
/// seconds.
class DialKnobAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit DialKnobAccessible(ZyDialKnob* knob);

  void* interface_cast(QAccessible::InterfaceType type) override;
  QString text(QAccessible::Text kind) const override;

  QVariant currentValue() const override;
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override { return 360.0; }
  QVariant minimumValue() const override { return 0.0; }
  QVariant minimumStepSize() const override { return 1.0; }

 private:
  [[nodiscard]] ZyDialKnob* knob() const;
};

/// Registers the interface with Qt; harmless when repeated.
void installDialKnobAccessibility();

}  // namespace norvex
