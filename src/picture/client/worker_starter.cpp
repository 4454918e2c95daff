#include "picture/client/worker_starter.h"

#include <QFile>

#include <poll.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "base/remove_folder.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr unsigned kPause = 1000;  ///< microseconds between two looks for an answer

Error notStarted() {
  return {ErrorKind::Died, QStringLiteral("the program that reads pictures could not be started")};
}
Error notAnswered() {
  return {ErrorKind::Died, QStringLiteral("the program that reads pictures has ended")};
}

Error notYetAnswered() {
  return {ErrorKind::TimedOut, QStringLiteral("the program that reads pictures has not answered yet")};
}

bool endsWithin(const FileDescriptor& pidfd, qint64 milliseconds) {
  pollfd poll = {pidfd.get(), POLLIN, 0};
  int ready = 0;
  do {
    ready = ::poll(&poll, 1, int(milliseconds));
  } while (ready < 0 && errno == EINTR);
  return ready > 0;
}

}  // namespace

WorkerStarter::WorkerStarter(QString program, SpawnedWorker running) : program_(std::move(program)) {
  if (running.pid != 0) adopt(std::move(running));
}

WorkerStarter::~WorkerStarter() {
  const std::lock_guard lock(mutex_);
  stopLocked();
}

QString WorkerStarter::defaultProgram() {
  return QFile::decodeName(partOfProgram("norvex-worker").c_str());
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
  SpawnedWorker spawned = spawnWorker(QFile::encodeName(program_).toStdString());
  if (spawned.pid == 0) return notStarted();
  adopt(std::move(spawned));
  return {};
}

void WorkerStarter::adopt(SpawnedWorker worker) {
  pid_ = worker.pid;
  pidfd_ = std::move(worker.pidfd);
  control_ = MessageChannel(std::move(worker.control));
  scratchRoot_ = std::move(worker.scratchRoot);
  applyNice();
}

void WorkerStarter::setNice(int nice) {
  const std::lock_guard lock(mutex_);
  nice_ = nice;
  applyNice();
}

void WorkerStarter::applyNice() const {
  // Where it is not possible pictures are drawn at our own priority.
  if (pid_ != 0 && nice_ > 0) ::setpriority(PRIO_PROCESS, id_t(pid_), ::getpriority(PRIO_PROCESS, 0) + nice_);
}

void WorkerStarter::stopLocked() {
  control_ = MessageChannel();
  if (pid_ != 0) {
    // The closed connection tells it to end; what it cannot do any more is done for it.
    if (!endsWithin(pidfd_, limits::programFarewell)) ::kill(pid_t(pid_), SIGKILL);
    while (::waitpid(pid_t(pid_), nullptr, 0) < 0 && errno == EINTR) continue;
  }
  removeFolder(std::exchange(scratchRoot_, {}));
  pid_ = 0;
  pidfd_.reset();
  ++run_;
  requested_ = 0;
  answered_.clear();
  abandoned_.clear();
  heard_ = 0;
  living_.clear();
  ends_.clear();
}

Result<WorkerStarter::Ticket> WorkerStarter::request(const ForkRequest& request,
                                                     const FileDescriptor& socket) {
  const std::lock_guard lock(mutex_);
  if (auto started = startLocked(); !started) return started.error();
  if (auto sent =
          control_.send(encodeMessage(request), socket.get(), QDeadlineTimer(limits::programFarewell));
      !sent) {
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
    if (auto answer = answered_.extract(ticket.number)) return std::move(answer.mapped());
    if (!hearNow() && ticket.run == run_) return notYetAnswered();
  }
  return notAnswered();
}

bool WorkerStarter::hearNow() {
  Result<ChannelMessage> message = control_.receive(QDeadlineTimer(0));
  if (!message && message.error().kind == ErrorKind::TimedOut) return false;
  const Result<WorkerReply> reply = message ? decodeReply(message->cbor) : message.error();
  if (reply)
    keep(*reply, std::move(message->descriptor));
  else
    stopLocked();
  return reply.ok();
}

std::optional<Error> WorkerStarter::endOf(const Ticket& ticket, QDeadlineTimer deadline) {
  while (true) {
    {
      const std::lock_guard lock(mutex_);
      while (ticket.run == run_ && !ends_.contains(ticket.number) && hearNow()) continue;
      if (ticket.run != run_) return std::nullopt;
      if (const auto end = ends_.find(ticket.number); end != ends_.end()) return end->second;
    }
    if (deadline.hasExpired()) return std::nullopt;
    ::usleep(kPause);
  }
}

void WorkerStarter::forget(const Ticket& ticket) {
  const std::lock_guard lock(mutex_);
  if (ticket.run != run_) return;
  living_.erase(ticket.number);
  ends_.erase(ticket.number);
}

void WorkerStarter::keep(const WorkerReply& reply, FileDescriptor descriptor) {
  // Requests are answered in their order; what comes after that is the end of a process.
  if (reply.id <= heard_) {
    if (const auto* end = std::get_if<Error>(&reply.body); end && living_.contains(reply.id))
      ends_.emplace(reply.id, *end);
    return;
  }
  heard_ = reply.id;
  const auto* forked = std::get_if<ForkReply>(&reply.body);
  if (abandoned_.erase(reply.id) > 0) {
    if (descriptor.valid()) ::syscall(SYS_pidfd_send_signal, descriptor.get(), SIGKILL, nullptr, 0);
    return;
  }
  if (forked != nullptr && descriptor.valid()) {
    answered_.emplace(reply.id, StartedProcess{forked->pid, std::move(descriptor)});
    living_.insert(reply.id);
  } else {
    answered_.emplace(reply.id, notStarted());
  }
}

void WorkerStarter::abandon(const Ticket& ticket) {
  const std::lock_guard lock(mutex_);
  if (ticket.run != run_) return;
  const auto answer = answered_.extract(ticket.number);
  living_.erase(ticket.number);
  ends_.erase(ticket.number);
  if (!answer)
    abandoned_.insert(ticket.number);
  else if (const Result<StartedProcess>& process = answer.mapped(); process)
    ::syscall(SYS_pidfd_send_signal, process->pidfd.get(), SIGKILL, nullptr, 0);
}

}  // namespace norvex
