#include "worker/engine/engine.h"

namespace norvex::engine {

Result<EngineBytes> DocumentEngine::svg(const SvgRequest&) {
  return Error{ErrorKind::Unsupported, QStringLiteral("only an SVG picture can be given as SVG")};
}

Result<EngineBytes> DocumentEngine::examine(const ExamineRequest&) {
  return Error{ErrorKind::Unsupported, QStringLiteral("this cannot be examined in a picture of this kind")};
}

}  // namespace norvex::engine
