// A process's own entries of /proc, for where there is no /proc.
#pragma once

#include <cstdint>

namespace norvex {

/// Opens /proc for later. Called before a file view is entered, and once more harmless.
void openProcessFiles();
/// The opened place of /proc, for a program that is started from where there is no /proc; -1: nothing.
[[nodiscard]] int openedProcessFiles();
/// In such a program: takes over the descriptor that it was given, if it was.
void adoptProcessFiles(int descriptor);
/// Moves what openProcessFiles() opened, if it did, to this number, and gives the first number behind it: for
/// a process that closes everything from there on. The other functions still find it.
[[nodiscard]] int moveProcessFiles(int descriptor);
/// Closes it: called before a document is read.
void closeProcessFiles();

/// Bytes of address space that this process has mapped; 0: not to be found out. Asked once before files are
/// out of reach it can be asked until closeProcessFiles(); a process that forks others does not ask.
[[nodiscard]] uint64_t mappedBytes();
/// Makes this process the first choice when the system's memory runs out, as far as it may.
void volunteerWhenMemoryRunsOut();

}  // namespace norvex
