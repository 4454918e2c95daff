#include "worker/engine/distill.h"
#include "worker/engine_set.h"

namespace norvex {

EngineSet builtInEngines() {
  EngineSet engines;
  engines.open = engine::openDocument;
  engines.decodePreview = engine::decodeTiff;
  engines.setPdfAttributes = engine::setPdfAttributes;
  engines.warmUpPostScript = engine::warmUpGhostscript;
  return engines;
}

}  // namespace norvex
