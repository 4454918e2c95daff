// Threads for work that goes on behind a window.
#pragma once

class QThreadPool;

namespace norvex {

/// For work that mostly waits for picture processes. Qt paints on the global pool and waits for it: work that
/// waits must run elsewhere, or a window stands still until another one's picture is made. One that waits
/// long does not hold up the others. Thread-safe; lives as long as the program.
[[nodiscard]] QThreadPool& waitingThreads();

/// How much nicer than frames everything is that works behind a window: a tenth of a processor is left to it
/// where everything is busy.
inline constexpr int kNicerThanFrames = 10;

}  // namespace norvex
