// Opens a document with whichever engine its kind needs. Who links this links all of them.
#pragma once

#include <memory>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// Opens `bytes`. The context is borrowed and must outlive the result.
Result<std::unique_ptr<DocumentEngine>> openDocument(PictureKind kind, const QByteArray& bytes,
                                                     EngineContext& context);

/// An SVG engine that can do everything. Otherwise as openDocument().
Result<std::unique_ptr<DocumentEngine>> openSvg(const QByteArray& bytes, EngineContext& context);

}  // namespace norvex::engine
