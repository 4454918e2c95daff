#include "worker/postscript/distiller.h"

#include <QList>

#include <optional>
#include <utility>

#include "protocol/shared_errors.h"
#include "worker/engine/distiller_arguments.h"

namespace norvex::engine {
// Not quiet: what it says about fonts is handed on.
QList<QByteArray> distillerArguments(InterpreterDevice device) {
  QList<QByteArray> arguments;
  for (const char* option : distillerOptions) arguments << option;
  arguments << QByteArray("-sDEVICE=") + deviceName(device);
  for (const char* stream : distillerStreams) arguments << stream;
  return arguments;
}

Result<std::shared_ptr<GhostscriptChild>> startDistiller(const EngineContext& context,
                                                         InterpreterDevice device) {
  std::optional<Error> lost;
  if (context.interpreters >= 0) {
    auto child = GhostscriptChild::fork(context.interpreters, context.limits, device, context.cancel);
    if (child || child.error().kind == ErrorKind::Cancelled) return child;
    lost = child.error();
  }
  auto started = GhostscriptChild::start(distillerArguments(device), context.scratchFolder,
                                         context.limits.seconds, device);
  if (!started && lost) return *lost;  // a process that may start no program has lost more than gs
  return started;
}

QByteArray completeOutput() {
  return QByteArray("  { << /OutputFile (") + distilledOutput +
         ") >> //systemdict /setpagedevice get exec } stopped pop\n";
}

Result<GhostscriptOutput> runGhostscript(InterpreterDevice device, const GhostscriptInput& input,
                                         EngineContext& context, const ProgramLook& look) {
  bool lost = false;
  while (true) {
    std::shared_ptr<GhostscriptChild> child;
    if (device == InterpreterDevice::Pdf) child = std::exchange(context.warmGhostscript, nullptr);
    if (!child) {
      auto started = startDistiller(context, device);
      if (!started) return lost ? interpreterLost() : started.error();
      child = std::move(*started);
    }
    Result<GhostscriptOutput> run = child->run(input(child->isForked()), context, look);
    if (run || run.error().kind != ErrorKind::Unsupported || context.interpreters < 0) return run;
    lost = true;
    context.interpreters = -1;  // nobody forks interpreters here: gs is started from now on
  }
}

void warmUpGhostscript(EngineContext& context) {
  if (context.warmGhostscript) return;
  if (auto child = startDistiller(context)) context.warmGhostscript = std::move(*child);
}

}  // namespace norvex::engine
