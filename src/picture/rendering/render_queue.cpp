#include "picture/rendering/render_queue.h"

#include <chrono>
#include <utility>

namespace norvex {

qint64 steadyMilliseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

RenderQueue::RenderQueue(std::shared_ptr<PictureProcess> process, std::function<void()> notify,
                         MillisecondClock clock)
    : process_(std::move(process)),
      notify_(std::move(notify)),
      clock_(std::move(clock)),
      thread_([this] { run(); }) {}

RenderQueue::~RenderQueue() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
    waiting_.clear();
    cancel_.cancel();
    life_.cancel();
  }
  changed_.notify_all();
  thread_.join();
}

QSet<quint64> RenderQueue::suspend() {
  const std::lock_guard lock(mutex_);
  suspended_ = true;
  QSet<quint64> begun = ended_;
  if (running_ != 0) begun.insert(running_);
  return begun;
}

int RenderQueue::setWanted(const QList<RenderJob>& jobs) {
  int patience = 0;
  {
    const std::lock_guard lock(mutex_);
    suspended_ = false;
    QSet<quint64> wanted;
    for (const RenderJob& job : jobs) wanted.insert(job.id);
    ended_.intersect(wanted);
    if (running_ != 0 && !wanted.contains(running_)) patience = cancelRunning();
    waiting_.clear();
    for (const RenderJob& job : jobs)
      if (job.id != running_ && !ended_.contains(job.id)) waiting_ << job;
  }
  changed_.notify_all();
  return patience;
}

/// While the document is still being opened nothing is lost: the job is dropped when it would be begun.
int RenderQueue::cancelRunning() {
  const qint64 left = openingTook_ < 0 ? 0 : runningSince_ + openingTook_ - clock_();
  if (left > 0) return int(left);
  cancel_.cancel();
  return 0;
}

QList<RenderQueue::Finished> RenderQueue::takeFinished() {
  const std::lock_guard lock(mutex_);
  return std::exchange(finished_, {});
}

std::optional<RenderJob> RenderQueue::next(CancelToken& token) {
  std::unique_lock lock(mutex_);
  if (running_ != 0) ended_.insert(std::exchange(running_, 0));
  changed_.wait(lock, [this] { return stop_ || (!suspended_ && !waiting_.isEmpty()); });
  if (stop_) return std::nullopt;
  RenderJob job = waiting_.takeFirst();
  running_ = job.id;
  runningSince_ = clock_();
  token = cancel_ = CancelToken();
  return job;
}

/// The opening belongs to no job: one that is no longer wanted must not cancel it.
Result<QImage> RenderQueue::render(const RenderJob& job, const CancelToken& token) {
  const qint64 start = clock_();
  if (const auto facts = process_->facts(life_); !facts) return facts.error();
  {
    const std::lock_guard lock(mutex_);
    runningSince_ = clock_();
    if (openingTook_ < 0) openingTook_ = runningSince_ - start;
  }
  if (token.cancelled())
    return Error{ErrorKind::Cancelled, QStringLiteral("the rendering is no longer wanted")};
  return process_->render(job.request, token);
}

void RenderQueue::run() {
  CancelToken token;
  while (const auto job = next(token)) {
    Result<QImage> result = render(*job, token);
    {
      const std::lock_guard lock(mutex_);
      if (stop_) return;
      finished_.append({*job, std::move(result)});
    }
    notify_();
  }
}

}  // namespace norvex
