// norvex: starts the picture process, then becomes the application. It links nothing but the C library:
// loading the application takes as long as loading the picture process, and this way the two go on side by
// side.
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/open_files.h"
#include "base/remove_folder.h"
#include "cli/arguments/command_table.h"
#include "picture/client/spawned_worker.h"
#include "programs/application_entry.h"
#include "programs/expected_pictures.h"
#include "protocol/start_trace.h"
#include "worker/engine_parts_table.h"

namespace {

constexpr char kCommands[] = "norvex-commands.so", kApplication[] = "norvex-application.so";
constexpr int kLimitReached = 5;  ///< ExitCode::Limit, of the command line

/// Whoever starts us may have closed them. Nothing that we open shall get their numbers, and their use shall
/// fail as that of closed ones does.
void occupyStandardStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream)
    if (::fcntl(stream, F_GETFD) < 0) (void)::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

/// A reader that has gone and a file that may not grow are told by the call that meets them, in a sentence.
/// What is started from here begins with the system's own ways.
void outliveWrites() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

/// False, and said: the system lets us open too few files even for a single picture.
bool mayOpenFiles() {
  using namespace norvex;
  rlimit limit{};
  if (mostOpenFiles() >= fewestOpenFiles || ::getrlimit(RLIMIT_NOFILE, &limit) != 0) return true;
  limit.rlim_cur = std::min(limit.rlim_max, fewestOpenFiles);
  if (::setrlimit(RLIMIT_NOFILE, &limit) == 0 && mostOpenFiles() >= fewestOpenFiles) return true;
  std::fprintf(stderr, "norvex: no more than %llu files may be open here, and it takes %llu\n",
               static_cast<unsigned long long>(mostOpenFiles()),
               static_cast<unsigned long long>(fewestOpenFiles));
  return false;
}

/// In front of everything else, and known to nobody but who reads this: --trace-start tells the steps to the
/// first picture.
void takeTraceSwitch(int& argc, char** argv) {
  if (argc < 2 || argv[1] != std::string_view("--trace-start")) return;
  ::setenv(norvex::traceVariable, std::to_string(norvex::traceClock()).c_str(), 1);
  std::rotate(argv + 1, argv + 2, argv + argc);  // what follows takes its place
  argv[--argc] = nullptr;
}

/// Questions about the program itself need no picture process.
bool mayNeedPictures(int argc, char** argv) {
  return argc < 2 || (argv[1][0] != '-' && norvex::commandNamed(argv[1]) != norvex::Command::Status);
}

/// The lightest part that can do what is asked for; each of them tells of every mistake.
const char* partFor(int argc, char** argv) {
  return argc > 1 && norvex::asksForLightCommand(argv[1]) ? kCommands : kApplication;
}

/// `part` as it is loaded; null: it is missing or damaged. Where the commands are there and cannot be linked
/// with the libraries of this system, some of which others stand in for, the application takes their place.
void* load(const char*& part) {
  const std::string file = norvex::partOfProgram(part);
  void* const loaded = ::dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
  if (loaded != nullptr || part != kCommands || ::access(file.c_str(), F_OK) != 0) return loaded;
  part = kApplication;
  return ::dlopen(norvex::partOfProgram(part).c_str(), RTLD_LAZY | RTLD_LOCAL);
}

/// The only picture of a run gets a process of its own, others a program that forks one for each.
norvex::StartedPrograms startPrograms(const norvex::ExpectedPictures& expected,
                                      norvex::WorkerOutlook outlook) {
  using namespace norvex;
  StartedPrograms started;
  if (expected.single) {
    const EnginePart& part = engineParts[enginePartFor(expected.needs)];
    started.picture = spawnPicture(partOfProgram(std::string("norvex-picture-") + part.name), part.offers);
  }
  if (started.picture.pid == 0)
    started.worker = spawnWorker(partOfProgram("norvex-worker"), expected.needs, outlook);
  return started;
}

/// The end of a command. Its files are closed by now; what libraries would still tidy up goes with their
/// memory.
int leave(int code) {
#ifndef NORVEX_INSTRUMENTED  // leaks and coverage are told on the way out
  std::fflush(nullptr);
  ::_exit(code);
#endif
  return code;
}

/// Only what reads documents knows what confines it; nothing when it cannot be started.
void becomeSandboxStatus() {
  const std::string program = norvex::partOfProgram("norvex-worker");
  ::execl(program.c_str(), program.c_str(), "--sandbox-status", static_cast<char*>(nullptr));
}

}  // namespace

int main(int argc, char** argv) {
  using namespace norvex;
  takeTraceSwitch(argc, argv);
  occupyStandardStreams();
  outliveWrites();
  if (!mayOpenFiles()) return kLimitReached;
  if (argc == 2 && argv[1] == std::string_view("--sandbox-status")) becomeSandboxStatus();
  StartedPrograms started;
  if (mayNeedPictures(argc, argv))
    started = startPrograms(expectedPictures(argc, argv), {.postScript = expectPostScript(argc, argv),
                                                           .pdfInks = expectPdfInks(argc, argv),
                                                           .window = argc < 2 || !commandNamed(argv[1]),
                                                           .lone = expectLonePicture(argc, argv)});
  traceStep("picture process started");
  const char* part = partFor(argc, argv);
  void* application = load(part);
  void* entry = application == nullptr ? nullptr : ::dlsym(application, kApplicationEntry);
  if (entry == nullptr) {
    std::fprintf(stderr, "norvex: the application could not be loaded (%s)\n", ::dlerror());
    started.worker.control.reset();  // it ends, and cleans up unless it is broken, too
    removeFolder(started.worker.scratchRoot);
    return kNotLoaded;
  }
  traceStep("application loaded");
  const int code = reinterpret_cast<ApplicationEntry*>(entry)(argc, argv, &started);
  traceStep("ended");
  return part == kCommands ? leave(code) : code;
}
