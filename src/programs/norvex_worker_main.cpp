// norvex-worker: the picture process. See worker/worker_program.h.
#include "worker/engine_set.h"
#include "worker/worker_program.h"

int main(int argc, char** argv) { return norvex::runWorkerProgram(argc, argv, norvex::builtInEngines()); }
