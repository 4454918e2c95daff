// A PDF with all of its pages, without what it does beside being drawn.
#pragma once

#include <QByteArray>

#include "base/result.h"
#include "worker/engine/engine.h"

namespace norvex::engine {

/// See leaveOutActions() of a QPDF. The report has a sentence for each kind of what was left out; without any
/// the bytes are those of `pdf`.
[[nodiscard]] Result<EngineBytes> leaveOutActions(const QByteArray& pdf);

}  // namespace norvex::engine
