// RequestQueue: the requests that have arrived, read by a thread of their own so that a cancel is heard at
// work.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>

#include "base/cancel_token.h"
#include "protocol/message_channel.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// A request together with what came with it.
struct ArrivedRequest {
  WorkerRequest request;
  FileDescriptor descriptor;
  CancelToken cancel;  ///< set when a CancelRequest for it arrives
};

/// Reads the channel until its other side closes, and then ends the process, whatever the main thread is
/// doing: an answer that nobody waits for is worth nothing. A message that is not a request ends the process
/// as well.
class RequestQueue {
 public:
  /// Borrows the channel, which must outlive the process's last request, and starts the reading thread.
  explicit RequestQueue(MessageChannel& channel);
  RequestQueue(const RequestQueue&) = delete;
  ~RequestQueue() = delete;  // the reading thread ends with the process

  /// Waits for the next request. The one before counts as done from now on. Main thread.
  ArrivedRequest next();

 private:
  [[noreturn]] void readMessages();
  void accept(WorkerRequest request, FileDescriptor descriptor);
  void cancel(quint32 id);

  MessageChannel& channel_;
  std::mutex mutex_;
  std::condition_variable arrived_;
  std::deque<ArrivedRequest> waiting_;
  std::optional<std::pair<quint32, CancelToken>> running_;
};

}  // namespace norvex
