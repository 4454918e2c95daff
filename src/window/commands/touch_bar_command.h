// The strip that shows the window's Touch Bar where there is no such hardware.
#pragma once

#include <functional>

#include "window/commands/touch_bar.h"

namespace norvex {

class TouchStrip;
class WindowParts;

/// The parts, the bar's delegate and what `perform` refers to outlive it. Main thread.
class TouchBarCommand final {
 public:
  using Perform = std::function<void(TouchBarAction)>;

  TouchBarCommand(WindowParts& parts, NSTouchBarDelegate& delegate, Perform perform)
      : parts_(parts), delegate_(delegate), perform_(std::move(perform)) {}

  /// Shows the bar as a strip of large buttons below the picture, or hides it.
  void show(bool on);
  /// Null before the strip was first shown.
  [[nodiscard]] TouchStrip* strip() const { return strip_; }
  /// Enables the buttons exactly when there is a picture; the one that reads the file again when `mayReload`.
  void validate(bool mayReload);

 private:
  WindowParts& parts_;
  NSTouchBarDelegate& delegate_;
  Perform perform_;
  TouchStrip* strip_ = nullptr;
};

}  // namespace norvex
