#include "cli/interruption.h"

#include <csignal>

namespace norvex {
namespace {

/// Set while an Interruption lives; the handler may touch nothing but its atomic flag.
const CancelToken* current = nullptr;

void cancelCurrent(int) {
  if (current) current->cancel();
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
  current = &token_;
  setHandler(cancelCurrent, static_cast<int>(SA_RESETHAND));
}

Interruption::~Interruption() {
  setHandler(SIG_DFL, 0);
  current = nullptr;
}

}  // namespace norvex
