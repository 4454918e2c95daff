// norvex-engine-all.so: every engine there is.
#include "programs/engine_parts.h"

void norvexEngines(norvex::EngineSet* engines) {
  using namespace norvex;
  engines->open = engine::openDocument;
  engines->decodePreview = engine::decodeTiff;
  engines->setPdfAttributes = engine::setPdfAttributes;
  engines->composePages = engine::composePages;
  engines->warmUpProgram = warmUpFonts;
}
