// A rectangle of a PDF page as PDF or EPS, for every engine that has its picture as a PDF.
#pragma once

#include <QByteArray>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// composePdf() and, for VectorFormat::Eps, epsFromPdf() on its result.
[[nodiscard]] Result<EngineBytes> composePage(const QByteArray& pdf, const ComposeRequest& request,
                                              EngineContext& context);

}  // namespace norvex::engine
