// norvex-engine-all.so: every engine there is.
#include "programs/engine_parts.h"
#include "worker/every_engine/open_document.h"
#include "worker/pages/compose_pages.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/tiff/tiff_preview.h"

void norvexEngines(norvex::EngineSet* engines) {
  using namespace norvex;
  engines->open = engine::openDocument;
  engines->decodePreview = engine::decodeTiff;
  engines->setPdfAttributes = engine::withPdfAttributes;
  engines->composePages = engine::composePages;
  engines->warmUpProgram = warmUpFonts;
}
