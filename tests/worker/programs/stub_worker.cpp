// norvex-stub-worker: the real picture program around engines that parse nothing.
#include "stub_engines.h"
#include "worker/worker_program.h"

int main(int argc, char** argv) {
  const norvex::EngineSet engines = norvex::kit::stubEngines();
  return norvex::runWorkerProgram(argc, argv, {[&](norvex::PictureNeeds) { return &engines; }, {}, {}});
}
