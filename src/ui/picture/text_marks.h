// Marks over the text of a picture, and a pointer that selects it.
#pragma once

#include <QList>
#include <QRectF>
#include <QWidget>

namespace norvex {

class NorvexViewWidget;

/// A sheet over the view's widget, which turns, zooms and scrolls with the picture. The mouse goes through it
/// unless it is to select; then it tells where it is dragged, but not while Space is held to pan. Rectangles
/// and points are in picture coordinates. Main thread.
class TextMarks final : public QWidget {
  Q_OBJECT
 public:
  explicit TextMarks(NorvexViewWidget& view);

  /// Of what was found; `current` (none: empty) is the one to look at.
  void setFound(const QList<QRectF>& found, const QList<QRectF>& current);
  void setSelected(const QList<QRectF>& selected);
  void setSelecting(bool on);
  /// While it selects; so is the tool tip, and the view's is not shown then.
  void setShape(Qt::CursorShape shape);
  [[nodiscard]] QList<QRectF> found() const { return found_; }
  [[nodiscard]] QList<QRectF> current() const { return current_; }
  [[nodiscard]] QList<QRectF> selected() const { return selected_; }
  /// Scrolls so that all of it can be seen, where it fits.
  void reveal(const QRectF& rect);
  /// Where that is on the screen, now.
  [[nodiscard]] QRect placeOf(const QRectF& rect) const;

 signals:
  void pressed(const QPointF& point);
  void dragged(const QPointF& point);
  void released(const QPointF& point);
  /// No button is down.
  void hovered(const QPointF& point);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] QPolygonF onScreen(const QRectF& rect) const;
  [[nodiscard]] QPointF inPicture(const QPointF& point) const;
  void follow();
  void showCursor();
  [[nodiscard]] bool pans() const;

  NorvexViewWidget& view_;
  QList<QRectF> found_, current_, selected_;
  bool selecting_ = false;
  bool passes_ = false;  ///< a press was for the view below, and so is what follows until its release
  Qt::CursorShape shape_ = Qt::IBeamCursor;
};

}  // namespace norvex
