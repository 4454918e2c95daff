// MemoryViewHost: a host without a window. It keeps the order in which it was called.
#pragma once

#include <QStringList>

#include <functional>

#include "display/view_host.h"

namespace norvex {

class MemoryViewHost final : public ViewHost {
 public:
  [[nodiscard]] QRectF visibleRect() const override { return visible; }
  void displayRect(const QRectF& rect) override;
  void setNeedsDisplay() override;
  void frameDidChange() override;
  bool autoscroll(const QPointF& point) override;
  void scrollRectToVisible(const QRectF& rect) override;
  bool makeFirstResponder() override;
  void setPeriodicEvents(bool on) override;
  void addCrosshairCursorRect(const QRectF& rect) override;

  QRectF visible;                            ///< answer of visibleRect()
  bool agreesToFirstResponder = true;        ///< answer of makeFirstResponder()
  std::function<void(const QRectF&)> paint;  ///< called by displayRect(), in the place of a window's drawing
  QStringList calls;                         ///< one entry a call: its name and, after a blank, its argument
};

}  // namespace norvex
