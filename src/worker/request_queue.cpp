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

RequestQueue::RequestQueue(MessageChannel& channel, Reading reading) : channel_(channel), reading_(reading) {
  if (reading == Reading::BetweenRequests) return;
  std::thread([this] {
    while (true) readMessage();
  }).detach();
}

ArrivedRequest RequestQueue::next() {
  std::unique_lock lock(mutex_);
  running_.reset();
  waitForRequest(lock);
  ArrivedRequest next = std::move(waiting_.front());
  waiting_.pop_front();
  running_.emplace(next.request.id, next.cancel);
  return next;
}

void RequestQueue::waitForRequest(std::unique_lock<std::mutex>& lock) {
  const auto isAsked = [this] { return !waiting_.empty(); };
  if (reading_ == Reading::BetweenRequests) {
    lock.unlock();
    while (!isAsked()) readMessage();  // there is no other thread
    lock.lock();
    return;
  }
  if (arrived_.wait_for(lock, kQuiet, isAsked)) return;
  lock.unlock();
  giveBackUnusedMemory();
  lock.lock();
  arrived_.wait(lock, isAsked);
}

void RequestQueue::readMessage() {
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
