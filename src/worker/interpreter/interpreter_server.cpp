#include "worker/interpreter/interpreter_server.h"

#include <QFile>

#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

#include "base/memory/unused_memory.h"
#include "base/remove_folder.h"
#include "protocol/limits.h"
#include "worker/confinement/process_files.h"
#include "worker/confinement/process_group.h"
#include "worker/confinement/resource_limits.h"
#include "worker/confinement/sandbox.h"

namespace norvex {
namespace {

/// Milliseconds without a document after which the next one is not expected at once.
constexpr int kQuiet = 1500;

template <typename Value>
void tell(const FileDescriptor& outcome, const Value& value) {
  // Whoever has gone meanwhile need not know.
  if (::write(outcome.get(), &value, sizeof value) < 0) return;
}

}  // namespace

InterpreterServer::InterpreterServer(FileDescriptor taking, FileDescriptor telling, QByteArray scratchRoot)
    : taking_(std::move(taking)), telling_(std::move(telling)), scratchRoot_(std::move(scratchRoot)) {}

PostScriptInterpreter::Task InterpreterServer::serve() {
  tellInterpretersReady(std::move(telling_));
  while (true) {
    std::vector<pollfd> polls{{taking_.get(), POLLIN, 0}};
    for (const Child& child : children_) {
      polls.push_back({child.pidfd.get(), POLLIN, 0});
      polls.push_back({child.outcome.get(), 0, 0});  // an error is told unasked: nobody reads it any more
    }
    const int patience = !children_.empty() ? ScratchWatch::kPause : isAtRest_ ? -1 : kQuiet;
    const int ready = ::poll(polls.data(), polls.size(), patience);
    if (ready < 0) continue;
    if (ready == 0 && children_.empty()) {
      giveBackUnusedMemory();
      isAtRest_ = true;
    }
    buryWhoMustGo(polls);
    for (Child& child : children_) yieldWithAsker(child);
    if (polls[0].revents == 0) continue;
    isAtRest_ = false;
    if (const auto task = takeRequest()) return *task;
  }
}

void InterpreterServer::buryWhoMustGo(const std::vector<pollfd>& polls) {
  for (size_t i = children_.size(); i > 0; --i) {
    Child& child = children_[i - 1];
    if (polls[2 * i - 1].revents != 0 || polls[2 * i].revents != 0)
      bury(child);
    else if (!child.scratch.look())
      bury(child, W_EXITCODE(0, SIGXFSZ));
    else
      continue;
    children_.erase(children_.begin() + std::ptrdiff_t(i - 1));
  }
}

// Nobody but us may give it another priority, and whoever waits for its pages knows no interpreter.
void InterpreterServer::yieldWithAsker(Child& child) {
  if (child.asker <= 0) return;
  errno = 0;
  const int nice = ::getpriority(PRIO_PROCESS, id_t(child.asker));
  if (errno != 0 || nice <= child.nice) return;
  child.nice = nice;
  ::setpriority(PRIO_PROCESS, id_t(child.pid), nice);
}

bool InterpreterServer::hasRoomFor(int asker) const {
  const auto own = std::count_if(children_.begin(), children_.end(),
                                 [&](const Child& child) { return child.asker == asker; });
  return children_.size() < limits::maximumInterpreters &&
         size_t(own) < limits::maximumInterpretersOfOneAsker;
}

std::optional<PostScriptInterpreter::Task> InterpreterServer::takeRequest() {
  Result<InterpreterRequest> request = receiveInterpreterRequest(taking_.get());
  if (request) return hasRoomFor(request->asker) ? fork(std::move(*request)) : std::nullopt;
  if (request.error().kind == ErrorKind::Protocol) return {};
  for (Child& child : children_) bury(child);
  ::_exit(0);
}

std::optional<PostScriptInterpreter::Task> InterpreterServer::fork(InterpreterRequest request) {
  QByteArray folder = scratchRoot_ + "/XXXXXX";
  if (::mkdtemp(folder.data()) == nullptr) return {};
  const pid_t self = ::getpid();
  const pid_t pid = ::fork();
  if (pid == 0) {
    becomeInterpreter(self, request, folder);
    return PostScriptInterpreter::Task{folder, request.device};
  }
  Child child{pid,
              FileDescriptor(pid > 0 ? int(::syscall(SYS_pidfd_open, pid, 0)) : -1),
              std::move(request.outcome),
              folder,
              ScratchWatch(QFile::decodeName(folder)),
              request.asker,
              ::getpriority(PRIO_PROCESS, id_t(self))};
  if (pid > 0) ::setpgid(pid, pid);
  if (child.pidfd.valid()) {
    yieldWithAsker(child);
    tell(child.outcome, kInterpreterBegun);
    children_.push_back(std::move(child));
  } else if (pid > 0) {
    bury(child);
  } else {
    removeFolder(folder.toStdString());
  }
  return {};
}

void InterpreterServer::becomeInterpreter(int parent, const InterpreterRequest& request,
                                          const QByteArray& scratchFolder) {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() != parent) ::_exit(1);  // it died before it could be followed
  std::signal(SIGPIPE, SIG_DFL);
  ::dup2(request.program.get(), STDIN_FILENO);
  ::dup2(request.output.get(), STDOUT_FILENO);
  ::dup2(request.messages.get(), STDERR_FILENO);
  const int foreign = moveProcessFiles(STDERR_FILENO + 1);
  ::syscall(SYS_close_range, foreign, ~0u, 0);
  SandboxPolicy policy;
  policy.limits = grantedFor(request.asker, request.limits);
  policy.scratchFolder = QFile::decodeName(scratchFolder);
  policy.writesScratchFiles = true;
  if (!enterSandbox(policy)) ::_exit(kInterpreterNotConfined);
}

void InterpreterServer::bury(Child& child, std::optional<InterpreterOutcome> told) {
  const InterpreterOutcome status = endProcessGroup(child.pid);
  removeFolder(child.scratchFolder.toStdString());
  tell(child.outcome, told.value_or(status));
}

}  // namespace norvex
