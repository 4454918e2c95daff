#include "platform/picture/render_queue.h"

#include <algorithm>
#include <utility>

namespace norvex {

RenderQueue::RenderQueue(std::shared_ptr<PictureProcess> process, std::function<void()> notify)
    : process_(std::move(process)), notify_(std::move(notify)), thread_([this] { run(); }) {}

RenderQueue::~RenderQueue() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
    waiting_.clear();
    cancel_.cancel();
  }
  changed_.notify_all();
  thread_.join();
}

void RenderQueue::setWanted(const QList<RenderJob>& jobs) {
  {
    const std::lock_guard lock(mutex_);
    QSet<quint64> wanted;
    for (const RenderJob& job : jobs) wanted.insert(job.id);
    ended_.intersect(wanted);
    if (running_ != 0 && !wanted.contains(running_)) cancel_.cancel();
    waiting_.clear();
    for (const RenderJob& job : jobs)
      if (job.id != running_ && !ended_.contains(job.id)) waiting_ << job;
  }
  changed_.notify_all();
}

QList<RenderQueue::Finished> RenderQueue::takeFinished() {
  const std::lock_guard lock(mutex_);
  return std::exchange(finished_, {});
}

std::optional<RenderJob> RenderQueue::next(CancelToken& token) {
  std::unique_lock lock(mutex_);
  if (running_ != 0) ended_.insert(std::exchange(running_, 0));
  changed_.wait(lock, [this] { return stop_ || !waiting_.isEmpty(); });
  if (stop_) return std::nullopt;
  RenderJob job = waiting_.takeFirst();
  running_ = job.id;
  token = cancel_ = CancelToken();
  return job;
}

void RenderQueue::run() {
  CancelToken token;
  while (const auto job = next(token)) {
    Result<QImage> result = process_->render(job->request, token);
    {
      const std::lock_guard lock(mutex_);
      if (stop_) return;
      finished_.append({*job, std::move(result)});
    }
    notify_();
  }
}

}  // namespace norvex
