// How a window shows its picture: angle, zoom and page, from the start and as they are remembered.
#pragma once

#include <optional>

#include "document/picture_view.h"

namespace norvex {

class MainWindowController;
class WindowSizingCommand;

/// Controller and sizing outlive it. Main thread.
class ShownView final {
 public:
  ShownView(MainWindowController& controller, WindowSizingCommand& sizing)
      : controller_(controller), sizing_(sizing) {}

  /// Upright, at the natural size, from the top; the controller's zoom follows the scroll view from then on.
  void reset();
  /// As the picture was shown when it was closed last.
  void setFirst(const PictureView& view) { first_ = view; }
  /// Shows the picture so; once, and only when there is one.
  void takeFirst();
  /// As it is shown now; nothing without a picture.
  [[nodiscard]] std::optional<PictureView> now() const;

 private:
  MainWindowController& controller_;
  WindowSizingCommand& sizing_;
  std::optional<PictureView> first_;
  bool followsFactor_ = false;
};

}  // namespace norvex
