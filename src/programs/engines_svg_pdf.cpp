// norvex-engine-svg-pdf.so: draws SVG pictures, makes them PDF, and does what is done with a finished PDF.
#include "programs/engine_parts.h"
#include "worker/engine/svg_engine.h"
#include "worker/engine/svg_pdf.h"

void norvexEngines(norvex::EngineSet* engines) {
  using namespace norvex;
  engines->open = [](PictureKind kind, const QByteArray& bytes, engine::EngineContext& context) {
    return kind == PictureKind::Svg
               ? engine::openSvgWith({engine::svgToPdf, engine::svgEffectsDpi}, bytes, context)
               : notOfThisModule();
  };
  engines->setPdfAttributes = engine::setPdfAttributes;
  engines->composePages = engine::composePages;
  engines->warmUpProgram = warmUpFonts;
}
