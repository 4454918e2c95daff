// The engine for PostScript documents: distilled once, then a PDF.
#pragma once

#include <memory>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// Opens `bytes`. The context is borrowed and must outlive the result.
Result<std::unique_ptr<DocumentEngine>> openEps(const QByteArray& bytes, EngineContext& context);

}  // namespace norvex::engine
