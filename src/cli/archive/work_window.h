// Between the thread that reads names, those that work, and the one that tells: so much is under way and no
// more.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <optional>

#include "cli/archive/file_result.h"

namespace norvex {

/// Tasks go in by their numbers, one after the other; results come out in the same order or as they are done.
/// Whoever puts something in waits while too much has not come out: memory is bounded whatever is slow.
/// Thread-safe.
class WorkWindow {
 public:
  struct Size {
    int waitingTasks = 256;
    qint64 openNumbers = 4096;     ///< from the first that was not told to the last that was read
    qint64 untoldBytes = 4 << 20;  ///< of results that wait
  };

  WorkWindow(bool inOrder, const Size& size) : inOrder_(inOrder), size_(size) {}

  /// False: the run is over, nothing more is wanted. Reader's thread.
  bool put(FileTask task);
  /// A result that is known without work, in its place among the others. False as above.
  bool putResult(FileResult result);
  /// No more will come.
  void close();

  /// Waits for a task; nothing: there will be none. Workers.
  std::optional<FileTask> take();
  void done(FileResult result);

  /// The next result to tell; waits for `time` at most. Nothing: not yet, or isOver().
  std::optional<FileResult> next(std::chrono::milliseconds time);
  /// All that came in has come out, or the run was stopped and nobody works.
  [[nodiscard]] bool isOver();
  /// Drops the tasks that wait and lets nothing in any more.
  void stop();

 private:
  [[nodiscard]] bool mayEnter() const;
  [[nodiscard]] bool isReady() const;
  [[nodiscard]] bool isOverLocked() const;

  const bool inOrder_;
  const Size size_;
  std::mutex mutex_;
  std::condition_variable entered_, left_, finished_;
  std::deque<FileTask> tasks_;
  std::map<qint64, FileResult> results_;
  qint64 untold_ = 0;  ///< weight of the results
  qint64 working_ = 0, told_ = 0, entries_ = 0;
  bool closed_ = false, stopped_ = false;
};

}  // namespace norvex
