#include "platform/yielding_thread.h"

#include <sys/resource.h>

#include <QThreadPool>

namespace norvex {
namespace {

constexpr int kNice = 10;

void prepare(QThreadPool& pool) {
  pool.setMaxThreadCount(1);
  pool.setExpiryTimeout(-1);
  pool.start(
      [] { ::setpriority(PRIO_PROCESS, 0, ::getpriority(PRIO_PROCESS, 0) + kNice); });  // of this thread
}

}  // namespace

QThreadPool& yieldingThread() {
  static QThreadPool pool;
  static const bool prepared = (prepare(pool), true);
  static_cast<void>(prepared);
  return pool;
}

}  // namespace norvex
