#include "worker/confinement/last_words.h"

#include <sys/mman.h>
#include <ucontext.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>

#include "protocol/process_end.h"
#include "worker/confinement/instrumented.h"

namespace norvex {
namespace {

constexpr size_t kOwnStack = 64 << 10;
/// How far from the end of the stack a single step may reach: the frame of one function.
constexpr uintptr_t kLargestFrame = 1 << 20;
/// GLib ends a program by a trap, behind which nothing may run; what another process or abort() sends does
/// not happen again by itself.
constexpr int kTrapped = 120;

alignas(16) char ownStack[kOwnStack];
size_t muchMemory = 0;

uintptr_t stackPointer(const void* context) {
  const auto& registers = static_cast<const ucontext_t*>(context)->uc_mcontext;
#if defined(__x86_64__)
  return uintptr_t(registers.gregs[REG_RSP]);
#elif defined(__aarch64__)
  return uintptr_t(registers.sp);
#else
  (void)registers;
  return 0;
#endif
}

/// An allocation has just failed, or one of half of what is granted would: whoever crashes here has most
/// probably been refused memory.
bool isMemoryShort(int lastError) {
  if (lastError == ENOMEM) return true;
  void* const much = ::mmap(nullptr, muchMemory, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (much == MAP_FAILED) return true;
  ::munmap(much, muchMemory);
  return false;
}

/// Only what is safe in the middle of anything.
void crashed(int signal, siginfo_t* info, void* context) {
  const int lastError = errno;
  if (signal == SIGSEGV || signal == SIGBUS) {
    const auto address = reinterpret_cast<uintptr_t>(info->si_addr);
    const uintptr_t stack = stackPointer(context);
    const uintptr_t distance = address > stack ? address - stack : stack - address;
    if (info->si_code > 0 && info->si_code != SI_KERNEL && distance < kLargestFrame) ::_exit(kStackUsedUp);
  }
  if (isMemoryShort(lastError)) ::_exit(kMemoryUsedUp);
  if (signal == SIGTRAP || info->si_code <= 0) ::_exit(kTrapped);
  errno = lastError;  // the same happens again, and nobody takes it any more
}

}  // namespace

void tellWhatEndsUs(const PictureLimits& limits) {
  if (isInstrumented) return;  // sanitizers tell it better
  muchMemory = size_t(limits.memoryMiB) << 19;
  const stack_t stack{ownStack, 0, sizeof ownStack};
  ::sigaltstack(&stack, nullptr);
  struct sigaction action = {};
  action.sa_sigaction = crashed;
  action.sa_flags = SA_SIGINFO | SA_ONSTACK | int(SA_RESETHAND);
  for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGTRAP, SIGILL}) ::sigaction(signal, &action, nullptr);
}

}  // namespace norvex
