// Keys that a command takes before the window's command with the same key.
#pragma once

#include <Qt>

class QEvent;

namespace norvex {

/// True if `event` announces a press of `key` or is one, alone or with Shift; it is accepted then. Nothing is
/// to be done until the press itself.
[[nodiscard]] bool takesKey(QEvent& event, Qt::Key key);

/// The same of the keys that copy everywhere.
[[nodiscard]] bool takesCopy(QEvent& event);

}  // namespace norvex
