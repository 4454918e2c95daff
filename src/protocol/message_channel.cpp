#include "protocol/message_channel.h"

#include <QtEndian>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <limits>

#include "protocol/limits.h"
#include "protocol/worker_protocol.h"

namespace norvex {
namespace {

Error died() {
  return {ErrorKind::Died, QStringLiteral("the picture process ended without an answer")};
}
Error timedOut() {
  return {ErrorKind::TimedOut, QStringLiteral("the picture process did not answer in time")};
}
Error interrupted() {
  return {ErrorKind::Cancelled, QStringLiteral("the answer is no longer waited for")};
}
Error cannotBeTrue() {
  return {ErrorKind::Protocol, QStringLiteral("the picture process sent something that is not a message")};
}

bool isTemporary(int error) {
  return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

/// Room for the control data of exactly one descriptor.
struct alignas(cmsghdr) OneDescriptor {
  char bytes[CMSG_SPACE(sizeof(int))] = {};
};

void attach(msghdr& header, OneDescriptor& room, int descriptor) {
  header.msg_control = room.bytes;
  header.msg_controllen = sizeof room.bytes;
  cmsghdr* control = CMSG_FIRSTHDR(&header);
  control->cmsg_level = SOL_SOCKET;
  control->cmsg_type = SCM_RIGHTS;
  control->cmsg_len = CMSG_LEN(sizeof(int));
  std::memcpy(CMSG_DATA(control), &descriptor, sizeof descriptor);
}

}  // namespace

MessageChannel::MessageChannel(FileDescriptor socket) : socket_(std::move(socket)) {
  if (socket_.valid()) ::fcntl(socket_.get(), F_SETFL, ::fcntl(socket_.get(), F_GETFL) | O_NONBLOCK);
}

Result<std::pair<FileDescriptor, FileDescriptor>> MessageChannel::makePair() {
  int ends[2] = {-1, -1};
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
    return Error{ErrorKind::Died, QStringLiteral("no connection to a picture process could be made")};
  return std::pair{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

Result<void> MessageChannel::waitFor(short events, QDeadlineTimer deadline, int interruption) const {
  while (true) {
    pollfd polls[] = {{socket_.get(), events, 0}, {interruption, POLLIN, 0}};  // poll passes over -1
    const qint64 left = deadline.remainingTime();  // -1: for ever, which poll spells the same way
    const int wait = left < 0 ? -1 : int(std::min<qint64>(left, std::numeric_limits<int>::max()));
    const int ready = ::poll(polls, std::size(polls), wait);
    if (polls[0].revents != 0 && ready > 0)
      return (polls[0].revents & POLLNVAL) != 0 ? Result<void>(died()) : Result<void>();
    if (ready > 0) return interrupted();
    if (ready < 0 && errno != EINTR) return died();
    if (deadline.hasExpired()) return timedOut();
  }
}

Result<void> MessageChannel::send(const QByteArray& cbor, int descriptor, QDeadlineTimer deadline) {
  if (!socket_.valid()) return died();
  if (cbor.size() > qsizetype(limits::maximumMessageBytes)) return cannotBeTrue();
  QByteArray wire(4, Qt::Uninitialized);
  qToLittleEndian(quint32(cbor.size()), wire.data());
  wire += cbor;
  qsizetype sent = 0;
  while (sent < wire.size()) {
    iovec part = {wire.data() + sent, size_t(wire.size() - sent)};
    msghdr header = {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    OneDescriptor room;
    if (sent == 0 && descriptor >= 0) attach(header, room, descriptor);
    const ssize_t written = ::sendmsg(socket_.get(), &header, MSG_NOSIGNAL | MSG_DONTWAIT);
    if (written >= 0) {
      sent += written;
    } else if (areTooManyUnderWay(errno)) {
      if (!waitForThoseUnderWay(socket_.get())) return died();
      if (deadline.hasExpired()) return timedOut();
    } else if (!isTemporary(errno)) {
      return died();
    } else if (auto ready = waitFor(POLLOUT, deadline); !ready) {
      // A half sent message cannot be taken back.
      return sent == 0 ? ready : Result<void>(died());
    }
  }
  return {};
}

Result<void> MessageChannel::adoptDescriptors(msghdr& header, bool allowed) {
  bool good = (header.msg_flags & MSG_CTRUNC) == 0;
  for (cmsghdr* control = CMSG_FIRSTHDR(&header); control != nullptr;
       control = CMSG_NXTHDR(&header, control)) {
    if (control->cmsg_level != SOL_SOCKET || control->cmsg_type != SCM_RIGHTS) continue;
    const size_t count = (control->cmsg_len - CMSG_LEN(0)) / sizeof(int);
    for (size_t i = 0; i < count; ++i) {
      int fd = -1;
      std::memcpy(&fd, CMSG_DATA(control) + i * sizeof(int), sizeof fd);
      FileDescriptor owned(fd);
      if (!allowed || arriving_.valid()) good = false;
      if (good) arriving_ = std::move(owned);
    }
  }
  if (good) return {};
  arriving_.reset();
  return cannotBeTrue();
}

Result<void> MessageChannel::fill(char* target, qsizetype& have, qsizetype want, bool descriptorAllowed,
                                  QDeadlineTimer deadline, int interruption) {
  while (have < want) {
    iovec part = {target + have, size_t(want - have)};
    OneDescriptor room;
    msghdr header = {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    header.msg_control = room.bytes;
    header.msg_controllen = sizeof room.bytes;
    const ssize_t got = ::recvmsg(socket_.get(), &header, MSG_CMSG_CLOEXEC | MSG_DONTWAIT);
    if (got > 0) {
      if (auto adopted = adoptDescriptors(header, descriptorAllowed && have == 0); !adopted) return adopted;
      have += got;
    } else if (got == 0 || !isTemporary(errno)) {
      return died();
    } else if (auto ready = waitFor(POLLIN, deadline, interruption); !ready) {
      return ready;
    }
  }
  return {};
}

Result<ChannelMessage> MessageChannel::receive(QDeadlineTimer deadline, int interruption) {
  if (!socket_.valid()) return died();
  if (auto filled = fill(length_, haveLength_, 4, true, deadline, interruption); !filled)
    return filled.error();
  const quint32 length = qFromLittleEndian<quint32>(length_);
  if (length == 0 || length > limits::maximumMessageBytes) return cannotBeTrue();
  while (haveBody_ < qsizetype(length)) {
    const qsizetype want = std::min(qsizetype(length), haveBody_ + limits::messageGrowth);
    body_.resize(want);
    if (auto filled = fill(body_.data(), haveBody_, want, false, deadline, interruption); !filled)
      return filled.error();
  }
  haveLength_ = haveBody_ = 0;
  return ChannelMessage{std::exchange(body_, {}), std::move(arriving_)};
}

bool MessageChannel::isConnected() const {
  if (!socket_.valid()) return false;
  pollfd poll = {socket_.get(), POLLIN, 0};
  return ::poll(&poll, 1, 0) >= 0 && (poll.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0;
}

bool areTooManyUnderWay(int error) {
  return error == ETOOMANYREFS;
}

bool waitForThoseUnderWay(int socket) {
  constexpr int milliseconds = 5;
  pollfd end = {socket, 0, 0};
  return ::poll(&end, 1, milliseconds) <= 0;
}

}  // namespace norvex
