// Where a window may stand: wholly on a screen, with all that the desktop draws around it.
#pragma once

#include <QList>
#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>

class QScreen;

namespace norvex {

/// Of what desktops draw around a window; how much it is this time is known only a while after it is shown.
inline constexpr QMargins usualFrame(4, 32, 4, 6);

/// Logical pixels, y down, like every rectangle here.
struct WindowRoom {
  QList<QRect> screens;  ///< of each what windows may cover
  QMargins frame;        ///< what surrounds a window's contents: its title bar and edges
};

/// The contents of a window on the screen that it takes the least to bring them to: moved, and made smaller
/// only where the screen has no room for them, so that nothing of them or around them lies beside it.
/// Contents that are there already stay as they are. They get no smaller than `least`; what is too large even
/// so has its upper left corner, and with it its title bar, on the screen. Steps aside from the corners of
/// contents that are taken: windows do not hide each other. Without screens as it is.
[[nodiscard]] QRect placedOnScreens(const QRect& contents, const WindowRoom& room, const QSize& least = {},
                                    const QList<QPoint>& taken = {});

/// The contents of a window of that size beside the frame of another one: to the right of it, where there is
/// no room to the left, where there is none either at the right edge of the screen; wholly on the screen.
[[nodiscard]] QRect placedBeside(const QRect& other, const QSize& contents, const QRect& screen,
                                 const QMargins& frame = usualFrame);

/// What windows may cover of a screen, without the logical pixels at its far edges that a scale which is no
/// whole number lets it have in part.
[[nodiscard]] QRect roomOn(const QScreen& screen);
/// Of all the screens that there are.
[[nodiscard]] QList<QRect> roomOnScreens();

}  // namespace norvex
