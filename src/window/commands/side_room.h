// Room for a panel beside the picture.
#pragma once

#include <QRect>

#include <functional>
#include <utility>

class QDockWidget;

namespace norvex {

class WindowParts;
class WindowSizingCommand;

/// The window grows by a panel that is shown at its side, and shrinks with it when it goes: the picture keeps
/// its room where the screen has it. What the screen did not have comes back with the panel's going. One
/// object a panel. Parts and sizing outlive it. Main thread.
class SideRoom final {
 public:
  SideRoom(WindowParts& parts, WindowSizingCommand& sizing) : parts_(parts), sizing_(sizing) {}

  /// For a panel that takes half of the window at most: gives it its width in the window as it is.
  void setFit(std::function<void()> fit) { fit_ = std::move(fit); }
  /// Nothing where it is so already. A window that fills its screen keeps its size.
  void show(QDockWidget& panel, bool shown);

 private:
  /// Makes the window as wide as it must be for a picture's room of this width, on its screen.
  void give(int picture, int least);
  void giveUnseen(int picture);

  WindowParts& parts_;
  WindowSizingCommand& sizing_;
  std::function<void()> fit_;
  QRect before_, grown_;  ///< the window's contents when the panel came and with it
  int pictureBefore_ = 0;
};

}  // namespace norvex
