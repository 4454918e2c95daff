// A colour well: shows a colour and lets the user choose another.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QPointer>

class QColorDialog;

namespace norvex {

/// Click, Return or Space opens the colour dialog, which stays open beside the work and is applied as it
/// changes. A colour can be dropped on it. Main thread.
class ColorWell final : public QAbstractButton {
  Q_OBJECT
 public:
  explicit ColorWell(QWidget* parent = nullptr);

  [[nodiscard]] QColor color() const { return color_; }
  /// Sends no signal.
  void setColor(const QColor& color);
  QSize sizeHint() const override { return {52, 26}; }

 signals:
  /// The user chose a colour.
  void colorChosen(const QColor& color);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void openDialog();
  void choose(const QColor& color);

  QColor color_ = Qt::white;
  QPointer<QColorDialog> dialog_;
};

}  // namespace norvex
