// Where a window comes up that belongs to another one.
#pragma once

class QSize;
class QWidget;

namespace norvex {

/// Moves `window`, which is not shown yet, over the middle of the other one, or of the screen where there is
/// none, wholly onto that screen.
void centreOver(QWidget& window, const QWidget* other);

/// `wanted`, or as much of it as the screen of `window` has room for with a title bar.
[[nodiscard]] QSize fittingScreen(const QWidget& window, const QSize& wanted);

/// A size that was chosen for texts as most people have them, larger by as much as those of `window` are, and
/// no larger than its screen.
[[nodiscard]] QSize sizeForTexts(const QWidget& window, const QSize& usual);

}  // namespace norvex
