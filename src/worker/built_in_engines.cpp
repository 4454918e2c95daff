#include <fontconfig/fontconfig.h>

#include "worker/engine/distill.h"
#include "worker/engine_set.h"

namespace norvex {

EngineSet builtInEngines() {
  EngineSet engines;
  engines.open = engine::openDocument;
  engines.decodePreview = engine::decodeTiff;
  engines.setPdfAttributes = engine::setPdfAttributes;
  engines.composePages = engine::composePages;
  // Reading the fonts' caches costs every document with text some milliseconds (many with many fonts), and a
  // missing cache can only be written here: a document's process may not write there.
  engines.warmUpProgram = [] { FcInit(); };
  engines.warmUpPostScript = engine::warmUpGhostscript;
  return engines;
}

}  // namespace norvex
