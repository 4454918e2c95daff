#include "worker/engine/engine.h"

namespace norvex::engine {

Result<EngineBytes> DocumentEngine::svg(const SvgRequest&) {
  return Error{ErrorKind::Unsupported, QStringLiteral("only an SVG picture can be given as SVG")};
}

}  // namespace norvex::engine
