// The document window's size and place.
#pragma once

#include <QSizeF>

#include "display/window_sizing.h"

class QWindowStateChangeEvent;

namespace norvex {

class WindowParts;

/// Measures the window, applies the size rule (display/window_sizing.h) to it and keeps its frame from one
/// document to the next. The parts outlive it. Main thread.
class WindowSizingCommand final {
 public:
  explicit WindowSizingCommand(WindowParts& parts) : parts_(parts) {}

  /// The maximum window size for a wanted visible size of the picture.
  [[nodiscard]] QSizeF maxSize(const QSizeF& size) const;
  /// Gives the window its maximum size and shrinks it to that. Never enlarges it.
  void apply();
  void windowStateDidChange(const QWindowStateChangeEvent& event);
  void restoreFrame();
  void saveFrame() const;

 private:
  [[nodiscard]] WindowMeasures measures() const;
  void settleLayout() const;

  WindowParts& parts_;
};

}  // namespace norvex
