// A fact in a form: one line to read, select and copy.
#pragma once

#include <QLineEdit>

namespace norvex {

/// Not editable and without a frame. Its value can be copied without selecting it. A text that is too long
/// ends with an ellipsis until the field has the focus; a dash stands for no text. Main thread.
class FactField final : public QLineEdit {
  Q_OBJECT
 public:
  explicit FactField(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int roomOfButtons() const;
};

}  // namespace norvex
