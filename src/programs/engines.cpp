// norvex-engine-NAME.so: the engines that the table says the part NAME offers. The build makes one of each
// row and names it in NORVEX_ENGINE_PART; what a part does not offer is not linked into it.
#include <fontconfig/fontconfig.h>

#include "worker/engine_modules.h"
#include "worker/every_engine/decode_preview.h"
#include "worker/every_engine/open_document.h"
#include "worker/facts/facts_engine.h"
#include "worker/pages/compose_pages.h"
#include "worker/pages/joined_pages.h"
#include "worker/pdf/pdf_attributes.h"

namespace norvex {
namespace {

/// Reading the fonts' caches costs every document with text some milliseconds (many with many fonts), and a
/// missing cache can only be written here: a document's process may not write there.
void warmUpFonts() {
  FcInit();
}

template <PictureNeeds offers>
void offer(EngineSet& engines) {
  if constexpr (offers == NeedFacts) {
    engines.open = engine::openForFacts;
    engines.onlyFacts = true;
    return;
  }
  engines.open = engine::openOffered<offers>;
  if constexpr ((offers & NeedPreviews) != 0) engines.decodePreview = engine::decodePreview;
  if constexpr ((offers & NeedPages) != 0)
    engines.setPdfAttributes = engine::joinedWithAttributes;
  else if constexpr ((offers & NeedSvgPdf) != 0)
    engines.setPdfAttributes = engine::withPdfAttributes;
  if constexpr ((offers & NeedSheets) != 0) engines.composePages = engine::composePages;
  engines.warmUpProgram = warmUpFonts;
}

}  // namespace
}  // namespace norvex

void norvexEngines(norvex::EngineSet* engines) {
  norvex::offer<norvex::offersOfPart(NORVEX_ENGINE_PART)>(*engines);
}
