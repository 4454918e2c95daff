// The confinement of a document's process: the one place where its layers are put on.
#pragma once

#include <QString>

#include "base/result.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// Gives up, for ever, what a document's process does not need. Called once, in the fresh child, while it has
/// one thread, before the first byte of a document is read.
///
/// Built so far: no new privileges; no core files; limits on address space, file size and open files; the
/// scratch folder (empty: none) as temporary folder; first choice of the system when memory runs out. NOT
/// built yet: the Landlock rules and the seccomp filter. Until they are, a document that takes over an engine
/// can read what the user can read.
///
/// Fails with NoSandbox; the process must then refuse every request.
///
/// `librariesToCome`: libraries are loaded afterwards; there is room for them until limitMemory() is called.
[[nodiscard]] Result<void> enterSandbox(const PictureLimits& limits, const QString& scratchFolder,
                                        bool librariesToCome = false);

/// The limit on address space, from what is in use now; once the libraries are loaded. It can only fall.
[[nodiscard]] Result<void> limitMemory(const PictureLimits& limits);

}  // namespace norvex
