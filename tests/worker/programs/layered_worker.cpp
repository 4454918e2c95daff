// norvex-layered-worker: the picture process with real engines, confined by the layers that
// NORVEX_TEST_LAYERS names ("landlock", "calls", "view"; unset: all; "unconfined": without any, too), and
// with Ghostscript's own access control switched off where NORVEX_TEST_WITHOUT_SAFER is set. Nothing that is
// installed reads these variables.
#include <cstdlib>
#include <string_view>
#include <utility>

#include "worker/engine_modules.h"
#include "worker/postscript/distiller.h"
#include "worker/worker_program.h"

namespace {

norvex::ConfinementLayers layersAskedFor() {
  const char* named = std::getenv("NORVEX_TEST_LAYERS");
  if (named == nullptr) return {};
  const auto has = [named](std::string_view layer) {
    return std::string_view(named).find(layer) != std::string_view::npos;
  };
  return {has("landlock"), has("calls"), has("view"), !has("unconfined")};
}

void startWithoutSafer(norvex::engine::EngineContext& context) {
  QList<QByteArray> arguments = norvex::engine::distillerArguments();
  for (QByteArray& argument : arguments)
    if (argument == "-dSAFER") argument = "-dNOSAFER";
  auto child = norvex::engine::GhostscriptChild::start(arguments, context.scratchFolder, 20);
  if (child) context.warmGhostscript = std::move(*child);
}

}  // namespace

int main(int argc, char** argv) {
  norvex::EngineModules modules;
  norvex::WorkerEngines engines;
  engines.source = [&](norvex::PictureNeeds needs) { return modules.engines(needs); };
  const bool safer = std::getenv("NORVEX_TEST_WITHOUT_SAFER") == nullptr;
  engines.startPostScript = safer ? norvex::engine::warmUpGhostscript : startWithoutSafer;
  return norvex::runWorkerProgram(argc, argv, engines, layersAskedFor());
}
