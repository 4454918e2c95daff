#include "worker/confinement/system_calls.h"

#include <asm/ioctls.h>
#include <asm/prctl.h>
#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

#include "base/file_descriptor.h"

namespace norvex {
namespace {

// Every group says what for. Whatever is on no list can be missed: the lists come from runs over real files.

/// Memory, and the end.
constexpr int kMemory[] = {SCMP_SYS(brk),      SCMP_SYS(mmap),    SCMP_SYS(munmap), SCMP_SYS(mremap),
                           SCMP_SYS(mprotect), SCMP_SYS(madvise), SCMP_SYS(exit),   SCMP_SYS(exit_group)};
/// Reading and writing what is open. A descriptor cannot be made here but from files that other layers
/// permit, and from memory, which is how results are handed over.
constexpr int kDescriptors[] = {
    SCMP_SYS(read),       SCMP_SYS(readv),     SCMP_SYS(pread64),      SCMP_SYS(preadv),
    SCMP_SYS(write),      SCMP_SYS(writev),    SCMP_SYS(pwrite64),     SCMP_SYS(lseek),
    SCMP_SYS(_llseek),    SCMP_SYS(close),     SCMP_SYS(close_range),  SCMP_SYS(dup),
    SCMP_SYS(dup2),       SCMP_SYS(dup3),      SCMP_SYS(fstat),        SCMP_SYS(fstatfs),
    SCMP_SYS(fadvise64),  SCMP_SYS(readahead), SCMP_SYS(memfd_create), SCMP_SYS(ftruncate),
    SCMP_SYS(fallocate),  SCMP_SYS(pipe),      SCMP_SYS(pipe2),        SCMP_SYS(eventfd2),
    SCMP_SYS(getdents64), SCMP_SYS(getdents),  SCMP_SYS(fsync),        SCMP_SYS(fdatasync)};
/// Looking at names. Contents are a matter of opening.
constexpr int kNames[] = {SCMP_SYS(stat),   SCMP_SYS(lstat),      SCMP_SYS(newfstatat), SCMP_SYS(statx),
                          SCMP_SYS(access), SCMP_SYS(faccessat),  SCMP_SYS(faccessat2), SCMP_SYS(readlink),
                          SCMP_SYS(statfs), SCMP_SYS(readlinkat), SCMP_SYS(getcwd)};
/// The line to the program that asked for the picture: it is connected already, and no other can be made.
constexpr int kLine[] = {SCMP_SYS(sendmsg), SCMP_SYS(recvmsg), SCMP_SYS(poll),
                         SCMP_SYS(ppoll),   SCMP_SYS(select),  SCMP_SYS(pselect6)};
/// Threads of our own, and waiting for them.
constexpr int kThreads[] = {SCMP_SYS(futex),
                            SCMP_SYS(set_robust_list),
                            SCMP_SYS(get_robust_list),
                            SCMP_SYS(rseq),
                            SCMP_SYS(set_tid_address),
                            SCMP_SYS(sched_yield),
                            SCMP_SYS(sched_getaffinity),
                            SCMP_SYS(membarrier),
                            SCMP_SYS(restart_syscall),
                            SCMP_SYS(getcpu),
                            SCMP_SYS(wait4)};
/// Our own signals: how they are taken, not that they are sent.
constexpr int kSignals[] = {SCMP_SYS(rt_sigaction),  SCMP_SYS(rt_sigprocmask),  SCMP_SYS(rt_sigreturn),
                            SCMP_SYS(rt_sigpending), SCMP_SYS(rt_sigtimedwait), SCMP_SYS(sigaltstack)};
/// Time, chance, and who and where we are.
constexpr int kFacts[] = {
    SCMP_SYS(clock_gettime), SCMP_SYS(clock_getres), SCMP_SYS(clock_nanosleep), SCMP_SYS(nanosleep),
    SCMP_SYS(gettimeofday),  SCMP_SYS(time),         SCMP_SYS(times),           SCMP_SYS(getrusage),
    SCMP_SYS(getrandom),     SCMP_SYS(uname),        SCMP_SYS(sysinfo),         SCMP_SYS(getpid),
    SCMP_SYS(getppid),       SCMP_SYS(gettid),       SCMP_SYS(getuid),          SCMP_SYS(geteuid),
    SCMP_SYS(getgid),        SCMP_SYS(getegid),      SCMP_SYS(getpgrp),         SCMP_SYS(getrlimit)};
/// A program's first steps.
constexpr int kStart[] = {SCMP_SYS(execve), SCMP_SYS(arch_prctl)};
/// Scratch files. Which folder that is, is a matter of the other layers.
constexpr int kScratch[] = {SCMP_SYS(unlink), SCMP_SYS(unlinkat)};

/// How a file is opened that nothing is written to.
constexpr unsigned kWriting = O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY);
constexpr unsigned kNewNamespaces =
    CLONE_NEWNS | CLONE_NEWCGROUP | CLONE_NEWUTS | CLONE_NEWIPC | CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET;
constexpr int kDescriptorCommands[] = {F_DUPFD, F_DUPFD_CLOEXEC, F_GETFD,     F_SETFD, F_GETFL,
                                       F_SETFL, F_ADD_SEALS,     F_GET_SEALS, F_GETLK, F_SETLK};
constexpr int kOwnAttributes[] = {PR_SET_NAME,     PR_GET_NAME,         PR_GET_DUMPABLE,
                                  PR_CAPBSET_READ, PR_GET_NO_NEW_PRIVS, PR_GET_PDEATHSIG};

class Rules {
 public:
  Rules() : context_(::seccomp_init(SCMP_ACT_ERRNO(EPERM)), ::seccomp_release) {
    check(context_ ? ::seccomp_attr_set(context_.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS) : -1);
    check(context_ ? ::seccomp_attr_set(context_.get(), SCMP_FLTATR_CTL_OPTIMIZE, 2) : -1);
  }

