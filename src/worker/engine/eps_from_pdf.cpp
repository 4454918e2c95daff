#include "worker/engine/engine.h"

namespace norvex::engine {

Result<EngineBytes> epsFromPdf(const QByteArray&, EngineContext&) {
  return Error{ErrorKind::Unsupported, QStringLiteral("EPS cannot be written yet")};
}

}  // namespace norvex::engine
