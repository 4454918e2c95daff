// Where the pointer is in the picture.
#pragma once

#include <QObject>
#include <QPointF>

#include <optional>

#include "display/length_text.h"

class QToolButton;

namespace norvex {

class WindowParts;

/// A field in the window's lower bar: the size of the picture, and its coordinates under the pointer, counted
/// as the selection's corners are, in a unit that a click changes and that is remembered. The size of the
/// selection is written beside it in that unit, too. The parts outlive it. Main thread.
class PointerReadout final : public QObject {
  Q_OBJECT
 public:
  PointerReadout(WindowParts& parts, QObject* parent);

  /// Adds the field to the window.
  void setUp();
  /// Another picture is shown.
  void pictureDidChange() { show(); }
  [[nodiscard]] QToolButton* field() const { return field_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// A point of the view's widget in picture coordinates; nothing beside the picture.
  [[nodiscard]] std::optional<QPointF> pictureAt(const QPointF& point) const;
  void stepUnit();
  void show();
  /// What is told while the pointer is not over the picture: how large that is.
  [[nodiscard]] QString wholeText() const;

  WindowParts& parts_;
  QToolButton* field_ = nullptr;
  LengthUnit unit_ = LengthUnit::Points;
  std::optional<QPointF> at_;  ///< where the pointer was last seen; nothing: not over the picture
};

}  // namespace norvex
