#include "picture/client/spawned_worker.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

#include "base/remove_folder.h"
#include "protocol/control_descriptor.h"
#include "protocol/start_trace.h"

extern char** environ;

namespace norvex {
namespace {

constexpr int kAboveStandard =
    10;  ///< our own number of it must not be one that the program's start overwrites

std::string makeScratchRoot() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  for (const std::string& base : {std::string(runtime == nullptr ? "" : runtime), std::string("/tmp")}) {
    std::string folder = base + "/norvex-XXXXXX";
    if (base.starts_with('/') && ::mkdtemp(folder.data()) != nullptr) return folder;
  }
  return {};
}

enum class Messages { LikeOurs, Nowhere };

/// Descriptors 0 and 1 are nothing, 3 is the connection, everything above is closed.
class SpawnActions {
 public:
  SpawnActions(int connection, [[maybe_unused]] Messages messages) {
    ::posix_spawn_file_actions_init(&actions_);
    ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    if (messages == Messages::Nowhere)
      ::posix_spawn_file_actions_adddup2(&actions_, STDOUT_FILENO, STDERR_FILENO);
#endif
    ::posix_spawn_file_actions_adddup2(&actions_, connection, controlDescriptor);
    ::posix_spawn_file_actions_addclosefrom_np(&actions_, controlDescriptor + 1);
    ::posix_spawnattr_init(&attributes_);
    sigset_t none, all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    ::posix_spawnattr_setsigmask(&attributes_, &none);
    ::posix_spawnattr_setsigdefault(&attributes_, &all);
    // A group of its own: Ctrl+C in the terminal is ours to handle.
    ::posix_spawnattr_setpgroup(&attributes_, 0);
    ::posix_spawnattr_setflags(&attributes_,
                               POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
  }
  ~SpawnActions() {
    ::posix_spawn_file_actions_destroy(&actions_);
    ::posix_spawnattr_destroy(&attributes_);
  }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;

  /// The process number, or 0.
  [[nodiscard]] pid_t spawn(const std::string& program, std::vector<std::string> arguments) const {
    std::vector<char*> pointers{const_cast<char*>(program.c_str())};
    for (std::string& argument : arguments) pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    pid_t pid = 0;
    return ::posix_spawn(&pid, program.c_str(), &actions_, &attributes_, pointers.data(), environ) == 0 ? pid
                                                                                                        : 0;
  }

 private:
  posix_spawn_file_actions_t actions_ = {};
  posix_spawnattr_t attributes_ = {};
};

struct Spawned {
  pid_t pid = 0;
  FileDescriptor pidfd, connection;
};

/// Nothing at all when it fails.
Spawned spawn(const std::string& program, std::vector<std::string> arguments, Messages messages) {
  Spawned spawned;
  int ends[2] = {-1, -1};
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return {};
  spawned.connection.reset(ends[0]);
  const FileDescriptor given(ends[1]);
  const FileDescriptor theirs(::fcntl(given.get(), F_DUPFD_CLOEXEC, kAboveStandard));
  if (!theirs.valid()) return {};
  spawned.pid = SpawnActions(theirs.get(), messages).spawn(program, std::move(arguments));
  if (spawned.pid == 0) return {};
  spawned.pidfd.reset(int(::syscall(SYS_pidfd_open, spawned.pid, 0)));
  if (spawned.pidfd.valid()) return spawned;
  ::kill(spawned.pid, SIGKILL);
  while (::waitpid(spawned.pid, nullptr, 0) < 0 && errno == EINTR) continue;
  return {};
}

}  // namespace

SpawnedWorker spawnWorker(const std::string& program, PictureNeeds expected, WorkerOutlook outlook) {
  std::string scratchRoot = makeScratchRoot();
  if (scratchRoot.empty()) return {};
  std::vector<std::string> arguments{scratchRoot, std::to_string(expected)};
  if (outlook.postScript) arguments.emplace_back("postscript");
  if (outlook.pdfInks) arguments.emplace_back("pdf-inks");
  if (outlook.lone) arguments.emplace_back("lone");
  if (outlook.window) arguments.emplace_back("window");
  Spawned spawned = spawn(program, std::move(arguments), Messages::LikeOurs);
  if (spawned.pid == 0) return removeFolder(scratchRoot), SpawnedWorker();
  return {spawned.pid, std::move(spawned.pidfd), std::move(spawned.connection), std::move(scratchRoot)};
}

SpawnedPicture spawnPicture(const std::string& program, PictureNeeds needs) {
  // The linker's complaint is told in a sentence by the program that is then started instead.
  Spawned spawned = spawn(program, {}, traceOrigin() == 0 ? Messages::Nowhere : Messages::LikeOurs);
  return {spawned.pid, std::move(spawned.pidfd), std::move(spawned.connection), needs};
}

std::string partOfProgram(const std::string& name) {
  std::error_code ignored;
  const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
  const std::filesystem::path beside = folder / name;
  const std::filesystem::path installed = folder / "../libexec/norvex" / name;
  const bool isInstalled =
      !std::filesystem::exists(beside, ignored) && std::filesystem::exists(installed, ignored);
  return isInstalled ? installed : beside;
}

}  // namespace norvex
