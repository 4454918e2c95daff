#include "base/background_threads.h"

#include <QThreadPool>

namespace norvex {
namespace {

constexpr int kThreads = 32;  // they hardly compute

}  // namespace

QThreadPool& waitingThreads() {
  static QThreadPool pool;
  static const bool sized = (pool.setMaxThreadCount(kThreads), true);
  static_cast<void>(sized);
  return pool;
}

}  // namespace norvex
