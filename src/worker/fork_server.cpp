#include "worker/fork_server.h"

#include <QFile>

#include <fcntl.h>
#include <malloc.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "base/memory/unused_memory.h"
#include "base/remove_folder.h"
#include "protocol/control_descriptor.h"
#include "protocol/process_end.h"
#include "worker/confinement/landlock.h"
#include "worker/confinement/process_files.h"
#include "worker/confinement/process_group.h"
#include "worker/environment.h"

namespace norvex {
namespace {

constexpr quint32 kColdChildren =
    2;  ///< a single picture takes one, and one more for what concerns no document
/// Milliseconds without a request after which there is time to warm up: the first picture, and the window
/// that it is opened in, need the processor before.
constexpr int kIdle = 1000;
constexpr int kFarewells[] = {SIGTERM, SIGINT, SIGHUP};

/// Behind the line, what is shared, and two more for the confinement.
constexpr int kOutOfTheWay = ForkServer::kSharedDescriptor + 3;

int freeNumber() {
  return ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, kOutOfTheWay);
}

/// `reason`: as errno tells it.
Error noChild(int reason) {
  return {ErrorKind::Died, QStringLiteral("no process for the picture could be started (%1)")
                               .arg(QString::fromLocal8Bit(std::strerror(reason)))};
}

}  // namespace

ForkServer::ForkServer(FileDescriptor control, QByteArray scratchRoot, ChildMain childMain, WarmUp warmUp,
                       Prepare prepare, Wish wish)
    : control_(std::move(control)),
      scratchRoot_(std::move(scratchRoot)),
      childMain_(std::move(childMain)),
      warmUp_(std::move(warmUp)),
      prepare_(std::move(prepare)),
      wish_(std::move(wish)) {}

void ForkServer::warmUp() {
  const WarmUp todo = std::exchange(warmUp_, {});
  if (!todo) return;
  todo();
  // Else each child would go through what is free here, and copy the pages that it lies in.
  ::malloc_trim(0);
}

void ForkServer::rest() {
  if (warmUp_) return warmUp();
  giveBackUnusedMemory();
  isAtRest_ = true;
}

void ForkServer::run() {
  // The end of a session tells everybody to go at once. The connection tells us, after which we clean up.
  for (int signal : kFarewells) std::signal(signal, SIG_IGN);
  bool connected = true;
  while (connected) {
    std::vector<pollfd> polls{{control_.socket(), POLLIN, 0}};
    for (const Child& child : children_) polls.push_back({child.pidfd.get(), POLLIN, 0});
    const size_t children = polls.size() - 1;
    polls.push_back({wish_.descriptor ? wish_.descriptor() : -1, POLLIN, 0});
    const int ready = ::poll(polls.data(), polls.size(), warmUp_ || !isAtRest_ ? kIdle : -1);
    if (ready == 0) rest();
    if (ready <= 0) continue;
    if (polls.back().revents != 0) wish_.serve();
    for (size_t i = children; i > 0; --i) {
      if (polls[i].revents == 0) continue;
      tellEnd(children_[i - 1].number, bury(children_[i - 1]));
      children_.erase(children_.begin() + std::ptrdiff_t(i - 1));
    }
    if (polls[0].revents != 0) connected = answerControl();
  }
  for (Child& child : children_) bury(child);
  children_.clear();
}

bool ForkServer::answerControl() {
  Result<ChannelMessage> message = control_.receive();
  if (!message) return false;
  const Result<WorkerMessage> decoded = decodeMessage(message->cbor);
  const ForkRequest* request = decoded ? std::get_if<ForkRequest>(&*decoded) : nullptr;
  if (request == nullptr || !message->descriptor.valid()) return false;
  isAtRest_ = false;
  if (++forks_ > kColdChildren) warmUp();
  const int shared = prepare_ ? prepare_(*request) : -1;
  Result<Child> child = fork(*request, std::move(message->descriptor), shared);
  if (!child) return control_.send(encodeReply({forks_, child.error()})).ok();
  const bool told = control_.send(encodeReply({forks_, ForkReply{child->pid}}), child->pidfd.get()).ok();
  children_.push_back(std::move(*child));
  return told;
}

Result<ForkServer::Child> ForkServer::fork(const ForkRequest& request, FileDescriptor socket, int shared) {
  // Only programs write anything: for the others a folder would be a good part of what a process costs.
  QByteArray folder = request.postScript ? scratchRoot_ + "/XXXXXX" : QByteArray();
  if (!folder.isEmpty() && ::mkdtemp(folder.data()) == nullptr) return noChild(errno);
  const pid_t self = ::getpid();
  const pid_t pid = ::fork();
  if (pid == 0) becomeChild(self, request, std::move(socket), shared, folder);
  // No race: until we bury it the number cannot be given to another process.
  Child child{forks_, pid, FileDescriptor(pid > 0 ? int(::syscall(SYS_pidfd_open, pid, 0)) : -1), folder};
  const int reason = errno;
  if (pid > 0) ::setpgid(pid, pid);
  if (pid > 0 && child.pidfd.valid()) return child;
  if (pid > 0) bury(child);
  removeFolder(folder.toStdString());
  return noChild(reason);
}

void ForkServer::becomeChild(int parent, const ForkRequest& request, FileDescriptor socket, int shared,
                             const QByteArray& scratchFolder) {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() != parent) ::_exit(1);  // it died before it could be followed
  for (int signal : kFarewells) std::signal(signal, SIG_DFL);
  closeStandardStreams();
  // Everything foreign goes: the control connection and the other children's descriptors first of all.
  // What stays is put out of the way before it gets its number, which another may have until then.
  (void)moveProcessFiles(freeNumber());
  (void)movePreparedLandlock(freeNumber());
  const int line = ::fcntl(socket.release(), F_DUPFD_CLOEXEC, kOutOfTheWay);
  const int kept = shared < 0 ? -1 : ::fcntl(shared, F_DUPFD_CLOEXEC, kOutOfTheWay);
  ::dup3(line, controlDescriptor, O_CLOEXEC);
  if (kept >= 0) ::dup3(kept, kSharedDescriptor, O_CLOEXEC);
  const int foreign =
      movePreparedLandlock(moveProcessFiles(kept >= 0 ? kSharedDescriptor + 1 : kSharedDescriptor));
  ::syscall(SYS_close_range, foreign, ~0u, 0);
  childMain_(FileDescriptor(controlDescriptor), request, QFile::decodeName(scratchFolder));
  ::_exit(0);
}

void ForkServer::tellEnd(quint32 number, int status) {
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return;
  // Whoever does not listen need not know.
  pollfd room = {control_.socket(), POLLOUT, 0};
  if (::poll(&room, 1, 0) == 1 && room.revents == POLLOUT)
    (void)control_.send(encodeReply({number, errorOfEnd(status)}));
}

int ForkServer::bury(Child& child) {
  const int status = endProcessGroup(child.pid);
  removeFolder(child.scratchFolder.toStdString());
  return status;
}

}  // namespace norvex
