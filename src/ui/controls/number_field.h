// A text field whose value is a number.
#pragma once

#include <QLineEdit>

#include "ui/controls/number_format.h"

namespace norvex {

/// Shows its value by a NumberFormat and reads what is typed: a plain number or an angle with signs (12° 30′
/// 45″). Text that is no number is taken back when editing ends. Main thread.
class NumberField final : public QLineEdit {
  Q_OBJECT
 public:
  explicit NumberField(QWidget* parent = nullptr);

  void setNumberFormat(const NumberFormat& format);
  /// The last number that was set or typed; 0 at first and after clearValue().
  [[nodiscard]] double doubleValue() const { return value_; }
  void setDoubleValue(double value);
  /// Shows nothing (no document); the value is 0.
  void clearValue();

 signals:
  /// A person typed another number and ended the edit (Return, Tab, focus elsewhere). Not sent by the
  /// setters.
  void valueEdited(double value);

 private:
  void finishEditing();
  NumberFormat format_;
  double value_ = 0;
};

}  // namespace norvex
