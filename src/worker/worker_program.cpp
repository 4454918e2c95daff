#include "worker/worker_program.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <thread>
#include <utility>

#include "base/remove_folder.h"
#include "protocol/control_descriptor.h"
#include "protocol/start_trace.h"
#include "worker/confinement/confinement_status.h"
#include "worker/confinement/file_view.h"
#include "worker/confinement/sandbox.h"
#include "worker/document_server.h"
#include "worker/environment.h"
#include "worker/interpreter_program.h"

namespace norvex {
namespace {

constexpr int kUsage = 2;
/// Words behind what is expected of the pictures.
constexpr std::string_view kExpectPostScript = "postscript";
constexpr std::string_view kExpectPdfInks = "pdf-inks";
constexpr std::string_view kLone = "lone";  ///< there is one picture: nothing is made ready for others

/// Pictures wait for a window: meanwhile there is time for what most of them need, and all inherit it.
constexpr std::string_view kWindow = "window";

/// Programs that are started when somebody needs them.
struct Interpreters {
  InterpreterProgram postScript;
  InterpreterProgram pdf;  ///< for its inks, which hardly anybody asks for

  Interpreters(const std::string& scratchRoot, bool lone)
      : postScript(scratchRoot, {.lone = lone}), pdf(scratchRoot, {.pdf = true, .lone = lone}) {}

  /// Where a document asks for what it needs.
  int prepareFor(const ForkRequest& request) {
    if (request.postScript) {
      postScript.start();
      return postScript.asking();
    }
    if ((request.needs & NeedPages) == 0) return -1;
    pdf.expect();
    return pdf.asking();
  }
};

bool isTold(int argc, char** argv, std::string_view word) {
  return std::any_of(argv + std::min(argc, 3), argv + argc, [&](const char* each) { return each == word; });
}

/// Requests may still have waited for it when their documents were ended: whoever makes folders has to be
/// gone before they are removed. Interpreters are its children; ours they become when it ends.
void endWithInterpreters(Interpreters& programs) {
  ::prctl(PR_SET_CHILD_SUBREAPER, 1);
  programs.postScript.stop();
  programs.pdf.stop();
  while (::waitpid(-1, nullptr, 0) > 0 || errno == EINTR) continue;
}

int everyProcessor() {
  return int(std::thread::hardware_concurrency());
}

/// The documents of a run of many share the processors: each of them takes one.
class Sharing {
 public:
  /// `window`: pictures are looked at, one after the other.
  explicit Sharing(bool window) : window_(window) {}
  void take() { ++documents_; }
  [[nodiscard]] int processors() const { return window_ || documents_ <= kFew ? everyProcessor() : 1; }

 private:
  static constexpr int kFew = 2;  ///< a picture, and what concerns none
  const bool window_;
  int documents_ = 0;
};

/// In a run for facts: the documents that take more load it themselves, as long as they are few. What is
/// loaded here every process that is forked later pays for.
class RareNeeds {
 public:
  explicit RareNeeds(PictureNeeds expected) : expectsFacts_(expected == NeedFacts) {}
  /// Asked once for each document.
  [[nodiscard]] bool has(PictureNeeds needs) {
    return expectsFacts_ && needs != NeedFacts && ++documents_ <= kFew;
  }

