// A matrix of number cells, two by two: a rectangle as x, y, width and height.
#pragma once

#include <QColor>
#include <QRectF>
#include <QWidget>

#include <array>

class QLabel;
class QLineEdit;

namespace norvex {

/// Row 0 holds x and width, row 1 y and height. Cells are for reading; their text can be selected and copied.
/// The background colour lies behind the cells; in a dark scheme a dark one of the same hue does.
class NumberMatrix final : public QWidget {
  Q_OBJECT
 public:
  explicit NumberMatrix(QWidget* parent = nullptr);

  /// REQUIRES 0 <= row, column <= 1.
  [[nodiscard]] QLineEdit* cellAtRow(int row, int column) const;
  /// Single precision, shortest form that reads back the same ("12.5"), with the locale's decimal sign; NaN
  /// and infinities by name.
  void setFloat(int row, int column, float value);
  /// All four, in the same way.
  void setRect(const QRectF& rect);
  void setText(int row, int column, const QString& text);
  void setBackgroundColor(const QColor& color);
  [[nodiscard]] QColor backgroundColor() const { return background_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] QColor ground() const;

  std::array<std::array<QLineEdit*, 2>, 2> cells_{};
  QColor background_;
};

}  // namespace norvex
