// The main function of a picture process, apart from the engines that it is given.
#pragma once

#include "worker/engine_set.h"
#include "worker/fork_server.h"

namespace norvex {

/// Descriptor of the control connection in a picture process.
inline constexpr int kControlDescriptor = 3;

/// What the child for one document does: confines itself and serves.
[[nodiscard]] ForkServer::ChildMain documentChild(const EngineSet& engines);

/// Runs `norvex-worker SCRATCH_ROOT` with the control connection as descriptor 3; gives the exit code.
/// The scratch root is removed at the end.
int runWorkerProgram(int argc, char** argv, const EngineSet& engines);
/// The same for other children (tests).
int runForkServer(int argc, char** argv, ForkServer::ChildMain childMain, ForkServer::WarmUp warmUp = {});

}  // namespace norvex
