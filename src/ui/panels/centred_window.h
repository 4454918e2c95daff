// Where a window comes up that belongs to another one, and how large.
#pragma once

class QSize;
class QWidget;

namespace norvex {

/// Moves `window`, which is not shown yet, over the middle of the other one, or of the screen where there is
/// none, wholly onto that screen.
void centreOver(QWidget& window, const QWidget* other);

/// Moves `window`, which is not shown yet, to the side of the other one, wholly onto its screen.
void placeBeside(QWidget& window, const QWidget& other);

/// `wanted`, or as much of it as the screen of `window` has room for with a title bar.
[[nodiscard]] QSize fittingScreen(const QWidget& window, const QSize& wanted);

/// A size that was chosen for texts as most people have them, larger by as much as those of `window` are, and
/// no larger than its screen.
[[nodiscard]] QSize sizeForTexts(const QWidget& window, const QSize& usual);

/// The least size of a preview in a panel: `usual`, or less on a screen where the choices beside it and the
/// buttons below it need the room.
[[nodiscard]] QSize leastPreview(const QWidget& window, const QSize& usual);

}  // namespace norvex
