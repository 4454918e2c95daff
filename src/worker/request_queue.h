// RequestQueue: the requests that have arrived, read by a thread of their own where a cancel is to be heard
// at work.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

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
/// as well. Without a thread both are noticed by the next request.
class RequestQueue {
 public:
  enum class Reading { AtWork, BetweenRequests };
  /// Borrows the channel, which must outlive the process's last request, and starts the reading thread.
  /// BetweenRequests: without one, for work that is shorter than making a thread; who does not want to wait
  /// for it any more ends the process.
  explicit RequestQueue(MessageChannel& channel, Reading reading = Reading::AtWork);
  RequestQueue(const RequestQueue&) = delete;
  ~RequestQueue() = delete;  // the reading thread ends with the process

  /// Waits for the next request. The one before counts as done from now on. Main thread.
  ArrivedRequest next();

 private:
  void waitForRequest(std::unique_lock<std::mutex>& lock);
  void readMessage();
  void accept(WorkerRequest request, FileDescriptor descriptor);
  void cancel(quint32 id);

  MessageChannel& channel_;
  const Reading reading_;
  std::mutex mutex_;
  std::condition_variable arrived_;
  std::deque<ArrivedRequest> waiting_;
  std::optional<std::pair<quint32, CancelToken>> running_;
};

}  // namespace norvex
