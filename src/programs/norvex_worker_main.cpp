// norvex-worker: the picture process. See worker/worker_program.h.
#include "worker/engine_modules.h"
#include "worker/postscript/distiller.h"
#include "worker/worker_program.h"

int main(int argc, char** argv) {
  norvex::EngineModules modules;
  norvex::WorkerEngines engines;
  engines.source = [&](norvex::PictureNeeds needs) { return modules.engines(needs); };
  engines.startPostScript = norvex::engine::warmUpGhostscript;
  engines.warmUp = [&] { modules.warmUp(); };
  return norvex::runWorkerProgram(argc, argv, engines);
}
