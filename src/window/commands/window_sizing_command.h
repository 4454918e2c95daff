// The document window's size and place.
#pragma once

#include <QSize>
#include <QSizeF>

#include "display/window_sizing.h"

class QWindowStateChangeEvent;

namespace norvex {

class WindowParts;

/// Measures the window, applies the size rule (display/window_sizing.h) to it and keeps its frame from one
/// document to the next. The rule bounds what this program does with the window; maximising and tiling are
/// the user's, and a size that only the rule gave is not kept. The parts outlive it. Main thread.
class WindowSizingCommand final {
 public:
  explicit WindowSizingCommand(WindowParts& parts) : parts_(parts) {}

  /// The maximum window size for a wanted visible size of the picture.
  [[nodiscard]] QSizeF maxSize(const QSizeF& size) const;
  /// Gives the window its maximum size and shrinks it to that. Never enlarges it. Where the user has freed
  /// the window from the rule, its size is left alone.
  void apply();
  /// Before the window appears for the first time: where, wholly on a screen with what surrounds it; in the
  /// middle of the pointer's screen where no place is remembered.
  void place();
  /// Somebody gave the window another size.
  void windowDidResize();
  void windowStateDidChange(const QWindowStateChangeEvent& event);
  void restoreFrame();
  void saveFrame() const;

 private:
  [[nodiscard]] WindowMeasures measures() const;
  void settleLayout() const;
  void leaveRoomToTheUser() const;
  void shrinkWhenAtRest();
  [[nodiscard]] bool isTiled() const;

  WindowParts& parts_;
  QSize chosen_;  ///< the last size that was the user's choice, or the usual one
  QSize own_;     ///< that the rule gave; none: it has not shrunk the window
  bool hasPlace_ = false;
  int resizes_ = 0;
};

}  // namespace norvex
