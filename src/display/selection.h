// Selection: what two drags of the mouse mark, as a state machine that knows neither window nor picture.
//
// The first drag places a start point, the second stretches a rectangle from it, a click without a drag
// removes either. An existing rectangle can also be taken hold of by its edges. The state is encoded in the
// size alone (see state()), because that is what every reader of the selection rectangle goes by.
#pragma once

#include <QPointF>
#include <QRectF>
#include <Qt>

namespace norvex {

/// Coordinates: view points, y up; rect().topLeft() is therefore the lower-left corner. Main thread only.
class Selection {
 public:
  enum class State {
    None,        ///< nothing is marked (or a side is zero while a drag is under way)
    StartPoint,  ///< width above 0 (1 when at rest), height 0; the origin is the start point
    Rectangle,   ///< width and height above 0
  };
  /// The action that is left once the mouse button is up.
  enum class Ending {
    Done,     ///< nothing: what the last tracked point showed stays
    Changed,  ///< the selection was set back to its start point: show and report it again
    Clear,    ///< the selection is to be cleared, with all that clearing entails
  };

  [[nodiscard]] State state() const;
  [[nodiscard]] const QRectF& rect() const { return rect_; }
  /// The start point, one corner of the rectangle that the second drag stretches.
  [[nodiscard]] const QPointF& downPoint() const { return downPoint_; }
  /// Between press() and release() or cancel().
  [[nodiscard]] bool tracking() const { return drag_ != Drag::None; }

  /// True if the pointer has moved since the last press(); without that it is a click.
  [[nodiscard]] bool sawDrag() const { return sawDrag_; }

  /// No selection, with its origin and the start point at `point`.
  void reset(const QPointF& point);
  /// The button went down. The press supplies no point; `bounds` is where tracked points are kept in.
  void press(const QRectF& bounds);
  /// The button went down at `at` on a handle of the rectangle, which holds those of its edges (Top is the
  /// one with the larger y); all of them move it. False, and nothing done, without a rectangle. A click that
  /// moves nothing is a click on the rectangle.
  bool hold(Qt::Edges edges, const QPointF& at, const QRectF& bounds);
  /// The pointer moved with the button down (`dragged`) or the button went up. Ignored unless tracking, and
  /// where a coordinate is not a number.
  void track(const QPointF& point, bool dragged);
  /// After the track() of the button going up.
  Ending release();
  /// False, and nothing done, with a width of 0 or less. The origin stays.
  bool clear();
  void select(const QRectF& rect) { rect_ = rect; }
  /// Cuts the selection back to `bounds`; a drag under way goes on inside them. False with a width of 0 or
  /// less.
  bool clampInto(const QRectF& bounds);

  /// Moves the rectangle, keeping its size and staying inside `bounds`. False when it is where it was.
  bool moveBy(const QPointF& step, const QRectF& bounds);
  /// Moves the rectangle's upper right corner, inside `bounds`; no side gets shorter than one point. False
  /// when it is as it was.
  bool resizeBy(const QPointF& step, const QRectF& bounds);

 private:
  enum class Drag { None, StartPoint, Rectangle, Edges };

  void placeStartPoint(const QPointF& point);
  void stretchTo(const QPointF& point);
  void pullTo(const QPointF& point);

  QRectF rect_;
  QPointF downPoint_;
  QRectF bounds_;
  Drag drag_ = Drag::None;
  bool sawDrag_ = false;
  Qt::Edges held_;   ///< while edges are dragged
  QPointF heldAt_;   ///< where the pointer took hold of them
  QRectF heldFrom_;  ///< the rectangle then
};

}  // namespace norvex
