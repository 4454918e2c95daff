#include "window/viewing/real_size.h"

#include <QAction>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>
#include <cmath>

#include "base/localized_string.h"
#include "display/skt_zooming_scroll_view.h"
#include "display/zoom_factors.h"
#include "window/commands/followed_action.h"
#include "window/commands/window_parts.h"

namespace norvex {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kFewestDots = 45, kMostDots = 400;  // of a wall and of a telephone

}  // namespace

double realSizeFactor(double physicalDots, double logicalDots) {
  const bool believed = physicalDots >= kFewestDots && physicalDots <= kMostDots;
  const double dots = believed ? physicalDots : logicalDots;
  if (!std::isfinite(dots) || dots <= 0) return 1;
  return std::clamp(dots / kPointsPerInch, smallestZoomFactor, largestZoomFactor);
}

QAction* makeRealSizeAction(WindowParts& parts, const QAction& actualSize) {
  auto* action = new QAction(localizedString("&Real Size on This Screen"), parts.mainWindow());
  action->setObjectName(QStringLiteral("realSizeAction"));
  action->setShortcut(Qt::CTRL | Qt::Key_2);
  enableWith(*action, actualSize);
  QObject::connect(action, &QAction::triggered, action, [&parts] {
    const QScreen* screen = parts.mainWindow()->screen();
    if (screen)
      parts.zoomingScrollView()->zoomTo(
          realSizeFactor(screen->physicalDotsPerInch(), screen->logicalDotsPerInch()));
  });
  return action;
}

}  // namespace norvex
