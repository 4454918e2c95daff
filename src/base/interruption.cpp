#include "base/interruption.h"

#include <sys/eventfd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <mutex>

namespace norvex {
namespace {

/// Where the handler writes while an Interruption lives. Cancelling wakes whoever waits, which a signal
/// handler may not do: it would take locks that the interrupted thread holds. Any thread may be interrupted.
std::atomic<int> current = -1;
static_assert(std::atomic<int>::is_always_lock_free);  // a signal handler may use it

std::mutex outermostMutex;
const CancelToken* outermost = nullptr;  ///< of the object that hears the signals, or null

void tellCurrent(int) {
  const int before = errno;
  if (const int told = current; told >= 0) (void)::eventfd_write(told, 1);
  errno = before;
}

void setHandler(void (*handler)(int), int flags) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = flags;
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
}

}  // namespace

Interruption::Interruption() {
  {
    const std::lock_guard lock(outermostMutex);
    if (outermost) {
      token_ = *outermost;
      return;
    }
    outermost = &token_;
  }
  signalled_.reset(::eventfd(0, EFD_CLOEXEC));
  listener_ = std::thread([this] {
    eventfd_t count = 0;
    int failed = 0;
    do failed = ::eventfd_read(signalled_.get(), &count);
    while (failed != 0 && errno == EINTR);
    if (failed == 0 && !ended_) token_.cancel();
  });
  current = signalled_.get();
  setHandler(tellCurrent, static_cast<int>(SA_RESETHAND));
}

Interruption::~Interruption() {
  if (!listener_.joinable()) return;  // another hears the signals
  {
    const std::lock_guard lock(outermostMutex);
    outermost = nullptr;
  }
  setHandler(SIG_DFL, 0);
  current = -1;
  ended_ = true;
  (void)::eventfd_write(signalled_.get(), 1);
  listener_.join();
}

}  // namespace norvex
