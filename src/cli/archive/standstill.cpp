#include "cli/archive/standstill.h"

#include <atomic>
#include <csignal>

namespace norvex {
namespace {

std::atomic<int> times = 0;
static_assert(std::atomic<int>::is_always_lock_free);  // a signal handler may use it

void setHandler(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigaction(SIGCONT, &action, nullptr);
}

}  // namespace

Standstill::Standstill() {
  setHandler([](int) { ++times; });
}

Standstill::~Standstill() {
  setHandler(SIG_DFL);
}

int timesStoodStill() {
  return times;
}

}  // namespace norvex
