// An inch of the picture as an inch of the screen.
#pragma once

#include <QObject>

class QAction;

namespace norvex {

class WindowParts;

/// The zoom at which 72 points are as long as an inch, from the dots that the screen says it has to an inch;
/// from those that its texts are set for where that cannot be true (a projector, a screen that tells
/// nothing). Both in logical pixels an inch.
[[nodiscard]] double realSizeFactor(double physicalDots, double logicalDots);

/// The command that shows it. The parts outlive it. Main thread.
[[nodiscard]] QAction* makeRealSizeAction(WindowParts& parts, const QAction& actualSize);

}  // namespace norvex
