// norvex-stub-worker: the real picture program around engines that parse nothing.
#include "stub_engines.h"
#include "worker/worker_program.h"

int main(int argc, char** argv) {
  const norvex::EngineSet engines = norvex::kit::stubEngines();
  // They parse nothing, and do what no confined process can: fork, litter, look around.
  constexpr norvex::ConfinementLayers none{false, false, false, false};
  return norvex::runWorkerProgram(argc, argv, {[&](norvex::PictureNeeds) { return &engines; }, {}, {}}, none);
}
