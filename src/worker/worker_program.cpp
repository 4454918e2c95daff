#include "worker/worker_program.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <utility>

#include "worker/document_server.h"
#include "worker/environment.h"
#include "worker/sandbox.h"

namespace norvex {
namespace {

constexpr int kUsage = 2;

bool isSocket(int fd) {
  struct stat status = {};
  return ::fstat(fd, &status) == 0 && S_ISSOCK(status.st_mode);
}

int startedByHand(const char* program) {
  std::fprintf(stderr, "%s: is started by norvex, not by hand\n", program);
  return kUsage;
}

}  // namespace

ForkServer::ChildMain documentChild(const WorkerEngines& engines) {
  return [engines](FileDescriptor socket, const ForkRequest& request, const QString& scratchFolder) {
    engine::EngineContext context;
    context.limits = request.limits;
    context.scratchFolder = scratchFolder;
    Result<void> confined = enterSandbox(request.limits, scratchFolder, true);
    // It takes longest: it starts while the engines, where they are not there yet, are loaded.
    if (confined && request.postScript && engines.startPostScript) engines.startPostScript(context);
    const EngineSet none;
    const Result<const EngineSet*> found = engines.source(request.needs);
    if (confined) confined = limitMemory(request.limits);
    std::optional<Error> refusal;
    if (!found) refusal = found.error();
    if (!confined) refusal = confined.error();
    DocumentServer(std::move(socket), found ? **found : none, std::move(context), refusal).run();
  };
}

int runWorkerProgram(int argc, char** argv, const WorkerEngines& engines) {
  clearEnvironment();
  if (const PictureNeeds expected = argc > 2 ? PictureNeeds(std::strtoul(argv[2], nullptr, 10)) : 0;
      expected != 0)
    (void)engines.source(expected & allPictureNeeds);
  const auto prepare = [source = engines.source, isFirst = true](const ForkRequest& request) mutable {
    const bool startsPostScript = std::exchange(isFirst, false) && request.postScript;
    // The first child of all, when it starts an interpreter, loads what it needs itself meanwhile.
    if (!startsPostScript) (void)source(request.needs);
  };
  return runForkServer(argc, argv, documentChild(engines), engines.warmUp, prepare);
}

int runPictureProgram(const EngineSet& engines) {
  if (!isSocket(kControlDescriptor)) return startedByHand("norvex-picture");
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  std::signal(SIGPIPE, SIG_IGN);
  ::fcntl(kControlDescriptor, F_SETFD, FD_CLOEXEC);
  clearEnvironment();
  closeStandardStreams();
  WorkerEngines all;
  all.source = [&engines](PictureNeeds) { return &engines; };
  documentChild(all)(FileDescriptor(kControlDescriptor), ForkRequest(), QString());
  return 0;  // the line was cut, at which it has ended before
}

int runForkServer(int argc, char** argv, ForkServer::ChildMain childMain, ForkServer::WarmUp warmUp,
                  ForkServer::Prepare prepare) {
  if (argc < 2 || !isSocket(kControlDescriptor)) return startedByHand("norvex-worker");
  ::fcntl(kControlDescriptor, F_SETFD, FD_CLOEXEC);
  std::signal(SIGPIPE, SIG_IGN);
  const QByteArray root = argv[1];
  ForkServer(FileDescriptor(kControlDescriptor), root, std::move(childMain), std::move(warmUp),
             std::move(prepare))
      .run();
  std::error_code ignored;
  std::filesystem::remove_all(root.toStdString(), ignored);
  return 0;
}

}  // namespace norvex
