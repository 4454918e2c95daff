// Memory that a process holds and that nobody uses at the moment.
#pragma once

namespace norvex {

/// Gives back to the system the free parts of the heap, and the pages of the program and its libraries that
/// are as they are in their files: most of them only the start has read. What is needed again is there again
/// with the first access, from the system's own cache. Takes about a millisecond; thread-safe.
void giveBackUnusedMemory();

}  // namespace norvex
