// A page as its inks print it, small enough to be seen whole.
#pragma once

#include <QImage>
#include <QWidget>

namespace norvex {

/// Fits its image into the width that it has, unless it is very high. Main thread.
class SeparationView final : public QWidget {
  Q_OBJECT
 public:
  explicit SeparationView(QWidget* parent = nullptr);

  /// Null: nothing is shown.
  void setImage(const QImage& image);
  [[nodiscard]] const QImage& image() const { return image_; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] int heightForWidth(int width) const override;
  /// Where the image is drawn: logical pixels.
  [[nodiscard]] QRect imageRect() const;

 signals:
  /// A pixel of the image, or (-1, -1) beside it.
  void pointed(QPoint pixel);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  QImage image_;
};

}  // namespace norvex
