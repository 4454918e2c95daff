// norvex-engine-svg-pdf.so: draws SVG pictures, makes them PDF, and does what is done with a finished PDF.
#include "programs/engine_parts.h"
#include "worker/pages/compose_pages.h"
#include "worker/pdf/pdf_attributes.h"
#include "worker/svg/svg_engine.h"
#include "worker/svg/svg_pdf.h"

void norvexEngines(norvex::EngineSet* engines) {
  using namespace norvex;
  engines->open = [](PictureKind kind, const QByteArray& bytes, engine::EngineContext& context) {
    return kind == PictureKind::Svg
               ? engine::openSvgWith({engine::svgToPdf, engine::svgEffectsDpi}, bytes, context)
               : notOfThisModule();
  };
  engines->setPdfAttributes = engine::withPdfAttributes;
  engines->composePages = engine::composePages;
  engines->warmUpProgram = warmUpFonts;
}
