// Diagnostics go to the system log, never to the user.
#pragma once

namespace norvex {

/// From now on everything that is written with Qt's logging goes to the system log, and nothing of it to
/// standard error. What was switched off by logging rules stays off. Call it once, in main. Thread-safe
/// afterwards.
void sendMessagesToSystemLog();

}  // namespace norvex
