#include "platform/picture/worker_starter.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>

extern char** environ;

namespace norvex {
namespace {

constexpr int kControl = 3;  ///< where the program expects its connection
constexpr int kAboveStandard =
    10;  ///< our own number of it must not be one that the program's start overwrites
constexpr qint64 kFarewell = 2000;  ///< milliseconds that the program has to clean up after itself
constexpr unsigned kPause = 1000;   ///< microseconds between two looks for an answer

Error notStarted() {
  return {ErrorKind::Died, QStringLiteral("the program that reads pictures could not be started")};
}
Error notAnswered() {
  return {ErrorKind::Died, QStringLiteral("the program that reads pictures has ended")};
}

QByteArray makeScratchRoot() {
  const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
  for (const QByteArray& base : {runtime, QByteArray("/tmp")}) {
    QByteArray folder = base + "/norvex-XXXXXX";
    if (base.startsWith('/') && ::mkdtemp(folder.data()) != nullptr) return folder;
  }
  return {};
}

void removeFolder(const QByteArray& folder) {
  std::error_code ignored;
  if (!folder.isEmpty()) std::filesystem::remove_all(folder.toStdString(), ignored);
}

/// Descriptors 0 and 1 are nothing, 3 is the connection, everything above is closed.
class SpawnActions {
 public:
  explicit SpawnActions(int control) {
    ::posix_spawn_file_actions_init(&actions_);
    ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions_, control, kControl);
    ::posix_spawn_file_actions_addclosefrom_np(&actions_, kControl + 1);
    ::posix_spawnattr_init(&attributes_);
    sigset_t none, all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    ::posix_spawnattr_setsigmask(&attributes_, &none);
    ::posix_spawnattr_setsigdefault(&attributes_, &all);
    // A group of its own: Ctrl+C in the terminal is ours to handle.
    ::posix_spawnattr_setpgroup(&attributes_, 0);
    ::posix_spawnattr_setflags(&attributes_,
                               POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
  }
  ~SpawnActions() {
    ::posix_spawn_file_actions_destroy(&actions_);
    ::posix_spawnattr_destroy(&attributes_);
  }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;

  /// The process number, or 0.
  [[nodiscard]] pid_t spawn(const QByteArray& program, const QByteArray& argument) {
    QByteArray name = program, root = argument;
    char* arguments[] = {name.data(), root.data(), nullptr};
    pid_t pid = 0;
    return ::posix_spawn(&pid, program.constData(), &actions_, &attributes_, arguments, environ) == 0 ? pid
                                                                                                      : 0;
  }

