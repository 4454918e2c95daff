#include "worker/postscript/distiller.h"

#include <QList>

#include <utility>

#include "worker/engine/distiller_arguments.h"

namespace norvex::engine {
// Not quiet: what it says about fonts is handed on.
QList<QByteArray> distillerArguments() {
  QList<QByteArray> arguments;
  for (const char* option : distillerOptions) arguments << option;
  arguments << QByteArray("-sDEVICE=") + distillerDevice;
  for (const char* stream : distillerStreams) arguments << stream;
  return arguments;
}

Result<std::shared_ptr<GhostscriptChild>> startDistiller(const EngineContext& context) {
  if (context.interpreters >= 0)
    if (auto child = GhostscriptChild::fork(context.interpreters, context.limits)) return child;
  return GhostscriptChild::start(distillerArguments(), context.scratchFolder, context.limits.seconds);
}

void warmUpGhostscript(EngineContext& context) {
  if (context.warmGhostscript) return;
  if (auto child = startDistiller(context)) context.warmGhostscript = std::move(*child);
}

}  // namespace norvex::engine
