// norvex-engine-pages.so: PDF and PostScript.
#include "programs/engine_parts.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/postscript/eps_engine.h"
#include "worker/tiff/tiff_preview.h"

void norvexEngines(norvex::EngineSet* engines) {
  using namespace norvex;
  engines->open = [](PictureKind kind, const QByteArray& bytes,
                     engine::EngineContext& context) -> Result<std::unique_ptr<engine::DocumentEngine>> {
    if (kind == PictureKind::Eps) return engine::openEps(bytes, context);
    if (kind == PictureKind::Pdf) return engine::openPdf(bytes, context);
    return notOfThisModule();
  };
  engines->decodePreview = engine::decodeTiff;
  engines->setPdfAttributes = engine::withPdfAttributes;
  engines->warmUpProgram = warmUpFonts;
}
