#include "base/waiting_threads.h"

#include <QCoreApplication>
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

WaitingThreadsEnd::~WaitingThreadsEnd() {
  waitingThreads().waitForDone();
  // The events that the work posted last are taken now, by nobody: left behind, it would be destroyed with
  // the application's queue, under a lock that the objects in it want.
  if (QCoreApplication* application = QCoreApplication::instance())
    QCoreApplication::sendPostedEvents(application, QEvent::MetaCall);
}

}  // namespace norvex
