// A thread for work that may be late.
#pragma once

class QThreadPool;

namespace norvex {

/// One thread that leaves the processor to whatever draws frames, on a level with the picture processes
/// behind a window. Thread-safe; lives as long as the program.
[[nodiscard]] QThreadPool& yieldingThread();

}  // namespace norvex
