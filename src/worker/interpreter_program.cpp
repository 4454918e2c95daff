#include "worker/interpreter_program.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "protocol/control_descriptor.h"
#include "protocol/interpreter_request.h"
#include "worker/confinement/process_files.h"

extern char** environ;

namespace norvex {
namespace {

constexpr int kMaximumStarts = 4;   ///< one that dies as often is broken
constexpr int kAboveStandard = 10;  ///< must not be a number that the program's start overwrites

std::string ownProgram() {
  std::error_code unreadable;
  return std::filesystem::read_symlink("/proc/self/exe", unreadable);
}

/// Libraries beside a program are looked for at $ORIGIN, which the loader asks /proc for; within a view of
/// the files there is none, and then it goes by this.
std::string originOf(const std::string& program) {
  return "LD_ORIGIN_PATH=" + std::filesystem::path(program).parent_path().string();
}

/// All are numbers that nothing is put in place of. Standard streams are ours, which are nothing; everything
/// else is closed.
pid_t spawn(const std::string& program, const std::vector<std::string>& words, int taking, int telling,
            int processFiles) {
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, taking, controlDescriptor);
  ::posix_spawn_file_actions_adddup2(&actions, telling, interpreterReadiness);
  if (processFiles >= 0) ::posix_spawn_file_actions_adddup2(&actions, processFiles, interpreterProcessFiles);
  ::posix_spawn_file_actions_addclosefrom_np(
      &actions, processFiles >= 0 ? interpreterProcessFiles + 1 : interpreterProcessFiles);
  std::vector<char*> arguments{const_cast<char*>(program.c_str())};
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  std::string origin = originOf(program);
  std::vector<char*> environment{origin.data()};
  for (char** each = environ; *each != nullptr; ++each) environment.push_back(*each);
  environment.push_back(nullptr);
  pid_t pid = 0;
  const int failure =
      ::posix_spawn(&pid, program.c_str(), &actions, nullptr, arguments.data(), environment.data());
  ::posix_spawn_file_actions_destroy(&actions);
  return failure == 0 ? pid : 0;
}

FileDescriptor aboveStandard(int descriptor) {
  return FileDescriptor(descriptor < 0 ? -1 : ::fcntl(descriptor, F_DUPFD_CLOEXEC, kAboveStandard));
}

}  // namespace

std::string interpreterBeside(const std::string& program) {
  const std::filesystem::path ours(program);
  return ours.is_absolute() ? ours.parent_path() / "norvex-postscript" : std::filesystem::path();
}

InterpreterProgram::InterpreterProgram(std::string scratchRoot, InterpreterOutlook outlook,
                                       std::string program)
    : scratchRoot_(std::move(scratchRoot)),
      program_(program.empty() ? interpreterBeside(ownProgram()) : std::move(program)),
      outlook_(outlook) {}

bool InterpreterProgram::canStart() const {
  return starts_ < kMaximumStarts && !program_.empty();
}

void InterpreterProgram::stop() {
  asking_.reset();
  taking_.reset();
  if (pid_ == 0) return;
  ::kill(pid_, SIGKILL);  // whom it forked dies with it
  while (::waitpid(pid_, nullptr, 0) < 0 && errno == EINTR) continue;
  pid_ = 0;
}

bool InterpreterProgram::runs() {
  if (pid_ == 0) return false;
  if (::waitpid(pid_, nullptr, WNOHANG) == 0) return true;
  // One that has never been able to serve keeps documents waiting in vain: it counts twice. Most likely it is
  // broken; but the system may have killed it, too, and would take PostScript from the whole session.
  if (!hadInterpretersReady(hearing_.get())) ++starts_;
  asking_.reset();
  pid_ = 0;
  return false;
}

bool InterpreterProgram::makeConnection() {
  if (asking_.valid() && taking_.valid()) return true;
  Result<InterpreterConnection> connection = makeInterpreterConnection();
  if (!connection) return false;
  taking_ = aboveStandard(connection->taking.get());
  asking_ = std::move(connection->asking);
  if (!taking_.valid()) asking_.reset();
  return taking_.valid();
}

void InterpreterProgram::expect() {
  if (!runs() && canStart()) (void)makeConnection();
}

void InterpreterProgram::start() {
  if (runs()) return;
  Result<ReadinessPipe> readiness = makeReadinessPipe();
  if (!canStart() || !readiness || !makeConnection()) {
    asking_.reset();
    taking_.reset();  // whoever asks is told so by this
    return;
  }
  const FileDescriptor telling = aboveStandard(readiness->telling.get());
  const FileDescriptor processFiles = aboveStandard(openedProcessFiles());
  hearing_ = std::move(readiness->hearing);
  ++starts_;
  std::vector<std::string> words{scratchRoot_};
  if (outlook_.pdf) words.emplace_back(interpreterReadsPdf);
  if (outlook_.lone) words.emplace_back(interpreterIsForOne);
  pid_ = spawn(program_, words, taking_.get(), telling.get(), processFiles.get());
  taking_.reset();
  if (pid_ == 0) asking_.reset();
}

}  // namespace norvex
