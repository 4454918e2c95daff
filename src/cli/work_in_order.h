// Work on many things at once, whose results are taken in the order of the things.
#pragma once

#include <QThreadPool>

#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "base/background_work.h"
#include "base/result.h"

namespace norvex {

/// Makes something of each of `count` things. The threads are its own, and its end waits for all of them:
/// what the work uses must have been made before it. Owned by the thread that made it.
template <typename Made>
class WorkInOrder {
 public:
  /// Calls `make(index)`, at most `threads` at a time and the first things first. A single thing is not worth
  /// a thread: it is made here and now. One for which memory runs out becomes `failed(error)`.
  template <typename Make, typename Failed>
  WorkInOrder(qsizetype count, int threads, Make make, Failed failed) : made_(size_t(count)) {
    const auto makeOne = [this, make = std::move(make), failed = std::move(failed)](qsizetype index) {
      std::optional<Made>& made = made_[size_t(index)];
      try {
        made.emplace(make(index));
      } catch (const std::bad_alloc&) {
        made.emplace(failed(outOfMemory()));
      }
    };
    if (count == 1) {
      makeOne(0);
      return;
    }
    pool_.setMaxThreadCount(threads);
    for (qsizetype index = 0; index < count; ++index)
      begun_.push_back(startWork(pool_, [makeOne, index] { makeOne(index); }));
  }
  ~WorkInOrder() { waitForWork(pool_); }
  WorkInOrder(const WorkInOrder&) = delete;
  WorkInOrder& operator=(const WorkInOrder&) = delete;

  /// Waits for what was made of a thing, and hands it over: call once for each.
  [[nodiscard]] Made take(qsizetype index) {
    if (!begun_.empty()) begun_[size_t(index)].wait();
    std::optional<Made>& made = made_[size_t(index)];
    Made taken = std::move(*made);
    made.reset();
    return taken;
  }

 private:
  std::vector<std::optional<Made>> made_;
  std::vector<BackgroundWork> begun_;
  QThreadPool pool_;
};

}  // namespace norvex
