// Compose requests that both engines of PDF pages answer in the same way.
#pragma once

#include <QByteArray>
#include <QSizeF>

#include "platform/result.h"
#include "platform/worker_protocol.h"
#include "worker/engine/engine.h"

namespace norvex::engine {

/// The request for a whole, unrotated page.
[[nodiscard]] ComposeRequest wholePage(int page, QSizeF shownSize, VectorFormat format);

/// composePdf() and, for VectorFormat::Eps, epsFromPdf() on its result.
[[nodiscard]] Result<EngineBytes> composePage(const QByteArray& pdf, const ComposeRequest& request,
                                              EngineContext& context);

}  // namespace norvex::engine
