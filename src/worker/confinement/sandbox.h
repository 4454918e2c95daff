// The confinement of a document's process: the one place where its layers are put on.
#pragma once

#include <QString>

#include <string>

#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/confinement/layers.h"

namespace norvex {

/// How a process is confined.
struct SandboxPolicy {
  PictureLimits limits;
  QString scratchFolder;            ///< where temporary files go; empty: nowhere
  bool writesScratchFiles = false;  ///< itself, and not a program that it starts
  /// Libraries are loaded or one program is started after enterSandbox(): sealSandbox() follows.
  bool preparationToCome = false;
  ConfinementLayers layers;  ///< which are wanted: all but in tests
};

/// Called once, first thing, by a process that others are forked from, while it has one thread: a view of the
/// file system, which they inherit, and what is made once for all. `scratchRoot` is where their scratch
/// folders will be made; empty: there will be none. `writeScratchFiles`: as SandboxPolicy of theirs has it.
/// A layer that the system refuses is left out.
void prepareSandboxes(const std::string& scratchRoot, const ConfinementLayers& layers = {},
                      bool writeScratchFiles = false);

/// Gives up, for ever, what a document's process does not need: privileges, memory, files and time beyond
/// limits; files but those that engines need (Landlock); and, unless preparation is to come, system calls
/// that are on no list. Called once, in the fresh child, while it has one thread, before the first byte of a
/// document is read. The scratch folder becomes the temporary folder.
///
/// Fails with NoSandbox when the layers that could be put on do not keep documents from the user's files; the
/// process must then refuse every request.
[[nodiscard]] Result<void> enterSandbox(const SandboxPolicy& policy);

/// After preparation: the memory limit from what is in use now, and the list of system calls, behind which
/// nothing is started, forked or opened for writing any more. Still one thread, and not a byte of a document.
[[nodiscard]] Result<void> sealSandbox(const SandboxPolicy& policy);

/// Makes what sealStartedProgram() needs, which must not take memory any more: before the fork.
void prepareToSealPrograms();

/// For the child of a process between enterSandbox() and sealSandbox(), between fork and exec: the same for
/// the program that it becomes. `seconds` of wall time are granted to it. False: it must not start.
[[nodiscard]] bool sealStartedProgram(int seconds);

}  // namespace norvex