  template <size_t count>
  void allow(const int (&calls)[count]) {
    for (const int call : calls) rule(SCMP_ACT_ALLOW, call, {});
  }
  void allowWhen(int call, const scmp_arg_cmp& comparison) { rule(SCMP_ACT_ALLOW, call, {comparison}); }
  void allowWhen(int call, const scmp_arg_cmp& one, const scmp_arg_cmp& other) {
    rule(SCMP_ACT_ALLOW, call, {one, other});
  }
  void fail(int call, int error) { rule(SCMP_ACT_ERRNO(unsigned(error)), call, {}); }

  /// The list as the kernel takes it, into a file in memory; none: something failed.
  [[nodiscard]] FileDescriptor exported() const {
    FileDescriptor file(::memfd_create("calls", MFD_CLOEXEC));
    if (!good_ || ::seccomp_export_bpf(context_.get(), file.get()) != 0) return {};
    return file;
  }

 private:
  void check(int result) { good_ = good_ && result >= 0; }
  void rule(uint32_t action, int call, const std::vector<scmp_arg_cmp>& comparisons) {
    if (call < 0) return;  // this architecture does not have it
    if (good_)
      check(::seccomp_rule_add_array(context_.get(), action, call, unsigned(comparisons.size()),
                                     comparisons.data()));
  }
  std::unique_ptr<void, void (*)(scmp_filter_ctx)> context_;
  bool good_ = true;
};

scmp_arg_cmp equal(unsigned argument, scmp_datum_t value) {
  return {argument, SCMP_CMP_MASKED_EQ, 0xffffffffu, value & 0xffffffffu};
}

void allowThreadsButNoProcesses(Rules& rules) {
  rules.allowWhen(SCMP_SYS(clone),
                  {0, SCMP_CMP_MASKED_EQ, CLONE_THREAD | kNewNamespaces, scmp_datum_t(CLONE_THREAD)});
  rules.fail(SCMP_SYS(clone3), ENOSYS);  // its flags are out of sight; libraries then take clone
}

void allowCommands(Rules& rules) {
  for (const int command : kDescriptorCommands)
    rules.allowWhen(SCMP_SYS(fcntl), equal(1, scmp_datum_t(command)));
  for (const int attribute : kOwnAttributes)
    rules.allowWhen(SCMP_SYS(prctl), equal(0, scmp_datum_t(attribute)));
  rules.allowWhen(SCMP_SYS(ioctl), equal(1, TCGETS));  // whether it is a terminal
  // Limits are read, not set, and they are our own: the new ones are at no address.
  rules.allowWhen(SCMP_SYS(prlimit64), equal(0, 0), {2, SCMP_CMP_EQ, 0, 0});
  // But that of processor time, which every request is granted anew.
  rules.allowWhen(SCMP_SYS(prlimit64), equal(0, 0), equal(1, RLIMIT_CPU));
}

void allowOpening(Rules& rules, bool writing) {
  if (writing) {
    rules.allow({SCMP_SYS(open), SCMP_SYS(openat)});
    rules.allow(kScratch);
  } else {
    rules.allowWhen(SCMP_SYS(open), {1, SCMP_CMP_MASKED_EQ, kWriting, O_RDONLY});
    rules.allowWhen(SCMP_SYS(openat), {2, SCMP_CMP_MASKED_EQ, kWriting, O_RDONLY});
  }
  rules.fail(SCMP_SYS(openat2), ENOSYS);  // its flags are out of sight
}

FileDescriptor compile(CallsFor whom) {
  Rules rules;
  rules.allow(kMemory);
  rules.allow(kDescriptors);
  rules.allow(kNames);
  rules.allow(kLine);
  rules.allow(kThreads);
  rules.allow(kSignals);
  rules.allow(kFacts);
  allowThreadsButNoProcesses(rules);
  allowCommands(rules);
  allowOpening(rules, whom != CallsFor::Engines);
  if (whom == CallsFor::Program) rules.allow(kStart);
  // An interpreter that was started before the list was put on is ended through the descriptor that is held.
  if (whom == CallsFor::Engines) rules.allow({SCMP_SYS(pidfd_send_signal)});
  // Nobody is signalled by number, which could be anybody's; what aborts ends all the same.
  return rules.exported();
}

}  // namespace

SystemCallList SystemCallList::make(CallsFor whom) {
  static_assert(sizeof(Step) == sizeof(sock_filter));
  SystemCallList list;
  const FileDescriptor file = hasSystemCallLists() ? compile(whom) : FileDescriptor();
  const off_t size = file.valid() ? ::lseek(file.get(), 0, SEEK_END) : 0;
  if (size <= 0) return list;
  list.steps_.resize(size_t(size) / sizeof(Step));
  if (::pread(file.get(), list.steps_.data(), size_t(size), 0) != size) list.steps_.clear();
  return list;
}

const SystemCallList& SystemCallList::shared(CallsFor whom) {
  static SystemCallList lists[3];
  SystemCallList& list = lists[int(whom)];
  if (!list.valid()) list = make(whom);
  return list;
}

bool SystemCallList::enter() const {
  if (!valid()) return false;
  const sock_fprog program{static_cast<unsigned short>(steps_.size()),
                           const_cast<sock_filter*>(reinterpret_cast<const sock_filter*>(steps_.data()))};
  return ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_TSYNC, &program) == 0;
}

bool hasSystemCallLists() {
  const uint32_t action = SECCOMP_RET_ERRNO;
  return ::syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0;
}

}  // namespace norvex
