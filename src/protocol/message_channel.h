// MessageChannel: whole messages, each with at most one file descriptor, over a connected stream socket.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>

#include <utility>

#include "base/file_descriptor.h"
#include "base/result.h"

struct msghdr;

namespace norvex {

/// One message as it arrived.
struct ChannelMessage {
  QByteArray cbor;
  FileDescriptor descriptor;  ///< not valid: none came with it
};

/// See worker_protocol.h for the form on the wire. Never raises SIGPIPE. One thread may send while another
/// receives; two threads must not do the same. Failures: TimedOut and Cancelled (the channel stays usable, a
/// half received message is continued by the next receive), Died (the other side has closed), Protocol (a
/// length over the limit, more than one descriptor, a descriptor after the length). After Died or Protocol
/// the channel is of no use any more.
class MessageChannel {
 public:
  MessageChannel() = default;
  /// Takes a connected SOCK_STREAM socket and makes it non-blocking.
  explicit MessageChannel(FileDescriptor socket);

  /// Both ends of a new connection; both are closed on exec.
  static Result<std::pair<FileDescriptor, FileDescriptor>> makePair();

  /// Sends the message with a copy of `descriptor` (-1: none); the caller's own descriptor stays open.
  Result<void> send(const QByteArray& cbor, int descriptor = -1,
                    QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever));
  /// `interruption`: a descriptor that becomes readable when the wait shall end early, which then fails with
  /// Cancelled; a message that is there is given all the same. -1: none.
  Result<ChannelMessage> receive(QDeadlineTimer deadline = QDeadlineTimer(QDeadlineTimer::Forever),
                                 int interruption = -1);

  /// True if the other side still holds its end. True also while unread bytes wait.
  [[nodiscard]] bool isConnected() const;
  [[nodiscard]] int socket() const { return socket_.get(); }
  [[nodiscard]] bool valid() const { return socket_.valid(); }

 private:
  Result<void> waitFor(short events, QDeadlineTimer deadline, int interruption = -1) const;
  Result<void> fill(char* target, qsizetype& have, qsizetype want, bool descriptorAllowed,
                    QDeadlineTimer deadline, int interruption);
  Result<void> adoptDescriptors(msghdr& header, bool allowed);

  FileDescriptor socket_;
  // The message that is arriving.
  char length_[4] = {};
  qsizetype haveLength_ = 0;
  QByteArray body_;
  qsizetype haveBody_ = 0;
  FileDescriptor arriving_;
};

// The kernel bounds the descriptors that all programs of a user have sent and nobody has taken yet: above the
// number of files that a process may open it lets it send no more (unix(7), ETOOMANYREFS). Any program of the
// user can bring picture processes there; it passes as soon as the others take theirs.

/// True if a message with descriptors was refused (`error` of sendmsg()) for that alone.
[[nodiscard]] bool areTooManyUnderWay(int error);
/// Waits a moment before the next try. False: the other end of the socket has gone.
[[nodiscard]] bool waitForThoseUnderWay(int socket);

}  // namespace norvex
