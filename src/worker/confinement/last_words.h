// How a document's process tells why it ends when a library of it cannot go on.
#pragma once

#include "protocol/worker_protocol.h"

namespace norvex {

/// From now on a crash of this thread becomes an exit code (protocol/process_end.h) where a document has used
/// up the stack or the memory: libraries recurse, abort and write through null pointers then. Other crashes
/// stay what they are. Called when no more memory will be granted than `limits` says, by the thread that
/// reads the document.
void tellWhatEndsUs(const PictureLimits& limits);

}  // namespace norvex
