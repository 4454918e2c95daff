#include "base/background_threads.h"

#include <sys/resource.h>

#include <QThreadPool>

namespace norvex {
namespace {

constexpr int kThreads = 32;  // they hardly compute

void prepare(QThreadPool& pool) {
  pool.setMaxThreadCount(1);
  pool.setExpiryTimeout(-1);
  // Linux has a priority for each thread: this is the pool's only one.
  pool.start([] { ::setpriority(PRIO_PROCESS, 0, ::getpriority(PRIO_PROCESS, 0) + kNicerThanFrames); });
}

}  // namespace

QThreadPool& waitingThreads() {
  static QThreadPool pool;
  static const bool sized = (pool.setMaxThreadCount(kThreads), true);
  static_cast<void>(sized);
  return pool;
}

QThreadPool& yieldingThread() {
  static QThreadPool pool;
  static const bool prepared = (prepare(pool), true);
  static_cast<void>(prepared);
  return pool;
}

}  // namespace norvex
