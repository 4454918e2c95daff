// PDF to EPS.
#pragma once

#include <QByteArray>

#include "worker/engine/engine.h"

namespace norvex::engine {

/// The first page of `pdf` as EPS with a DSC header of ours.
Result<EngineBytes> epsFromPdf(const QByteArray& pdf, EngineContext& context);

}  // namespace norvex::engine
