#include "worker/worker_program.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <filesystem>

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

}  // namespace

ForkServer::ChildMain documentChild(const EngineSet& engines) {
  return [engines](FileDescriptor socket, const ForkRequest& request, const QString& scratchFolder) {
    const Result<void> confined = enterSandbox(request.limits, scratchFolder);
    DocumentServer server(std::move(socket), engines, request.limits, scratchFolder,
                          confined ? std::nullopt : std::optional<Error>(confined.error()));
    if (confined && request.postScript && engines.warmUpPostScript)
      engines.warmUpPostScript(server.context());
    server.run();
  };
}

int runWorkerProgram(int argc, char** argv, const EngineSet& engines) {
  clearEnvironment();
  return runForkServer(argc, argv, documentChild(engines), engines.warmUpProgram);
}

int runForkServer(int argc, char** argv, ForkServer::ChildMain childMain, ForkServer::WarmUp warmUp) {
  if (argc < 2 || !isSocket(kControlDescriptor)) {
    std::fputs("norvex-worker: is started by norvex, not by hand\n", stderr);
    return kUsage;
  }
  ::fcntl(kControlDescriptor, F_SETFD, FD_CLOEXEC);
  std::signal(SIGPIPE, SIG_IGN);
  const QByteArray root = argv[1];
  ForkServer(FileDescriptor(kControlDescriptor), root, std::move(childMain), std::move(warmUp)).run();
  std::error_code ignored;
  std::filesystem::remove_all(root.toStdString(), ignored);
  return 0;
}

}  // namespace norvex
