// The main function of a picture process, apart from the engines that it is given.
#pragma once

#include <functional>

#include "worker/confinement/layers.h"
#include "worker/engine_set.h"
#include "worker/fork_server.h"

namespace norvex {

/// Gives engines that can do what is needed, which stay where they are. Asked in the process that forks the
/// others, before a child that needs them is forked, so that later children share them; and in the child
/// before the first byte of a document is read.
using EngineSource = std::function<Result<const EngineSet*>(PictureNeeds)>;

/// The engines and services of a picture process.
struct WorkerEngines {
  EngineSource source;
  /// Starts the interpreter of PostScript in a child that will need it, before its engines are asked for; may
  /// be empty.
  std::function<void(engine::EngineContext&)> startPostScript;
  ForkServer::WarmUp warmUp;  ///< may be empty
};

/// The life of the child for one document: it confines itself and serves. Without engines it answers why
/// there are none.
/// `processors`: for EngineContext, asked for in the child; empty: one.
[[nodiscard]] ForkServer::ChildMain documentChild(const WorkerEngines& engines,
                                                  const ConfinementLayers& layers = {},
                                                  const std::function<int()>& processors = {});

/// Runs `norvex-worker SCRATCH_ROOT NEEDS [postscript] [pdf-inks]` with the control connection as
/// controlDescriptor; gives the exit code. NEEDS is the number of the PictureNeeds that are expected, whose
/// engines are asked for at once; 0: nobody knows. With `postscript` norvex-postscript is started at once,
/// else with the first document that needs it; with `pdf-inks` one that reads PDF. The scratch root is
/// removed at the end. `layers`: less than all of them in programs for tests. `norvex-worker
/// --sandbox-status` tells what this system confines documents with, and 6 when it is nothing.
int runWorkerProgram(int argc, char** argv, const WorkerEngines& engines,
                     const ConfinementLayers& layers = {});
/// Runs `norvex-picture-…` with the line to the only picture of a run as controlDescriptor: what a forked
/// child does, but that nobody forked it and that it gets no scratch folder. Ends with the line, or with the
/// thread that started it.
int runPictureProgram(const EngineSet& engines);
/// The same as runWorkerProgram() for other children (tests). `atEnd`: called when all of them are gone,
/// before the scratch root is removed.
int runForkServer(int argc, char** argv, ForkServer::ChildMain childMain, ForkServer::WarmUp warmUp = {},
                  ForkServer::Prepare prepare = {}, ForkServer::Wish wish = {},
                  const std::function<void()>& atEnd = {});

}  // namespace norvex