 private:
  posix_spawn_file_actions_t actions_ = {};
  posix_spawnattr_t attributes_ = {};
};

bool endsWithin(const FileDescriptor& pidfd, qint64 milliseconds) {
  pollfd poll = {pidfd.get(), POLLIN, 0};
  int ready = 0;
  do {
    ready = ::poll(&poll, 1, int(milliseconds));
  } while (ready < 0 && errno == EINTR);
  return ready > 0;
}

}  // namespace

WorkerStarter::WorkerStarter(QString program) : program_(std::move(program)) {}

WorkerStarter::~WorkerStarter() {
  const std::lock_guard lock(mutex_);
  stopLocked();
}

QString WorkerStarter::defaultProgram() {
  const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
  const QString beside = folder + QStringLiteral("/norvex-worker");
  const QString installed = folder + QStringLiteral("/../libexec/norvex/norvex-worker");
  return !QFile::exists(beside) && QFile::exists(installed) ? installed : beside;
}

qint64 WorkerStarter::pid() const {
  const std::lock_guard lock(mutex_);
  return pid_;
}

Result<void> WorkerStarter::start() {
  const std::lock_guard lock(mutex_);
  return startLocked();
}

bool WorkerStarter::runs() const {
  return pid_ != 0 && control_.isConnected() && !endsWithin(pidfd_, 0);
}

Result<void> WorkerStarter::startLocked() {
  if (runs()) return {};
  stopLocked();
  auto pair = MessageChannel::makePair();
  if (!pair) return pair.error();
  const FileDescriptor theirs(::fcntl(pair->second.get(), F_DUPFD_CLOEXEC, kAboveStandard));
  scratchRoot_ = makeScratchRoot();
  if (!theirs.valid() || scratchRoot_.isEmpty()) return notStarted();
  pid_ = SpawnActions(theirs.get()).spawn(QFile::encodeName(program_), scratchRoot_);
  pidfd_.reset(pid_ == 0 ? -1 : int(::syscall(SYS_pidfd_open, pid_, 0)));
  control_ = MessageChannel(std::move(pair->first));
  if (pidfd_.valid()) return {};
  stopLocked();
  return notStarted();
}

void WorkerStarter::stopLocked() {
  control_ = MessageChannel();
  if (pid_ != 0) {
    // The closed connection tells it to end; what it cannot do any more is done for it.
    if (!endsWithin(pidfd_, kFarewell)) ::kill(pid_t(pid_), SIGKILL);
    while (::waitpid(pid_t(pid_), nullptr, 0) < 0 && errno == EINTR) continue;
  }
  removeFolder(std::exchange(scratchRoot_, {}));
  pid_ = 0;
  pidfd_.reset();
  ++run_;
  requested_ = 0;
  answered_.clear();
  abandoned_.clear();
}

Result<WorkerStarter::Ticket> WorkerStarter::request(const ForkRequest& request,
                                                     const FileDescriptor& socket) {
  const std::lock_guard lock(mutex_);
  if (auto started = startLocked(); !started) return started.error();
  if (auto sent = control_.send(encodeMessage(request), socket.get(), QDeadlineTimer(kFarewell)); !sent) {
    stopLocked();
    return notAnswered();
  }
  return Ticket{run_, ++requested_};
}

Result<StartedProcess> WorkerStarter::take(const Ticket& ticket, QDeadlineTimer deadline) {
  while (true) {
    Result<StartedProcess> process = takeNow(ticket);
    if (process || process.error().kind != ErrorKind::TimedOut || deadline.hasExpired()) return process;
    // Not under the lock: another thread may want to open a document, and the window must not wait for this.
    ::usleep(kPause);
  }
}

Result<StartedProcess> WorkerStarter::takeNow(const Ticket& ticket) {
  const std::lock_guard lock(mutex_);
  while (ticket.run == run_) {
    if (auto found = answered_.find(ticket.number); found != answered_.end()) {
      Result<StartedProcess> process = std::move(found->second);
      answered_.erase(found);
      return process;
    }
    Result<ChannelMessage> message = control_.receive(QDeadlineTimer(0));
    if (!message && message.error().kind == ErrorKind::TimedOut) return message.error();
    const Result<WorkerReply> reply = message ? decodeReply(message->cbor) : message.error();
    if (reply)
      keep(*reply, std::move(message->descriptor));
    else
      stopLocked();  // and with it this run
  }
  return notAnswered();
}

void WorkerStarter::keep(const WorkerReply& reply, FileDescriptor descriptor) {
  const auto* forked = std::get_if<ForkReply>(&reply.body);
  if (abandoned_.erase(reply.id) > 0) {
    if (descriptor.valid()) ::syscall(SYS_pidfd_send_signal, descriptor.get(), SIGKILL, nullptr, 0);
    return;
  }
  if (forked != nullptr && descriptor.valid())
    answered_.emplace(reply.id, StartedProcess{forked->pid, std::move(descriptor)});
  else
    answered_.emplace(reply.id, notStarted());
}

void WorkerStarter::abandon(const Ticket& ticket) {
  const std::lock_guard lock(mutex_);
  if (ticket.run != run_) return;
  abandoned_.insert(ticket.number);
  if (auto found = answered_.find(ticket.number); found != answered_.end()) {
    Result<StartedProcess> process = std::move(found->second);
    answered_.erase(found);
    abandoned_.erase(ticket.number);
    if (process) ::syscall(SYS_pidfd_send_signal, process->pidfd.get(), SIGKILL, nullptr, 0);
  }
}

}  // namespace norvex
