#include "worker/confinement/sandbox.h"

#include <QFile>

#include <cstdlib>

#include "worker/confinement/file_view.h"
#include "worker/confinement/instrumented.h"
#include "worker/confinement/landlock.h"
#include "worker/confinement/last_words.h"
#include "worker/confinement/own_namespaces.h"
#include "worker/confinement/privileges.h"
#include "worker/confinement/process_files.h"
#include "worker/confinement/resource_limits.h"
#include "worker/confinement/system_calls.h"

namespace norvex {
namespace {

Error notConfined() {
  return {ErrorKind::NoSandbox,
          QStringLiteral("the picture process could not be confined: this system offers neither Landlock nor "
                         "user namespaces with seccomp filters")};
}

/// Set by enterSandbox(), read by the child that becomes a program.
bool listsSystemCalls = false;

bool wantsSystemCalls(const ConfinementLayers& layers) {
  return layers.systemCalls && !isInstrumented && hasSystemCallLists();
}

CallsFor callsFor(const SandboxPolicy& policy) {
  return policy.writesScratchFiles ? CallsFor::Interpreter : CallsFor::Engines;
}

}  // namespace

void prepareSandboxes(const std::string& scratchRoot, const ConfinementLayers& layers,
                      bool writeScratchFiles) {
  openProcessFiles();
  keepOneArena();
  if (wantsSystemCalls(layers)) {
    (void)SystemCallList::shared(writeScratchFiles ? CallsFor::Interpreter : CallsFor::Engines);
  }
  const bool forksOthers = !scratchRoot.empty();
  if (layers.fileView && !isInstrumented && !isInFileView() && enterFileView(scratchRoot)) {
    // A network of its own costs as much as all else. Who reads one document alone has no call to use one.
    if (forksOthers) (void)enterOwnNamespaces();
  }
  if (layers.landlock && forksOthers && !writeScratchFiles) prepareLandlock();
}

Result<void> enterSandbox(const SandboxPolicy& policy) {
  volunteerWhenMemoryRunsOut();
  const QByteArray scratch = QFile::encodeName(policy.scratchFolder);
  if (!scratch.isEmpty()) ::setenv("TMPDIR", scratch.constData(), 1);
  if (!dropPrivileges() || !limitFiles(policy.limits, !policy.writesScratchFiles) ||
      !limitAddressSpace(policy.limits, policy.preparationToCome ? roomForLibraries : 0) ||
      !limitProcessorTime(policy.limits.seconds))
    return notConfined();
  ConfinementLayers in;
  in.required = policy.layers.required;
  in.fileView = isInFileView();
  in.landlock = policy.layers.landlock && enterLandlock(scratch.toStdString());
  in.systemCalls = listsSystemCalls = wantsSystemCalls(policy.layers);
  if (!in.suffice()) return notConfined();
  return policy.preparationToCome ? Result<void>() : sealSandbox(policy);
}

Result<void> sealSandbox(const SandboxPolicy& policy) {
  if (policy.preparationToCome && !limitAddressSpace(policy.limits)) return notConfined();
  closeProcessFiles();
  tellWhatEndsUs(policy.limits);
  if (listsSystemCalls && !SystemCallList::shared(callsFor(policy)).enter()) return notConfined();
  return {};
}

void prepareToSealPrograms() {
  if (listsSystemCalls) (void)SystemCallList::shared(CallsFor::Program);
}

bool sealStartedProgram(int seconds) {
  return limitProcessorTime(seconds, true) &&
         (!listsSystemCalls || SystemCallList::shared(CallsFor::Program).enter());
}

}  // namespace norvex