 private:
  static constexpr int kFew = 8;
  const bool expectsFacts_;
  int documents_ = 0;
};

int startedByHand(const char* program) {
  std::fprintf(stderr, "%s: is started by norvex, not by hand\n", program);
  return kUsage;
}

}  // namespace

ForkServer::ChildMain documentChild(const WorkerEngines& engines, const ConfinementLayers& layers,
                                    const std::function<int()>& processors) {
  return [engines, layers, processors](FileDescriptor socket, const ForkRequest& request,
                                       const QString& scratchFolder) {
    engine::EngineContext context;
    if (processors) context.processors = processors();
    context.limits = request.limits;
    context.scratchFolder = scratchFolder;
    if (::fcntl(ForkServer::kSharedDescriptor, F_GETFD) >= 0)
      context.interpreters = ForkServer::kSharedDescriptor;
    SandboxPolicy policy;
    policy.limits = request.limits;
    if (request.postScript) policy.scratchFolder = scratchFolder;  // the others write nothing anywhere
    policy.preparationToCome = true;
    policy.layers = layers;
    Result<void> confined = enterSandbox(policy);
    // It takes longest: it starts while the engines, where they are not there yet, are loaded.
    if (confined && request.postScript && engines.startPostScript) engines.startPostScript(context);
    const EngineSet none;
    const Result<const EngineSet*> found = engines.source(request.needs);
    if (confined) confined = sealSandbox(policy);
    std::optional<Error> refusal;
    if (!found) refusal = found.error();
    if (!confined) refusal = confined.error();
    DocumentServer(std::move(socket), found ? **found : none, std::move(context), refusal).run();
  };
}

int runWorkerProgram(int argc, char** argv, const WorkerEngines& engines, const ConfinementLayers& layers) {
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is an error of who writes it
  traceStep("norvex-worker linked");
  clearEnvironment();
  if (argc == 2 && std::string_view(argv[1]) == "--sandbox-status") return tellConfinement();
  const bool lone = isTold(argc, argv, kLone);
  Interpreters interpreters(argc > 1 ? argv[1] : "", lone);
  // Before anything else: they take longest.
  if (isTold(argc, argv, kExpectPostScript)) interpreters.postScript.start();
  if (isTold(argc, argv, kExpectPdfInks)) interpreters.pdf.start();
  if (argc > 1 && hasControlSocket()) prepareSandboxes(argv[1], layers);
  const PictureNeeds expected = argc > 2 ? PictureNeeds(std::strtoul(argv[2], nullptr, 10)) : 0;
  if (expected != 0) {
    const Result<const EngineSet*> set = engines.source(expected & allPictureNeeds);
    if (set && (*set)->warmUpProgram && isTold(argc, argv, kWindow)) (*set)->warmUpProgram();
  }
  traceStep("norvex-worker has its engines");
  Sharing sharing(isTold(argc, argv, kWindow));
  RareNeeds rare(expected);
  const auto prepare = [&, isFirst = true](const ForkRequest& request) mutable {
    sharing.take();
    traceStep("norvex-worker asked for a picture's process");
    const int asking = interpreters.prepareFor(request);
    const bool startsPostScript = std::exchange(isFirst, false) && request.postScript;
    // The first child of all, when it asks for an interpreter, loads what it needs itself meanwhile.
    if (!startsPostScript && !rare.has(request.needs)) (void)engines.source(request.needs);
    return asking;
  };
  const ForkServer::WarmUp warmUp = lone ? ForkServer::WarmUp() : engines.warmUp;
  const ForkServer::Wish wish{[&] { return interpreters.pdf.waitingRequests(); },
                              [&] { interpreters.pdf.start(); }};
  return runForkServer(argc, argv, documentChild(engines, layers, [&] { return sharing.processors(); }),
                       warmUp, prepare, wish, [&] { endWithInterpreters(interpreters); });
}

int runPictureProgram(const EngineSet& engines) {
  if (!hasControlSocket()) return startedByHand("norvex-picture");
  traceStep("norvex-picture linked");
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  std::signal(SIGPIPE, SIG_IGN);
  ::fcntl(controlDescriptor, F_SETFD, FD_CLOEXEC);
  clearEnvironment();
  closeStandardStreams();
  prepareSandboxes({});
  WorkerEngines all;
  all.source = [&engines](PictureNeeds) { return &engines; };
  documentChild(all, {}, everyProcessor)(FileDescriptor(controlDescriptor), ForkRequest(), QString());
  return 0;  // the line was cut, at which it has ended before
}

int runForkServer(int argc, char** argv, ForkServer::ChildMain childMain, ForkServer::WarmUp warmUp,
                  ForkServer::Prepare prepare, ForkServer::Wish wish, const std::function<void()>& atEnd) {
  if (argc < 2 || !hasControlSocket()) return startedByHand("norvex-worker");
  ::fcntl(controlDescriptor, F_SETFD, FD_CLOEXEC);
  std::signal(SIGPIPE, SIG_IGN);
  const QByteArray root = argv[1];
  ForkServer(FileDescriptor(controlDescriptor), root, std::move(childMain), std::move(warmUp),
             std::move(prepare), std::move(wish))
      .run();
  if (atEnd) atEnd();
  if (isInFileView())
    removeScratchRootOfView();
  else
    removeFolder(root.toStdString());
  return 0;
}

}  // namespace norvex
