// The engine for PDF documents.
#pragma once

#include <memory>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// Opens `bytes`. The context is borrowed and must outlive the result.
Result<std::unique_ptr<DocumentEngine>> openPdf(const QByteArray& bytes, EngineContext& context);

}  // namespace norvex::engine
