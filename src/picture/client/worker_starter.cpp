#include "picture/client/worker_starter.h"

#include <QFile>

#include <poll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>

#include "base/remove_folder.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

Error notStarted() {
  return {ErrorKind::Died, QStringLiteral("the program that reads pictures could not be started")};
}
Error notAnswered() {
  return {ErrorKind::Died, QStringLiteral("the program that reads pictures has ended")};
}

Error notYetAnswered() {
  return {ErrorKind::TimedOut, QStringLiteral("the program that reads pictures has not answered yet")};
}

/// True if there is something to read, or nothing any more; -1 milliseconds: for ever.
bool isReadyWithin(int descriptor, qint64 milliseconds) {
  pollfd poll = {descriptor, POLLIN, 0};
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
  return pid_ != 0 && control_->isConnected() && !isReadyWithin(pidfd_.get(), 0);
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
  control_ = std::make_shared<MessageChannel>(std::move(worker.control));
  scratchRoot_ = std::move(worker.scratchRoot);
}

void WorkerStarter::stopLocked() {
  // Who listens holds on to the connection, and hears of its end in this way, as the program does.
  if (control_->valid()) ::shutdown(control_->socket(), SHUT_RDWR);
  control_ = std::make_shared<MessageChannel>();
  heardSome_.notify_all();
  if (pid_ != 0) {
    // What it cannot do any more is done for it.
    if (!isReadyWithin(pidfd_.get(), limits::programFarewell)) ::kill(pid_t(pid_), SIGKILL);
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
          control_->send(encodeMessage(request), socket.get(), QDeadlineTimer(limits::programFarewell));
      !sent) {
    // Nothing has been sent yet: what keeps it is no fault of the program that others depend on.
    if (sent.error().kind == ErrorKind::TimedOut) return sent.error();
    stopLocked();
    return notAnswered();
  }
  return Ticket{run_, ++requested_};
}

Result<StartedProcess> WorkerStarter::take(const Ticket& ticket, QDeadlineTimer deadline) {
  std::unique_lock lock(mutex_);
  while (ticket.run == run_) {
    if (auto answer = answered_.extract(ticket.number)) return std::move(answer.mapped());
    if (hearNow() || ticket.run != run_) continue;
    if (deadline.hasExpired()) return notYetAnswered();
    listen(lock, deadline);
  }
  return notAnswered();
}

void WorkerStarter::listen(std::unique_lock<std::mutex>& lock, QDeadlineTimer deadline) {
  const qint64 left = deadline.remainingTime();  // -1: for ever
  if (isListening_) {
    if (left < 0)
      heardSome_.wait(lock);
    else
      heardSome_.wait_for(lock, std::chrono::milliseconds(left));
    return;
  }
  isListening_ = true;
  const std::shared_ptr<MessageChannel> control = control_;
  // Not under the lock: another thread may want to open a document, and the window must not wait for this.
  lock.unlock();
  (void)isReadyWithin(control->socket(), left);
  lock.lock();
  isListening_ = false;
  heardSome_.notify_all();  // what came may be for them, and one of them listens next
}

bool WorkerStarter::hearNow() {
  // Whoever listens would sleep on where another took what it was to be woken by.
  if (isListening_) return false;
  Result<ChannelMessage> message = control_->receive(QDeadlineTimer(0));
  if (!message && message.error().kind == ErrorKind::TimedOut) return false;
  const Result<WorkerReply> reply = message ? decodeReply(message->cbor) : message.error();
  if (reply)
    keep(*reply, std::move(message->descriptor));
  else
    stopLocked();
  heardSome_.notify_all();
  return reply.ok();
}

std::optional<Error> WorkerStarter::endOf(const Ticket& ticket, QDeadlineTimer deadline) {
  std::unique_lock lock(mutex_);
  while (ticket.run == run_) {
    if (const auto end = ends_.find(ticket.number); end != ends_.end()) return end->second;
    if (hearNow() || ticket.run != run_) continue;
    if (deadline.hasExpired()) return std::nullopt;
    listen(lock, deadline);
  }
  return std::nullopt;
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
    const auto* told = std::get_if<Error>(&reply.body);
    answered_.emplace(reply.id, told != nullptr ? *told : notStarted());
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
