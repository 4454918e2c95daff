// Commands that are enabled together.
#pragma once

#include <QAction>

namespace norvex {

/// From now on `action` is enabled exactly while `leader` is; of two of the same window. Main thread.
inline void enableWith(QAction& action, const QAction& leader) {
  action.setEnabled(leader.isEnabled());
  QObject::connect(&leader, &QAction::enabledChanged, &action, &QAction::setEnabled);
}

}  // namespace norvex
