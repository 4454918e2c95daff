// The place of a document window on its screen.
#pragma once

#include <QMargins>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSize>

#include <optional>

#include "ui/panels/window_place.h"

class QMainWindow;

namespace norvex {

/// Puts a window where it is wanted and keeps it wholly on a screen wherever this program moves or sizes it.
/// What surrounds a window is known for certain only a while after it was shown; before, it is taken from
/// another window or from what was kept, and looked at again. Where the user takes a window it stays. All
/// rectangles are of the window's contents, in logical pixels. Main thread.
class WindowPlacing final {
 public:
  /// The window is on no screen yet. Not owned.
  void setWindow(QMainWindow* window);

  /// The upper left corner of its contents, of a window whose place it takes; nothing makes it step aside.
  void takePlace(const QPoint& corner);
  /// The corner of its frame when it was closed last; unless it takes a window's place.
  void remember(const QPoint& frameCorner);
  /// Where a window of that size comes up: at the wanted corner, in the middle of the pointer's screen
  /// without one, aside from other windows.
  [[nodiscard]] QRect placeFor(const QSize& size) const;
  /// The rectangle on the screens, changed only where it hangs over.
  [[nodiscard]] QRect onScreen(const QRect& contents) const;
  /// The largest contents that the window's screen has room for.
  [[nodiscard]] QSize most() const;

  /// Moves and sizes the window.
  void give(const QRect& contents);
  /// The window has got this size without having been moved.
  void noteSize();
  [[nodiscard]] bool wasGiven(const QSize& size) const;
  /// True while nobody but give() has moved or sized it.
  [[nodiscard]] bool isAsGiven() const;
  /// From now on it is wanted where it is.
  void stay();

  /// The window is to be shown: settle() is due in a while.
  void appears() { settled_ = false; }
  /// The desktop has put its frame around the window, which is remembered. A window that hangs over for what
  /// was not known before is moved.
  void settle();
  /// A window that the program left hanging over its screen is moved.
  void keepOnScreen();
  /// The corner for a window that takes the place of this one: where this one was wanted, even if its size
  /// left no room for it there.
  [[nodiscard]] QPoint cornerToHandOn() const;
  /// What surrounds the window, as far as it is known.
  [[nodiscard]] QMargins frame() const;

 private:
  [[nodiscard]] bool isLarge() const;
  [[nodiscard]] WindowRoom room() const;

  QPointer<QMainWindow> window_;
  std::optional<QPoint> wanted_;  ///< of the contents
  std::optional<QRect> given_;
  bool replaces_ = false;  ///< another window, which goes
  bool settled_ = true;    ///< false from appears() on
};

}  // namespace norvex
