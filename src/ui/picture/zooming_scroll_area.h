// ZoomingScrollArea: the scroll view's widget, with the zoom menu at the left end of the horizontal bar.
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <optional>

#include "display/skt_zooming_scroll_view.h"
#include "ui/picture/clip_cards.h"

class QComboBox;
class QScrollBar;

namespace norvex {

class FactorBox;
class NorvexViewWidget;

/// Lays out clip, bars and menu as its SKTZoomingScrollView says, and turns wheel, pinch and panning into
/// calls of it. Wheel: scrolls; with Shift sideways; with Ctrl zooms at the pointer. Middle button or Space
/// and left button, or two fingers: pan. Has the keyboard focus for its view, which takes none: arrows, page
/// keys, Home and End scroll. The vertical bar takes room only while there is something to scroll up and
/// down. Main thread.
class ZoomingScrollArea final : public QWidget {
  Q_OBJECT
 public:
  explicit ZoomingScrollArea(QWidget* parent = nullptr);
  ~ZoomingScrollArea() override;

  [[nodiscard]] SKTZoomingScrollView& scrollView() { return scrollView_; }
  /// Becomes the child that fills the clip. Not null; owned by this widget from now on.
  void setDocumentWidget(NorvexViewWidget* widget);

  [[nodiscard]] QColor backgroundColor() const { return background_; }
  void setBackgroundColor(const QColor& color);
  /// True if the clip (the content view) draws that colour; a checkerboard shows where it does not.
  void setDrawsBackground(bool draws);
  [[nodiscard]] bool drawsBackground() const { return drawsBackground_; }

  /// Nothing but the picture: neither bars nor menu.
  void setBare(bool bare);

  /// Size of the clip, logical pixels.
  [[nodiscard]] QSizeF contentSize() const;
  /// The same where nothing is to be scrolled up and down: the window's size rule measures this, so that it
  /// does not depend on what is scrolled.
  [[nodiscard]] QSizeF roomWithoutBar() const;
  /// What the vertical bar takes of the width while it is there.
  [[nodiscard]] static int barExtent();
  [[nodiscard]] QWidget* clip() const { return clip_; }
  [[nodiscard]] QComboBox* popUp() const;
  [[nodiscard]] QScrollBar* horizontalBar() const { return horizontal_; }
  [[nodiscard]] QScrollBar* verticalBar() const { return vertical_; }

  /// The largest factor at which the whole view can be seen.
  [[nodiscard]] double fittingFactor() const;
  /// The largest factor at which all of its width can be seen, beside the bar where its height takes one.
  [[nodiscard]] double fittingWidthFactor() const;
  /// Shows the upper left corner of the view.
  void scrollToTop();
  /// Where the clip stands, to come back to it later; logical pixels from the view's upper left corner.
  [[nodiscard]] QPointF scrollOffset();
  void setScrollOffset(const QPointF& offset);
  /// Lays a card over the clip, centred at its top or bottom edge. Not owned.
  void addCard(QWidget* card, Qt::Edge edge);
  /// Moves the card to the other edge where it lies over `place` (of the screen) and would not there.
  void keepCardOff(const QWidget& card, const QRect& place);

  /// True if the keyboard focus came with Tab: a line around every picture would be in the way of the others.
  [[nodiscard]] bool showsFocus() const { return showsFocus_; }

  /// True while Space is down and a press of the left button pans, whatever else it would do.
  [[nodiscard]] bool holdsSpace() const { return spaceHeld_; }

  // For the view's widget; points and rectangles in logical pixels of the clip.
  void documentFrameDidChange();
  void takeFocusByMouse();
  bool showPoint(const QPointF& point);
  void showRect(const QRectF& rect);

 public slots:
  /// Makes bars, menu, cards and picture follow the scroll view.
  void synchronize();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] int stripHeight() const;
  [[nodiscard]] bool needsBar() const;
  void layOut();
  void styleBars();
  void applyBackground();
  void scrolled();
  void scrollBy(const QPointF& delta);
  bool pinch(QEvent* event);
  bool pan(QEvent* event);
  bool holdSpace(const QKeyEvent& event);
  void showHand();
  void pinchTo(double factor, const QPointF& global);

  SKTZoomingScrollView scrollView_;
  QWidget* clip_;
  QScrollBar* horizontal_;
  QScrollBar* vertical_;
  FactorBox* popUp_;
  ClipCards cards_;
  QPointer<NorvexViewWidget> document_;
  QColor background_ = Qt::white;
  bool drawsBackground_ = true;
  bool bare_ = false;
  bool barTakesRoom_ = false;  ///< in what was laid out last
  bool showsFocus_ = false;
  bool spaceHeld_ = false;
  std::optional<QPointF> panFrom_;  ///< where the pointer was; clip coordinates
};

}  // namespace norvex
