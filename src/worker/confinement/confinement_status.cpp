#include "worker/confinement/confinement_status.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <functional>
#include <string>

#include "worker/confinement/file_view.h"
#include "worker/confinement/instrumented.h"
#include "worker/confinement/landlock.h"
#include "worker/confinement/layers.h"
#include "worker/confinement/own_namespaces.h"
#include "worker/confinement/privileges.h"
#include "worker/confinement/system_calls.h"

namespace norvex {
namespace {

constexpr int kNoSandbox = 6;

/// True if a process could do it to itself.
bool works(const std::function<bool()>& layer) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(layer() ? 0 : 1);
  int status = 1;
  return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string landlockLine(bool on, const LandlockAbilities& has) {
  if (!on) return "Landlock: missing. No rules of the kernel about files.\n";
  std::string gives = "Landlock: on, version " + std::to_string(has.abi) +
                      ". Nothing but what engines need can be read, nothing but scratch files written. "
                      "Nothing is listed, removed or started besides.";
  std::string lacks;
  const auto tell = [&](bool there, const char* what, const char* missing) {
    (there ? gives : lacks) += std::string(there || lacks.empty() ? "" : ", ") + (there ? what : missing);
  };
  tell(has.network(), " There is no TCP.", "TCP");
  tell(has.scopes(), " There are no signals and no abstract sockets to others.",
       "signals and abstract sockets");
  tell(has.devices(), " Devices cannot be controlled.", "control of devices");
  tell(has.truncating(), "", "cutting files off");
  return gives + (lacks.empty() ? "\n" : " This version does not cover " + lacks + ".\n");
}

std::string callsLine(bool on) {
  return on ? "System calls (seccomp): on. Only calls on a list: no programs, processes, sockets, tracing, "
              "mounts, "
              "keys, changed modes or owners. Engines open nothing for writing.\n"
            : "System calls (seccomp): missing. Every call can be made.\n";
}

std::string viewLine(bool on) {
  return on ? "File view (user and mount namespaces): on. Files other than those that engines need do not "
              "exist, "
              "and all but scratch files are read-only.\n"
            : "File view (user and mount namespaces): missing. The system does not permit them to this "
              "user.\n";
}

std::string namespacesLine(const OwnNamespaces& own) {
  if (!own.network && !own.messages)
    return "Network and messages (namespaces): missing. What else is on keeps pictures from them.\n";
  std::string line = "Network and messages (namespaces): on.";
  if (own.network) line += " No network exists.";
  if (own.messages) line += " No shared memory or queues of others exist.";
  return line + " Of a single picture on the command line: off, for they take time.\n";
}

/// In a process of its own, as everything here.
OwnNamespaces ownNamespaces() {
  const auto enter = [] { return enterFileView({}) ? enterOwnNamespaces() : OwnNamespaces(); };
  return {works([&] { return enter().network; }), works([&] { return enter().messages; })};
}

}  // namespace

int tellConfinement() {
  ConfinementLayers on;
  on.landlock = works([] { return dropPrivileges() && enterLandlock({}); });
  on.systemCalls = !isInstrumented &&
                   works([] { return dropPrivileges() && SystemCallList::make(CallsFor::Engines).enter(); });
  on.fileView = !isInstrumented && works([] { return enterFileView({}) && dropPrivileges(); });
  std::string text = landlockLine(on.landlock, landlockAbilities()) + callsLine(on.systemCalls) +
                     viewLine(on.fileView) + namespacesLine(on.fileView ? ownNamespaces() : OwnNamespaces());
  text += "Limits: memory, processor time, size and number of files, scratch files; no core files.\n";
  if (isInstrumented) text += "This build watches itself, for which it leaves layers out.\n";
  text += on.suffice() ? "Each picture is read in a process of its own that is confined so.\n"
                       : "Nothing keeps a picture from this user's files: norvex refuses to read any.\n";
  const bool told = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
  if (!on.suffice()) return kNoSandbox;
  return told ? 0 : 4;
}

}  // namespace norvex
