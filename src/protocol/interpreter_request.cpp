#include "protocol/interpreter_request.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "protocol/message_channel.h"
#include "protocol/shared_errors.h"

namespace norvex {
namespace {

constexpr size_t kDescriptors = 4;
constexpr char kReady = 'r';
constexpr qsizetype kMaximumSize = 4096;  ///< of the device, which is one byte, and the limits as CBOR

/// Room for the descriptors beside a message and for who sent it, aligned as the kernel wants it.
union DescriptorSpace {
  cmsghdr alignment;
  char bytes[CMSG_SPACE(kDescriptors * sizeof(int)) + CMSG_SPACE(sizeof(ucred))];
};

Error noMore() {
  return {ErrorKind::Died, QStringLiteral("the interpreter of PostScript cannot be reached")};
}
Error noRequest() {
  return {ErrorKind::Protocol, QStringLiteral("this asks for no interpreter of PostScript")};
}

msghdr messageOf(iovec& part, DescriptorSpace& space) {
  msghdr message = {};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = &space;
  message.msg_controllen = sizeof space;
  return message;
}

/// Gives all descriptors to `request`, or closes them, and tells who sent it.
bool adoptDescriptors(msghdr& message, InterpreterRequest& request) {
  FileDescriptor* const places[kDescriptors] = {&request.program, &request.output, &request.messages,
                                                &request.outcome};
  size_t got = 0;
  for (cmsghdr* header = CMSG_FIRSTHDR(&message); header != nullptr; header = CMSG_NXTHDR(&message, header)) {
    if (header->cmsg_level == SOL_SOCKET && header->cmsg_type == SCM_CREDENTIALS) {
      ucred sender = {};
      std::memcpy(&sender, CMSG_DATA(header), sizeof sender);
      request.asker = sender.pid;
    }
    if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_RIGHTS) continue;
    const size_t count = (header->cmsg_len - CMSG_LEN(0)) / sizeof(int);
    for (size_t i = 0; i < count; ++i, ++got) {
      int descriptor = -1;
      std::memcpy(&descriptor, CMSG_DATA(header) + i * sizeof(int), sizeof(int));
      FileDescriptor owned(descriptor);
      if (got < kDescriptors) *places[got] = std::move(owned);
    }
  }
  return got == kDescriptors;
}

}  // namespace

Result<InterpreterConnection> makeInterpreterConnection() {
  int ends[2] = {-1, -1};
  // Messages stay whole, so that several can send, and their end is told.
  if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) return noMore();
  InterpreterConnection connection{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
  // The kernel adds who asks: whoever has read a document may say anything about itself.
  const int yes = 1;
  if (::setsockopt(ends[1], SOL_SOCKET, SO_PASSCRED, &yes, sizeof yes) != 0) return noMore();
  return connection;
}

Result<void> sendInterpreterRequest(int asking, const InterpreterRequest& request, const CancelToken& cancel,
                                    QDeadlineTimer until) {
  ForkRequest limits;
  limits.limits = request.limits;
  QByteArray told = char(request.device) + encodeMessage(limits);
  const int descriptors[kDescriptors] = {request.program.get(), request.output.get(), request.messages.get(),
                                         request.outcome.get()};
  iovec part = {told.data(), size_t(told.size())};
  DescriptorSpace space = {};
  msghdr message = messageOf(part, space);
  message.msg_controllen = CMSG_SPACE(kDescriptors * sizeof(int));
  cmsghdr* header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = SOL_SOCKET;
  header->cmsg_type = SCM_RIGHTS;
  header->cmsg_len = CMSG_LEN(sizeof descriptors);
  std::memcpy(CMSG_DATA(header), descriptors, sizeof descriptors);
  ssize_t sent = -1;
  do {
    if (cancel.cancelled()) return workCancelled();
    sent = ::sendmsg(asking, &message, MSG_NOSIGNAL | MSG_DONTWAIT);
  } while (sent < 0 && (errno == EINTR ||
                        (areTooManyUnderWay(errno) && !until.hasExpired() && waitForThoseUnderWay(asking))));
  return sent == told.size() ? Result<void>() : noMore();
}

Result<ReadinessPipe> makeReadinessPipe() {
  int ends[2] = {-1, -1};
  if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return noMore();
  return ReadinessPipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

void tellInterpretersReady(FileDescriptor telling) {
  if (::write(telling.get(), &kReady, sizeof kReady) < 0) return;  // nobody is left
}

bool hadInterpretersReady(int hearing) {
  char told = 0;
  return ::read(hearing, &told, sizeof told) == sizeof told && told == kReady;
}

Result<InterpreterRequest> receiveInterpreterRequest(int taking) {
  QByteArray told(kMaximumSize, Qt::Uninitialized);
  iovec part = {told.data(), size_t(told.size())};
  DescriptorSpace space = {};
  msghdr message = messageOf(part, space);
  ssize_t got = -1;
  do {
    got = ::recvmsg(taking, &message, MSG_CMSG_CLOEXEC);
  } while (got < 0 && errno == EINTR);
  if (got <= 0) return noMore();
  InterpreterRequest request;
  const bool complete =
      adoptDescriptors(message, request) && (message.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) == 0;
  told.truncate(got);
  request.device = InterpreterDevice(told.at(0));
  const bool isKnown = request.device == InterpreterDevice::Pdf ||
                       request.device == InterpreterDevice::Plates ||
                       request.device == InterpreterDevice::Canvas;
  const Result<WorkerMessage> decoded = decodeMessage(told.mid(1));
  const ForkRequest* limits = decoded ? std::get_if<ForkRequest>(&*decoded) : nullptr;
  if (!complete || !isKnown || limits == nullptr) return noRequest();
  request.limits = limits->limits;
  return request;
}

}  // namespace norvex
