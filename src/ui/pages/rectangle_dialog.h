// A rectangle of the shown page by its numbers.
#pragma once

#include <QDialog>
#include <QRectF>

#include "display/length_text.h"

class QDoubleSpinBox;

namespace norvex {

/// Left, bottom, width and height, counted from the lower left corner of what is shown (as it is turned), in
/// the reader's unit. What is typed stays inside the page. Main thread.
class RectangleDialog final : public QDialog {
  Q_OBJECT
 public:
  /// `first` and `page` in points, y up.
  RectangleDialog(const QRectF& first, const QSizeF& page, LengthUnit unit, QWidget* parent);

  /// Points, from the lower left corner.
  [[nodiscard]] QRectF rectangle() const;

 private:
  QDoubleSpinBox* addField(const char* title, const char* name, double points, double most);

  double unitPoints_;
  QString unitName_;
  QDoubleSpinBox *left_, *bottom_, *width_, *height_;
};

}  // namespace norvex
