// The desktop's colours, for a while.
#pragma once

#include <QApplication>
#include <QPalette>

namespace norvex::kit {

/// As if the desktop had been given these colours; it has its own again when this ends. Main thread.
class DesktopPalette {
 public:
  explicit DesktopPalette(const QPalette& palette) { QApplication::setPalette(palette); }
  ~DesktopPalette() { QApplication::setPalette(before_); }
  DesktopPalette(const DesktopPalette&) = delete;
  DesktopPalette& operator=(const DesktopPalette&) = delete;

 private:
  const QPalette before_ = QApplication::palette();
};

}  // namespace norvex::kit
