#include "picture/client/worker_connection.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <utility>

#include "picture/process/peak_memory.h"
#include "picture/process/plain_sentence.h"
#include "protocol/limits.h"
#include "protocol/process_end.h"
#include "protocol/shared_errors.h"

namespace norvex {
namespace {

Error timedOut() {
  return {ErrorKind::TimedOut,
          QStringLiteral("the picture was not ready within the time that it is allowed")};
}
Error noDescriptor() {
  return {ErrorKind::Died,
          QStringLiteral("the picture process cannot be waited for: too many files are open")};
}
/// Of a child that has cut the line: its status as waitpid() gives it, which it keeps; nothing: it lives.
std::optional<int> statusOf(const FileDescriptor& pidfd, QDeadlineTimer soon) {
  pollfd poll = {pidfd.get(), POLLIN, 0};
  siginfo_t info = {};
  if (::poll(&poll, 1, int(soon.remainingTime())) <= 0 ||
      ::waitid(P_PIDFD, id_t(pidfd.get()), &info, WEXITED | WNOWAIT | WNOHANG) != 0 || info.si_pid == 0)
    return std::nullopt;
  return info.si_code == CLD_EXITED ? W_EXITCODE(info.si_status, 0) : W_EXITCODE(0, info.si_status);
}

}  // namespace

Result<std::unique_ptr<WorkerConnection>> WorkerConnection::open(std::shared_ptr<WorkerStarter> starter,
                                                                 const ForkRequest& request) {
  auto pair = MessageChannel::makePair();
  if (!pair) return pair.error();
  Result<WorkerStarter::Ticket> ticket = starter->request(request, pair->second);
  if (!ticket) return ticket.error();
  return std::unique_ptr<WorkerConnection>(
      new WorkerConnection(std::move(starter), request, *ticket, std::move(pair->first)));
}

std::unique_ptr<WorkerConnection> WorkerConnection::to(SpawnedPicture picture) {
  std::unique_ptr<WorkerConnection> connection(new WorkerConnection(
      nullptr, {PictureLimits(), false, picture.needs}, std::nullopt, std::move(picture.line)));
  connection->process_ = {picture.pid, std::move(picture.pidfd)};
  return connection;
}

WorkerConnection::WorkerConnection(std::shared_ptr<WorkerStarter> starter, const ForkRequest& request,
                                   std::optional<WorkerStarter::Ticket> ticket, FileDescriptor socket)
    : starter_(std::move(starter)), request_(request), ticket_(ticket), channel_(std::move(socket)) {}

WorkerConnection::~WorkerConnection() {
  end();
}

bool WorkerConnection::learnProcess(QDeadlineTimer deadline) {
  if (!ticket_) return process_.pidfd.valid();
  Result<StartedProcess> process = starter_->take(*ticket_, deadline);
  if (!process && process.error().kind == ErrorKind::TimedOut) return false;
  if (process) {
    process_ = std::move(*process);
    known_ = ticket_;
  } else {
    notForked_ = process.error();
  }
  ticket_.reset();
  return process_.pidfd.valid();
}

void WorkerConnection::end() {
  if (!channel_.valid()) return;
  PeakMemory* const peak = PeakMemory::ofThisThread();
  if (peak && learnProcess(QDeadlineTimer(0))) peak->note(process_.pid);
  // A process that behaves ends by itself when the line is cut.
  channel_ = MessageChannel();
  if (learnProcess(QDeadlineTimer(limits::processFarewell)))
    ::syscall(SYS_pidfd_send_signal, process_.pidfd.get(), SIGKILL, nullptr, 0);
  else if (ticket_)
    starter_->abandon(*ticket_);
  if (known_) starter_->forget(*known_);
  known_.reset();
  ticket_.reset();
  process_ = {};
}

qint64 WorkerConnection::processId() {
  learnProcess(QDeadlineTimer(limits::processFarewell));
  return process_.pid;
}

bool WorkerConnection::isUsable() const {
  if (!channel_.isConnected()) return false;
  // Between two requests nothing may come.
  pollfd poll = {channel_.socket(), POLLIN, 0};
  return ::poll(&poll, 1, 0) == 0;
}

Error WorkerConnection::failed(Error error, const CancelToken& cancel) {
  std::optional<Error> reason;
  if (error.kind == ErrorKind::Died) {
    // On a busy machine it takes its time until somebody has seen the end: a limit would be told as a death.
    const QDeadlineTimer last(limits::programFarewell);
    QDeadlineTimer soon;
    do {
      soon = QDeadlineTimer(limits::processFarewell);
      reason = reasonOfItsEnd(soon);
    } while (!reason && soon.hasExpired() && !last.hasExpired() && !cancel.cancelled());
  }
  end();
  return reason.value_or(error);
}

std::optional<Error> WorkerConnection::reasonOfItsEnd(QDeadlineTimer soon) {
  if (!isOwnChild()) {
    if (!learnProcess(soon) || !known_) return notForked_;
    return starter_->endOf(*known_, soon);
  }
  const std::optional<int> status = statusOf(process_.pidfd, soon);
  if (!status) return std::nullopt;
  const Error end = errorOfEnd(*status);
  // What a document cannot provoke is another's failure: of the linker, most likely.
  if (end.kind == ErrorKind::Died && !hasAnswered_) hasNotComeUp_ = WIFEXITED(*status);
  return end;
}

Result<quint32> WorkerConnection::post(RequestBody body, const FileDescriptor& memory) {
  const quint32 id = ++lastId_;
  const QByteArray cbor = encodeMessage(WorkerRequest{id, std::move(body)});
  if (!decodeMessage(cbor))
    return Error{ErrorKind::Limit,
                 QStringLiteral("the picture cannot be made in this size or at this place")};
  if (auto sent = channel_.send(cbor, memory.get(), QDeadlineTimer(qint64(request_.limits.seconds) * 1000));
      !sent)
    return failed(sent.error());
  return id;
}

/// Waits for an answer as long as the process may keep our own priority, and no longer than for the answer.
void WorkerConnection::letBegin(const FileDescriptor& wake, QDeadlineTimer deadline) {
  if (hasYielded_ || !starter_ || starter_->nice() == 0) return;
  if (!beginning_) beginning_ = QDeadlineTimer(starter_->beginning());
  pollfd polls[] = {{channel_.socket(), POLLIN, 0}, {wake.get(), POLLIN, 0}};
  int ready = -1;
  do {
    ready = ::poll(polls, 2, int(std::min(*beginning_, deadline).remainingTime()));
  } while (ready < 0 && errno == EINTR);
  if (ready == 0 && beginning_->hasExpired()) yield();
}

void WorkerConnection::yield() {
  if (hasYielded_ || !starter_ || starter_->nice() == 0 || !learnProcess(QDeadlineTimer(0))) return;
  hasYielded_ = true;
  pollfd living = {process_.pidfd.get(), POLLIN, 0};  // its number is another's once it is buried
  if (::poll(&living, 1, 0) != 0) return;
  // Where it is not possible pictures are drawn at our own priority.
  ::setpriority(PRIO_PROCESS, id_t(process_.pid),
                ::getpriority(PRIO_PROCESS, id_t(::getpid())) + starter_->nice());
}

Result<WorkerAnswer> WorkerConnection::wait(quint32 id, QDeadlineTimer deadline, const CancelToken& cancel,
                                            bool late) {
  const FileDescriptor wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
  if (!wake.valid()) return failed(noDescriptor());
  const CancelListener listener(cancel, [&] { ::eventfd_write(wake.get(), 1); });
  letBegin(wake, deadline);
  Result<ChannelMessage> message = channel_.receive(deadline, wake.get());
  const bool wanted = message || message.error().kind != ErrorKind::Cancelled;
  if (!wanted) {
    const QDeadlineTimer obey(limits::cancelGrace);
    if (auto sent = channel_.send(encodeMessage(CancelRequest{id}), -1, obey); !sent)
      return failed(sent.error(), cancel);
    message = channel_.receive(std::min(obey, deadline));
  }
  if (message) {
    hasAnswered_ = true;
    Result<WorkerAnswer> answer = understand(id, std::move(*message));
    if (answer && std::holds_alternative<BitmapReply>(answer->body)) yield();
    return wanted || !answer ? std::move(answer) : Result<WorkerAnswer>(workCancelled());
  }
  if (message.error().kind != ErrorKind::TimedOut) return failed(message.error(), cancel);
  if (wanted || !late || deadline.hasExpired()) return failed(wanted ? timedOut() : workCancelled());
  owed_ = id;
  return workCancelled();
}

Result<void> WorkerConnection::settle(QDeadlineTimer deadline, const CancelToken& cancel) {
  if (owed_ == 0) return {};
  const FileDescriptor wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
  if (!wake.valid()) return failed(noDescriptor());
  const CancelListener listener(cancel, [&] { ::eventfd_write(wake.get(), 1); });
  Result<ChannelMessage> message = channel_.receive(deadline, wake.get());
  if (!message && message.error().kind == ErrorKind::Cancelled) return workCancelled();
  if (!message) return failed(message.error(), cancel);
  const auto answer = understand(std::exchange(owed_, 0), std::move(*message));
  return answer ? Result<void>() : answer.error();
}

Result<WorkerAnswer> WorkerConnection::understand(quint32 id, ChannelMessage message) {
  Result<WorkerReply> reply = decodeReply(message.cbor);
  if (!reply) return failed(reply.error());
  if (reply->id != id) return failed(untrueAnswer());
  if (auto* error = std::get_if<Error>(&reply->body)) {
    if (message.descriptor.valid()) return failed(untrueAnswer());
    error->message = plainSentence(error->message);
  }
  return WorkerAnswer{std::move(reply->body), std::move(message.descriptor)};
}

}  // namespace norvex
