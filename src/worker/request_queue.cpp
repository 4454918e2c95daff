#include "worker/request_queue.h"

#include <unistd.h>

#include <chrono>

#include "base/memory/unused_memory.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

constexpr int kClosed = 0;
constexpr int kNotUnderstood = 2;
/// Nobody zooms any more, or nobody yet: the picture is looked at.
constexpr std::chrono::milliseconds kQuiet{1500};

}  // namespace

RequestQueue::RequestQueue(MessageChannel& channel) : channel_(channel) {
  std::thread([this] { readMessages(); }).detach();
}

ArrivedRequest RequestQueue::next() {
  std::unique_lock lock(mutex_);
  running_.reset();
  const auto isAsked = [this] { return !waiting_.empty(); };
  if (!arrived_.wait_for(lock, kQuiet, isAsked)) {
    lock.unlock();
    giveBackUnusedMemory();
    lock.lock();
    arrived_.wait(lock, isAsked);
  }
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
