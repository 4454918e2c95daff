// The document window's size and place.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QSizeF>

#include "display/window_sizing.h"
#include "window/place/window_placing.h"

class QWindowStateChangeEvent;

namespace norvex {

class WindowParts;

/// Measures the window, applies the size rule (display/window_sizing.h) to it and keeps its frame from one
/// document to the next. The rule bounds what this program does with the window; maximising and tiling are
/// the user's and last until the user ends them, and a size that only the rule gave is not kept. The parts
/// outlive it. Main thread.
class WindowSizingCommand final {
 public:
  explicit WindowSizingCommand(WindowParts& parts) : parts_(parts) {}

  /// The maximum window size for a wanted visible size of the picture.
  [[nodiscard]] QSizeF maxSize(const QSizeF& size) const;
  /// Gives the window its maximum size and shrinks it to that. Never enlarges it. Where the user has freed
  /// the window from the rule, its size is left alone.
  void apply();
  /// apply() waits for release(), which does it once: what is shown on the way, at its natural size, takes
  /// nothing of the window from a picture that is to be shown larger.
  void hold() { held_ = true; }
  void release();
  /// Before the window appears for the first time: where, wholly on a screen with what surrounds it; in the
  /// middle of the pointer's screen where no place is remembered.
  void place();
  /// Before the window is loaded: the upper left corner of its contents, of a window whose place it takes.
  void takePlace(const QPoint& corner) { placing_.takePlace(corner); }
  /// For a window that takes the place of this one.
  [[nodiscard]] QPoint cornerToHandOn() const { return placing_.cornerToHandOn(); }
  /// A picture is to be shown. The first one begins at the size that the user chose, whatever the window had
  /// to show until then.
  void pictureComes();
  /// The first picture has its size. When it comes later than its window, apply() places the window as if it
  /// had come before; one that was taken elsewhere meanwhile keeps its upper left corner, on the screen.
  /// `follows`: its zoom follows the window, and both find their size within a while.
  void firstPictureIsShown(bool follows);
  /// Somebody gave the window another size.
  void windowDidResize();
  void windowStateDidChange(const QWindowStateChangeEvent& event);
  /// The window had this size, and got another one for what stands beside the picture: no choice of the
  /// user's, if the one before was none.
  void windowDidGrow(const QSize& before);
  /// Gives the window a place of the program's choice, as far as it is on a screen.
  void put(const QRect& contents);
  /// The largest size that the window's screen has room for.
  [[nodiscard]] QSize most() const { return placing_.most(); }
  /// Measures of a window that is not seen are wrong without it: it lays its children out when it is shown.
  void settleLayout() const;
  void restoreFrame();
  void saveFrame() const;

 private:
  [[nodiscard]] WindowMeasures measures() const;
  void leaveRoomToTheUser() const;
  void shrinkWhenAtRest();
  /// What pages and layers take at the window's left edge: they come and go with a document, and are no part
  /// of a size that is kept for the next.
  [[nodiscard]] QSize besidePicture() const;
  [[nodiscard]] bool isTiled() const;
  /// True if the picture is higher than the room that the window has for it.
  [[nodiscard]] bool needsBar() const;
  [[nodiscard]] bool isOwn(const QSize& size) const;
  void settle();

  WindowParts& parts_;
  WindowPlacing placing_;
  QSize chosen_;  ///< the last size that was the user's choice, or the usual one; without besidePicture()
  QSize own_;     ///< that the program gave it, by the rule or from what is kept
  bool awaits_ = true;  ///< its first picture has not come, or is not settled
  bool hadPicture_ = false;
  bool countsBar_ = false;  ///< the last apply() left room for the vertical scroll bar
  bool held_ = false;
  bool restores_ = false;   ///< the window manager is about to give it the size back that it had
  bool wasOwn_ = false;     ///< its size, before it became as large as its screen
  bool keepsTile_ = false;  ///< the last apply() found it tiled, and left it so
  int resizes_ = 0;
};

}  // namespace norvex
