// A thread for work that may be late.
#pragma once

class QThreadPool;

namespace norvex {

/// How much nicer than frames everything is that works behind a window: a tenth of a processor is left to it
/// where everything is busy.
inline constexpr int kNicerThanFrames = 10;

/// One thread that leaves the processor to whatever draws frames. Thread-safe; lives as long as the program.
[[nodiscard]] QThreadPool& yieldingThread();

}  // namespace norvex
