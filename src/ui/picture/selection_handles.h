// Where a selected rectangle is taken hold of with the mouse.
#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <Qt>

#include <optional>

class QPainter;

namespace norvex {

/// Eight squares to size a rectangle, around it and not on it, and a label with its size to move it: what
/// goes down on the rectangle itself, its outline included, begins another selection. All rectangles are
/// upright, in logical pixels of a widget, y down; edges are those that are seen, so that Bottom is the lower
/// one.
class SelectionHandles {
 public:
  /// How far handles reach beyond the rectangle.
  static constexpr int reach = 14;

  /// `selection` may lie partly outside of `seen`, the part of the widget where handles can be. `label` is
  /// not shown where it has no room. `movable`: false where the rectangle has nowhere to go.
  SelectionHandles(const QRectF& selection, const QRectF& seen, const QRectF& labelRoom, const QFont& font,
                   const QString& label, bool movable);

  /// Where the handle of those edges is; null: it is not shown.
  [[nodiscard]] QRectF square(Qt::Edges edges) const;
  [[nodiscard]] const QRectF& label() const { return label_; }
  /// The edges that a press there takes hold of, all of them on the label; nothing: no handle is there.
  [[nodiscard]] std::optional<Qt::Edges> at(const QPointF& point) const;
  void draw(QPainter& painter) const;

 private:
  [[nodiscard]] QRectF labelArea(const QRectF& room, const QFont& font) const;
  void drawLabel(QPainter& painter) const;

  QRectF selection_, seen_;
  QString text_;
  bool movable_;
  QRectF label_;
};

/// The pointer over a handle, and while it is held.
[[nodiscard]] Qt::CursorShape cursorOf(Qt::Edges edges);

}  // namespace norvex
