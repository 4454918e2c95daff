// Calls that no document's process may make, each as the system takes it, so that no library stands between.
#pragma once

#include <fcntl.h>
#include <linux/keyctl.h>
#include <netinet/in.h>
#include <sched.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <string>
#include <vector>

namespace norvex::kit {

struct ForbiddenCall {
  const char* name;
  std::function<long()> make;  ///< as syscall(2): -1 and errno when it failed
};

/// A path as an argument of a system call.
inline const char* pathOf(const std::string& path) {
  return path.c_str();
}

/// Calls about files of `folder`, which is the user's and holds `file`. Each works for an unconfined process,
/// one after the other.
inline std::vector<ForbiddenCall> callsAboutFiles(const std::string& folder, const std::string& file) {
  const std::string made = folder + "/made";
  const auto at = [](int result) { return result; };
  return {
      {"open to read", [=] { return long(at(::open(pathOf(file), O_RDONLY))); }},
      {"open to write", [=] { return long(at(::open(pathOf(file), O_WRONLY))); }},
      {"open to make", [=] { return long(at(::open(pathOf(made), O_WRONLY | O_CREAT, 0600))); }},
      {"open a nameless file", [=] { return long(at(::open(pathOf(folder), O_WRONLY | O_TMPFILE, 0600))); }},
      {"open a folder", [=] { return long(at(::open(pathOf(folder), O_RDONLY | O_DIRECTORY))); }},
      {"truncate", [=] { return ::syscall(SYS_truncate, pathOf(file), 1L); }},
      {"link", [=] { return ::syscall(SYS_link, pathOf(file), pathOf(folder + "/linked")); }},
      {"symlink", [=] { return ::syscall(SYS_symlink, pathOf(file), pathOf(folder + "/symbolic")); }},
      {"rename", [=] { return ::syscall(SYS_rename, pathOf(made), pathOf(folder + "/renamed")); }},
      {"unlink", [=] { return ::syscall(SYS_unlink, pathOf(folder + "/renamed")); }},
      {"mkdir", [=] { return ::syscall(SYS_mkdir, pathOf(folder + "/sub"), 0700); }},
      {"rmdir", [=] { return ::syscall(SYS_rmdir, pathOf(folder + "/sub")); }},
      {"mknod", [=] { return ::syscall(SYS_mknod, pathOf(folder + "/fifo"), S_IFIFO | 0600, 0); }},
  };
}

/// Calls that Landlock does not see.
inline std::vector<ForbiddenCall> callsAboutAttributes(const std::string& file) {
  return {
      {"chmod", [=] { return ::syscall(SYS_chmod, pathOf(file), 0600); }},
      {"fchmodat", [=] { return ::syscall(SYS_fchmodat, AT_FDCWD, pathOf(file), 0600); }},
      {"chown", [=] { return ::syscall(SYS_chown, pathOf(file), -1, -1); }},
      {"fchownat", [=] { return ::syscall(SYS_fchownat, AT_FDCWD, pathOf(file), -1, -1, 0); }},
      {"utimensat", [=] { return ::syscall(SYS_utimensat, AT_FDCWD, pathOf(file), nullptr, 0); }},
      {"setxattr", [=] { return ::syscall(SYS_setxattr, pathOf(file), "user.a", "b", 1L, 0); }},
      {"removexattr", [=] { return ::syscall(SYS_removexattr, pathOf(file), "user.a"); }},
  };
}

inline long cloneWith(unsigned long flags) {
  const long pid = ::syscall(SYS_clone, flags | SIGCHLD, 0, 0, 0, 0);
  if (pid == 0) ::_exit(0);
  return pid;
}

inline long execMemory() {
  const int program = int(::syscall(SYS_memfd_create, "program", 0u));
  char* const none[] = {nullptr};
  return ::syscall(SYS_execveat, program, "", none, none, AT_EMPTY_PATH);
}

inline std::vector<ForbiddenCall> callsAboutProcesses() {
  return {
      {"fork", [] { return cloneWith(0); }},
      {"clone with a user namespace", [] { return cloneWith(CLONE_NEWUSER); }},
      {"clone3", [] { return ::syscall(SYS_clone3, nullptr, 0L); }},
      {"execve", [] { return ::syscall(SYS_execve, "/usr/bin/gs", nullptr, nullptr); }},
      {"execveat of memory", execMemory},
      {"ptrace", [] { return ::syscall(SYS_ptrace, PTRACE_ATTACH, ::getppid(), 0, 0); }},
      {"process_vm_readv",
       [] { return ::syscall(SYS_process_vm_readv, ::getppid(), nullptr, 0, nullptr, 0, 0); }},
      {"process_vm_writev",
       [] { return ::syscall(SYS_process_vm_writev, ::getppid(), nullptr, 0, nullptr, 0, 0); }},
      {"kill of the parent", [] { return ::syscall(SYS_kill, ::getppid(), 0); }},
      {"tkill", [] { return ::syscall(SYS_tkill, ::getppid(), 0); }},
      {"tgkill", [] { return ::syscall(SYS_tgkill, ::getppid(), ::getppid(), 0); }},
      {"rt_sigqueueinfo", [] { return ::syscall(SYS_rt_sigqueueinfo, ::getppid(), 0, nullptr); }},
      {"pidfd_open", [] { return ::syscall(SYS_pidfd_open, ::getppid(), 0); }},
      {"pidfd_getfd", [] { return ::syscall(SYS_pidfd_getfd, 0, 0, 0); }},
      {"prlimit of the parent",
       [] { return ::syscall(SYS_prlimit64, ::getppid(), RLIMIT_NOFILE, nullptr, nullptr); }},
      {"setrlimit",
       [] {
         const rlimit more{4096, 4096};
         return ::syscall(SYS_prlimit64, 0, RLIMIT_NOFILE, &more, nullptr);
       }},
      {"setpriority", [] { return ::syscall(SYS_setpriority, PRIO_PROCESS, ::getppid(), 19); }},
      {"sched_setaffinity", [] { return ::syscall(SYS_sched_setaffinity, ::getppid(), 0, nullptr); }},
      {"setpgid", [] { return ::syscall(SYS_setpgid, 0, 0); }},
      {"setsid", [] { return ::syscall(SYS_setsid); }},
  };
}

inline long socketOf(int family, int type) {
  return ::syscall(SYS_socket, family, type, 0);
}

inline std::vector<ForbiddenCall> callsAboutConnections() {
  return {
      {"socket inet", [] { return socketOf(AF_INET, SOCK_STREAM); }},
      {"socket inet6", [] { return socketOf(AF_INET6, SOCK_DGRAM); }},
      {"socket unix", [] { return socketOf(AF_UNIX, SOCK_STREAM); }},
      {"socket netlink", [] { return socketOf(AF_NETLINK, SOCK_RAW); }},
      {"socket packet", [] { return socketOf(AF_PACKET, SOCK_RAW); }},
      {"socketpair",
       [] {
         int pair[2];
         return ::syscall(SYS_socketpair, AF_UNIX, SOCK_STREAM, 0, pair);
       }},
      {"connect", [] { return ::syscall(SYS_connect, 3, nullptr, 0); }},
      {"bind", [] { return ::syscall(SYS_bind, 3, nullptr, 0); }},
      {"listen", [] { return ::syscall(SYS_listen, 3, 1); }},
      {"accept4", [] { return ::syscall(SYS_accept4, 3, nullptr, nullptr, 0); }},
      {"sendto", [] { return ::syscall(SYS_sendto, 3, nullptr, 0L, 0, nullptr, 0); }},
      {"msgget", [] { return ::syscall(SYS_msgget, 0, 01600); }},
      {"shmget", [] { return ::syscall(SYS_shmget, 0, 4096L, 01600); }},
      {"semget", [] { return ::syscall(SYS_semget, 0, 1, 01600); }},
      {"mq_open", [] { return ::syscall(SYS_mq_open, "/q", O_CREAT | O_RDWR, 0600, nullptr); }},
  };
}

inline std::vector<ForbiddenCall> callsAboutTheSystem() {
  return {
      {"mount", [] { return ::syscall(SYS_mount, "none", "/tmp", "tmpfs", 0L, nullptr); }},
      {"umount2", [] { return ::syscall(SYS_umount2, "/tmp", 0); }},
      {"pivot_root", [] { return ::syscall(SYS_pivot_root, ".", "."); }},
      {"chroot", [] { return ::syscall(SYS_chroot, "/"); }},
      {"open_tree", [] { return ::syscall(SYS_open_tree, AT_FDCWD, "/", 0); }},
      {"fsopen", [] { return ::syscall(SYS_fsopen, "tmpfs", 0); }},
      {"move_mount", [] { return ::syscall(SYS_move_mount, 0, "", 0, "", 0); }},
      {"mount_setattr", [] { return ::syscall(SYS_mount_setattr, AT_FDCWD, "/", 0, nullptr, 0L); }},
      {"unshare", [] { return ::syscall(SYS_unshare, CLONE_NEWUSER); }},
      {"setns", [] { return ::syscall(SYS_setns, 0, 0); }},
      {"keyctl", [] { return ::syscall(SYS_keyctl, KEYCTL_GET_KEYRING_ID, KEY_SPEC_USER_KEYRING, 0); }},
      {"add_key", [] { return ::syscall(SYS_add_key, "user", "a", "b", 1L, KEY_SPEC_USER_KEYRING); }},
      {"request_key", [] { return ::syscall(SYS_request_key, "user", "a", nullptr, 0); }},
      {"bpf", [] { return ::syscall(SYS_bpf, 0, nullptr, 0); }},
      {"perf_event_open", [] { return ::syscall(SYS_perf_event_open, nullptr, 0, -1, -1, 0L); }},
      {"userfaultfd", [] { return ::syscall(SYS_userfaultfd, 0); }},
      {"io_uring_setup", [] { return ::syscall(SYS_io_uring_setup, 1, nullptr); }},
      {"io_uring_enter", [] { return ::syscall(SYS_io_uring_enter, 3, 0, 0, 0, nullptr, 0L); }},
      {"name_to_handle_at",
       [] { return ::syscall(SYS_name_to_handle_at, AT_FDCWD, "/", nullptr, nullptr, 0); }},
      {"open_by_handle_at", [] { return ::syscall(SYS_open_by_handle_at, AT_FDCWD, nullptr, 0); }},
      {"openat2", [] { return ::syscall(SYS_openat2, AT_FDCWD, "/etc/ld.so.cache", nullptr, 0L); }},
      {"fanotify_init", [] { return ::syscall(SYS_fanotify_init, 0, 0); }},
      {"inotify_init1", [] { return ::syscall(SYS_inotify_init1, 0); }},
      {"syslog", [] { return ::syscall(SYS_syslog, 10, nullptr, 0); }},
      {"quotactl", [] { return ::syscall(SYS_quotactl, 0, nullptr, 0, nullptr); }},
      {"personality", [] { return ::syscall(SYS_personality, 0x0040000); }},
      {"prctl dumpable", [] { return ::syscall(SYS_prctl, PR_SET_DUMPABLE, 1, 0, 0, 0); }},
      {"prctl pdeathsig", [] { return ::syscall(SYS_prctl, PR_SET_PDEATHSIG, 0, 0, 0, 0); }},
      {"capset", [] { return ::syscall(SYS_capset, nullptr, nullptr); }},
      {"setuid", [] { return ::syscall(SYS_setuid, ::getuid()); }},
      {"setgid", [] { return ::syscall(SYS_setgid, ::getgid()); }},
      {"setgroups", [] { return ::syscall(SYS_setgroups, 0, nullptr); }},
      {"init_module", [] { return ::syscall(SYS_init_module, nullptr, 0L, ""); }},
      {"kexec_load", [] { return ::syscall(SYS_kexec_load, 0L, 0L, nullptr, 0L); }},
      {"reboot", [] { return ::syscall(SYS_reboot, 0, 0, 0, nullptr); }},
      {"swapon", [] { return ::syscall(SYS_swapon, "/nowhere", 0); }},
      {"acct", [] { return ::syscall(SYS_acct, nullptr); }},
      {"sethostname", [] { return ::syscall(SYS_sethostname, "a", 1L); }},
      {"clock_settime", [] { return ::syscall(SYS_clock_settime, 0, nullptr); }},
      {"settimeofday", [] { return ::syscall(SYS_settimeofday, nullptr, nullptr); }},
      {"mbind", [] { return ::syscall(SYS_mbind, nullptr, 0L, 0, nullptr, 0L, 0); }},
      {"ioctl TIOCSTI", [] { return ::syscall(SYS_ioctl, 0, 0x5412, "a"); }},
      {"fcntl F_SETOWN", [] { return ::syscall(SYS_fcntl, 0, F_SETOWN, ::getppid()); }},
      {"seccomp", [] { return ::syscall(SYS_seccomp, 0, 0, nullptr); }},
  };
}

}  // namespace norvex::kit
