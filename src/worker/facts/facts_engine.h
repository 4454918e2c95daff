// The engine of a process that is asked for nothing but facts: it takes a third of the libraries of those
// that draw, and a process is forked the faster the less it has loaded.
#pragma once

#include <memory>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// Opens an SVG or PDF document for facts() and for the names of its pages; everything else is Unsupported.
/// Fails as the engines that draw do, and with drawingNeeded() where the facts take what they have. The
/// context is borrowed and must outlive the result.
Result<std::unique_ptr<DocumentEngine>> openForFacts(PictureKind kind, const QByteArray& bytes,
                                                     EngineContext& context);

}  // namespace norvex::engine
