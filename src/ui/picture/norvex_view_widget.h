// NorvexViewWidget: the widget that a NorvexView is shown in.
#pragma once

#include <QList>
#include <QPointer>
#include <QPolygonF>
#include <QTimer>
#include <QWidget>

#include <optional>

#include "display/length_text.h"
#include "display/norvex_view.h"
#include "display/view_host.h"
#include "ui/picture/picture_stand_in.h"
#include "ui/picture/selection_handles.h"

namespace norvex {

class ZoomingScrollArea;

/// Fills the clip of its scroll area and draws there what the clip shows of the view. Owns the view and is
/// its host. Forwards the left button as press, move and release where the view is, not beside it; what they
/// mean is the view's business. While such a drag lasts the application handles no other key, wheel, gesture
/// or button, and losing the focus does not end it. On a handle of the selected rectangle the button holds
/// that. Takes no keyboard focus: the scroll area has it. Main thread.
class NorvexViewWidget final : public QWidget, public ViewHost {
  Q_OBJECT
 public:
  explicit NorvexViewWidget(QWidget* parent = nullptr);
  ~NorvexViewWidget() override;

  [[nodiscard]] NorvexView& view() { return view_; }
  [[nodiscard]] const NorvexView& view() const { return view_; }
  /// The scroll area around it, which calls this. Not owned.
  void setScrollArea(ZoomingScrollArea* area);

  /// The ground under the picture: a colour over the whole clip, or (an invalid colour) a checkerboard where
  /// the view is and the window's colour around it.
  void setBackground(const QColor& color);

  /// True: the background colour is that of the picture alone, on the window's own ground; otherwise it fills
  /// all that can be seen.
  void setStandsOnCanvas(bool stands);

  /// Lets the picture outside of the selected rectangle fade.
  void setDimsOutside(bool dims);

  /// What the size of the selection is written in beside it.
  void setLengthUnit(LengthUnit unit);

  /// A view point as a point of this widget and back; a widget point is in logical pixels from its top-left
  /// corner.
  [[nodiscard]] QPointF fromView(const QPointF& point) const;
  [[nodiscard]] QPointF toView(const QPointF& point) const;

  // ViewHost
  [[nodiscard]] QRectF visibleRect() const override;
  void displayRect(const QRectF& rect) override;
  void setNeedsDisplay() override { update(); }
  void frameDidChange() override;
  bool autoscroll(const QPointF& point) override;
  void scrollRectToVisible(const QRectF& rect) override;
  bool makeFirstResponder() override;
  void setPeriodicEvents(bool on) override;
  void addCrosshairCursorRect(const QRectF& rect) override;

  /// A pointer for the whole widget while something else than selecting is done with it; nothing: the view's
  /// crosshair over the part of the view that can be seen, and the usual pointer beside it.
  void setPointer(std::optional<Qt::CursorShape> shape);

  /// Shows these above the picture and beneath the selection, the last one in front, turned and zoomed as the
  /// picture is; of what else is done with the picture nothing changes. Empty: the picture itself.
  void setStandIns(const QList<PictureStandIn>& standIns);
  [[nodiscard]] const QList<PictureStandIn>& standIns() const { return standIns_; }
  /// Picture coordinates → device pixels of this widget.
  [[nodiscard]] QTransform pictureToDevice() const;

 signals:
  /// A drawing was made; tells in what time, in milliseconds (for measurements).
  void drawn(double milliseconds);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  /// View to widget coordinates; the view's upper left corner lies on a whole device pixel.
  [[nodiscard]] QTransform placement() const;
  [[nodiscard]] QRectF viewInWidget() const;
  /// Of the selected rectangle; nothing without one.
  [[nodiscard]] std::optional<SelectionHandles> handles() const;
  [[nodiscard]] std::optional<Qt::Edges> handleAt(const QPointF& point) const;
  void drawSelectionAids(QPainter& painter) const;
  void drawBackground(QPainter& painter, const QRect& dirty);
  void drawStandIns(QPainter& painter) const;
  /// The picture's outline as it is turned.
  [[nodiscard]] QPolygonF pageInWidget() const;
  void watchScreen();
  void loseTracking();
  void track(bool on);
  void showPointer(const QPointF& at);

  NorvexView view_;
  QPointer<ZoomingScrollArea> area_;
  QColor background_;
  LengthUnit unit_ = LengthUnit::Points;
  bool dimsOutside_ = false, onCanvas_ = false;
  bool tracking_ = false, painting_ = false, screenWatched_ = false;
  QTimer periodic_;
  QPointF pointer_;   ///< where the pointer was last seen during a drag; global, logical pixels
  QRectF crosshair_;  ///< where the crosshair is shown; view coordinates
  std::optional<Qt::CursorShape> shape_;
  std::optional<Qt::Edges> held_;  ///< while a handle is dragged
  QList<PictureStandIn> standIns_;
};

}  // namespace norvex
