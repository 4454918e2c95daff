#include "worker/request_queue.h"

#include <unistd.h>

#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr int kClosed = 0;
constexpr int kNotUnderstood = 2;

}  // namespace

RequestQueue::RequestQueue(MessageChannel& channel) : channel_(channel) {
  std::thread([this] { readMessages(); }).detach();
}

ArrivedRequest RequestQueue::next() {
  std::unique_lock lock(mutex_);
  running_.reset();
  arrived_.wait(lock, [this] { return !waiting_.empty(); });
  ArrivedRequest next = std::move(waiting_.front());
  waiting_.pop_front();
  running_.emplace(next.request.id, next.cancel);
  return next;
}

void RequestQueue::readMessages() {
  while (true) {
    Result<ChannelMessage> message = channel_.receive();
    if (!message) ::_exit(message.error().kind == ErrorKind::Died ? kClosed : kNotUnderstood);
    Result<WorkerMessage> decoded = decodeMessage(message->cbor);
    if (!decoded) ::_exit(kNotUnderstood);
    if (auto* request = std::get_if<WorkerRequest>(&*decoded)) {
      accept(std::move(*request), std::move(message->descriptor));
    } else if (const auto* cancelled = std::get_if<CancelRequest>(&*decoded)) {
      cancel(cancelled->id);
    } else {
      ::_exit(kNotUnderstood);
    }
  }
}

void RequestQueue::accept(WorkerRequest request, FileDescriptor descriptor) {
  const std::lock_guard lock(mutex_);
  if (waiting_.size() >= limits::maximumWaitingRequests) ::_exit(kNotUnderstood);
  waiting_.push_back({std::move(request), std::move(descriptor), CancelToken()});
  arrived_.notify_one();
}

void RequestQueue::cancel(quint32 id) {
  const std::lock_guard lock(mutex_);
  if (running_ && running_->first == id) running_->second.cancel();
  for (const ArrivedRequest& request : waiting_)
    if (request.request.id == id) request.cancel.cancel();
}

}  // namespace norvex
