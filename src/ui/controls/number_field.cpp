#include "ui/controls/number_field.h"

#include "ui/controls/dms_angle.h"

namespace norvex {

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::editingFinished, this, &NumberField::finishEditing);
}

void NumberField::setNumberFormat(const NumberFormat& format) {
  format_ = format;
  if (!text().isEmpty()) setDoubleValue(value_);
}

void NumberField::setDoubleValue(double value) {
  value_ = value;
  setText(format_.string(value));
  setModified(false);
}

void NumberField::clearValue() {
  value_ = 0;
  clear();
  setModified(false);
}

void NumberField::finishEditing() {
  if (!isModified()) return;
  auto typed = NumberFormat::number(text());
  if (!typed) typed = dms::fromText(text());
  if (!typed) {
    setDoubleValue(value_);
    return;
  }
  setDoubleValue(*typed);
  emit valueEdited(*typed);
}

}  // namespace norvex
