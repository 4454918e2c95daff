#include "cli/archive/work_window.h"

#include <utility>

namespace norvex {

bool WorkWindow::mayEnter() const {
  return stopped_ || (qint64(tasks_.size()) < size_.waitingTasks && entries_ - told_ < size_.openNumbers &&
                      untold_ < size_.untoldBytes);
}

bool WorkWindow::put(FileTask task) {
  std::unique_lock lock(mutex_);
  left_.wait(lock, [&] { return mayEnter(); });
  if (stopped_) return false;
  ++entries_;
  tasks_.push_back(std::move(task));
  entered_.notify_one();
  return true;
}

bool WorkWindow::putResult(FileResult result) {
  std::unique_lock lock(mutex_);
  left_.wait(lock, [&] { return mayEnter(); });
  if (stopped_) return false;
  ++entries_;
  untold_ += result.weight();
  results_.emplace(result.number, std::move(result));
  finished_.notify_one();
  return true;
}

void WorkWindow::close() {
  const std::lock_guard lock(mutex_);
  closed_ = true;
  entered_.notify_all();
  finished_.notify_all();
}

std::optional<FileTask> WorkWindow::take() {
  std::unique_lock lock(mutex_);
  entered_.wait(lock, [&] { return stopped_ || closed_ || !tasks_.empty(); });
  if (stopped_ || tasks_.empty()) return std::nullopt;
  FileTask task = std::move(tasks_.front());
  tasks_.pop_front();
  ++working_;
  left_.notify_one();
  return task;
}

void WorkWindow::done(FileResult result) {
  const std::lock_guard lock(mutex_);
  --working_;
  untold_ += result.weight();
  results_.emplace(result.number, std::move(result));
  finished_.notify_one();
}

bool WorkWindow::isReady() const {
  if (results_.empty()) return false;
  // What was dropped leaves gaps in the order.
  return !inOrder_ || stopped_ || results_.begin()->first == told_ + 1;
}

std::optional<FileResult> WorkWindow::next(std::chrono::milliseconds time) {
  std::unique_lock lock(mutex_);
  finished_.wait_for(lock, time, [&] { return isReady() || isOverLocked(); });
  if (!isReady()) return std::nullopt;
  FileResult result = std::move(results_.begin()->second);
  results_.erase(results_.begin());
  untold_ -= result.weight();
  ++told_;
  left_.notify_one();
  return result;
}

bool WorkWindow::isOverLocked() const {
  return results_.empty() && working_ == 0 && (stopped_ || (closed_ && tasks_.empty()));
}

bool WorkWindow::isOver() {
  const std::lock_guard lock(mutex_);
  return isOverLocked();
}

void WorkWindow::stop() {
  const std::lock_guard lock(mutex_);
  stopped_ = true;
  entries_ -= qint64(tasks_.size());
  tasks_.clear();
  entered_.notify_all();
  left_.notify_all();
  finished_.notify_all();
}

}  // namespace norvex
