// WorkerConnection: one picture process and the line to it, until one of the two is broken.
#pragma once

#include <QDeadlineTimer>

#include <memory>
#include <optional>

#include "base/cancel_token.h"
#include "picture/client/worker_starter.h"
#include "protocol/message_channel.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// The answer to a request. Every number in the body is within the protocol's limits and nothing more is
/// known: whoever uses it compares it with what was asked and with the descriptor.
struct WorkerAnswer {
  ReplyBody body;
  FileDescriptor descriptor;
};

/// Not thread-safe: its owner serves one call after the other. The destructor kills the process.
class WorkerConnection {
 public:
  /// Asks for a process and returns without waiting for it. Fails with Died.
  static Result<std::unique_ptr<WorkerConnection>> open(std::shared_ptr<WorkerStarter> starter,
                                                        const ForkRequest& request);
  /// Uses a process that runs already; whoever started it waits for its end.
  static std::unique_ptr<WorkerConnection> to(SpawnedPicture picture);
  ~WorkerConnection();
  WorkerConnection(const WorkerConnection&) = delete;
  WorkerConnection& operator=(const WorkerConnection&) = delete;

  [[nodiscard]] const ForkRequest& request() const { return request_; }
  /// True if the process is our own child, started before anybody had asked for it.
  [[nodiscard]] bool isOwnChild() const { return starter_ == nullptr; }
  /// True if such a process has ended by itself and without an answer: it could not be loaded, most likely.
  [[nodiscard]] bool hasNotComeUp() const { return hasNotComeUp_; }
  /// True if the process lives and nothing unexpected has come from it.
  [[nodiscard]] bool isUsable() const;

  /// Sends a request and gives its id. Fails with Limit when it is out of the protocol's range, else as the
  /// channel.
  Result<quint32> post(RequestBody body, const FileDescriptor& memory = FileDescriptor());
  /// Waits for the answer to the request posted last. An Error in the answer is a failure of the picture, and
  /// the process lives on. The failures that end it: TimedOut, Died, Protocol, and Cancelled when the process
  /// did not obey the cancel at once; isUsable() tells. With `late` such a process is not ended: it has begun
  /// something that may be asked for, and owes its answer to settle().
  Result<WorkerAnswer> wait(quint32 id, QDeadlineTimer deadline, const CancelToken& cancel,
                            bool late = false);
  /// To be called before the next request. Waits for an answer that is owed and drops it; a process that has
  /// not given it by then is ended. Fails as wait(); with Cancelled the answer is still owed.
  Result<void> settle(QDeadlineTimer deadline, const CancelToken& cancel);

  /// Kills the process.
  void end();
  /// Its number, 0 while it is not known. Waits for a moment.
  [[nodiscard]] qint64 processId();

 private:
  WorkerConnection(std::shared_ptr<WorkerStarter> starter, const ForkRequest& request,
                   std::optional<WorkerStarter::Ticket> ticket, FileDescriptor socket);
  bool learnProcess(QDeadlineTimer deadline);
  Error failed(Error error, const CancelToken& cancel = {});
  /// How the process has ended, or why there is none; nothing: it is not known by `soon`.
  [[nodiscard]] std::optional<Error> reasonOfItsEnd(QDeadlineTimer soon);
  void letBegin(const FileDescriptor& wake, QDeadlineTimer deadline);
  void yield();
  Result<WorkerAnswer> understand(quint32 id, ChannelMessage message);

  std::shared_ptr<WorkerStarter> starter_;  ///< null for our own child
  ForkRequest request_;
  std::optional<WorkerStarter::Ticket> ticket_;  ///< until the process is known
  std::optional<WorkerStarter::Ticket> known_;   ///< the same, from then on
  StartedProcess process_;
  std::optional<Error> notForked_;  ///< why there is no process
  bool hasAnswered_ = false;
  bool hasNotComeUp_ = false;
  bool hasYielded_ = false;                  ///< to frames that are shown
  std::optional<QDeadlineTimer> beginning_;  ///< from the first wait on
  MessageChannel channel_;
  quint32 lastId_ = 0;
  quint32 owed_ = 0;  ///< id of a request that was cancelled and not answered; 0: there is none
};

}  // namespace norvex
