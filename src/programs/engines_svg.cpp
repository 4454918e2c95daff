// norvex-engine-svg.so: draws SVG pictures.
#include "programs/engine_parts.h"
#include "worker/svg/svg_engine.h"

void norvexEngines(norvex::EngineSet* engines) {
  using namespace norvex;
  engines->open = [](PictureKind kind, const QByteArray& bytes, engine::EngineContext& context) {
    return kind == PictureKind::Svg ? engine::openSvgWith({}, bytes, context) : notOfThisModule();
  };
  engines->warmUpProgram = warmUpFonts;
}
