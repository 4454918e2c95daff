// Memory that a process holds and that nobody uses at the moment.
#pragma once

namespace norvex {

/// Gives back to the system the free parts of the heap, and the pages of the program and its libraries that
/// are as they are in their files: most of them only the start has read. What is needed again is there again
/// with the first access, from the system's own cache. Takes about a millisecond; thread-safe.
void giveBackUnusedMemory();

/// From now on every large block of memory is the system's own and goes back to it when it is freed.
/// Otherwise the heap learns from the first large block that is freed to keep such blocks for the next, and
/// each of its parts (one for some threads) grows to the most that these threads ever had at a time. For
/// programs that go over many files with many threads; thread-safe.
void giveBackLargeBlocks();

}  // namespace norvex
