// norvex-picture-…: the process of the only picture of a run. The engines of norvex-engine-… are linked,
// which takes less time than to load them and to fork. See worker/worker_program.h.
#include "worker/engine_modules.h"
#include "worker/worker_program.h"

int main() {
  norvex::EngineSet engines;
  norvexEngines(&engines);
  return norvex::runPictureProgram(engines);
}
