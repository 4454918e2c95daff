// Work on another thread, and the way of what it made back to who asked for it.
#pragma once

#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "base/background_threads.h"
#include "base/result.h"

namespace norvex {

class Postbox;

/// Work that was begun; of a default-made one nothing is left to do. Copies are of the same work.
/// Thread-safe; what the work wrote may be read once it is over.
class BackgroundWork {
 public:
  [[nodiscard]] bool isOver() const;
  void wait() const;
  /// False: it is not over yet.
  [[nodiscard]] bool waitFor(std::chrono::milliseconds time) const;

 private:
  friend BackgroundWork startWork(QThreadPool& pool, std::function<void()> work);
  struct End;
  std::shared_ptr<End> end_;
};

/// Does `work` on a thread of the pool, and destroys it there. When memory runs out the rest of it is left
/// undone. Any thread.
BackgroundWork startWork(QThreadPool& pool, std::function<void()> work);

/// Until the pool has done all its work; what that wrote may be read then. Any thread but the pool's.
void waitForWork(QThreadPool& pool);

/// The way from any thread to an object of the main thread. Made and copied by who begins the work.
class WayBack {
 public:
  /// Main thread.
  explicit WayBack(QObject* owner);
  /// Has `news` called on the main thread, from its event loop and in the order of telling. Where the owner
  /// or the application is gone by then it is dropped: it may hold the plain address of its owner. Any
  /// thread.
  void tell(std::function<void()> news) const;

 private:
  QPointer<QObject> owner_;
  std::shared_ptr<Postbox> postbox_;  ///< null: there was no application
};

/// Put before what work on waitingThreads() uses, it waits at its end until all of it is over, and takes what
/// it told. What shall end soon must have been cancelled. Main thread.
struct WaitingThreadsEnd {
  WaitingThreadsEnd() = default;
  ~WaitingThreadsEnd();
  WaitingThreadsEnd(const WaitingThreadsEnd&) = delete;
  WaitingThreadsEnd& operator=(const WaitingThreadsEnd&) = delete;
};

/// Ends an object that belongs to a thread with an event loop, once this thread is done with it: there, or at
/// once where that is this thread or none. Any thread; nobody may use the object any more.
void deleteInItsThread(QObject* object);

[[nodiscard]] Error outOfMemory();

/// What the work makes; when memory runs out an error, or a default-made value where it makes no Result.
template <typename Work>
std::invoke_result_t<Work&> madeBy(Work& work) {
  using Made = std::invoke_result_t<Work&>;
  try {
    return work();
  } catch (const std::bad_alloc&) {
    if constexpr (std::is_convertible_v<Error, Made>)
      return outOfMemory();
    else
      return Made();
  }
}

/// Does `work()` on a thread of the pool, and then `take(made)` (`take()` where it makes nothing) on the main
/// thread, unless `owner` or the application is gone by then. `take` may hold the owner's plain address,
/// `work` may not. Main thread.
template <typename Work, typename Take>
BackgroundWork workInBackground(QObject* owner, Work work, Take take, QThreadPool& pool = waitingThreads()) {
  return startWork(pool, [back = WayBack(owner), work = std::move(work), take = std::move(take)]() mutable {
    if constexpr (std::is_void_v<std::invoke_result_t<Work&>>) {
      madeBy(work);
      back.tell(std::move(take));
    } else {
      back.tell([take = std::move(take), made = madeBy(work)]() mutable { take(std::as_const(made)); });
    }
  });
}

}  // namespace norvex
