// A frame around a place of the picture, which goes away by itself.
#pragma once

#include <QRectF>
#include <QTimer>
#include <QWidget>

namespace norvex {

class NorvexViewWidget;

/// Shows where something is: scrolls there and lays a frame around it, which stays with the picture while
/// that is scrolled, zoomed and turned. Nothing of the document: neither copied nor printed. One for each
/// view; the next takes its place. Lets the mouse through, and goes with a press. Main thread.
class PictureMark final : public QWidget {
  Q_OBJECT
 public:
  static constexpr int shownMs = 4000;

  /// `rect`: picture coordinates (points, origin at the picture's lower-left corner, y up). The view's widget
  /// owns the mark.
  static void show(NorvexViewWidget& widget, const QRectF& rect);
  /// Takes the mark away, if there is one.
  static void hide(NorvexViewWidget& widget);

  /// The corners of the frame; logical pixels of the view's widget.
  [[nodiscard]] QPolygonF frame() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit PictureMark(NorvexViewWidget& widget);

  NorvexViewWidget& widget_;
  QRectF rect_;
  QTimer end_;
};

}  // namespace norvex
