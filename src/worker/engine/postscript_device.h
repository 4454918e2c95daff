// Poppler's PostScript generator with gradients left to the interpreter.
#pragma once

#include <QByteArray>
#include <QSize>

#include "platform/result.h"

namespace norvex::engine {

/// The first page of `pdf` as Poppler's generator writes it, document structure and all, Level 3. `pageSize`
/// in points. Gradients of every type call shadingProcedures(). Fails with Unsupported when Poppler has no
/// such page.
[[nodiscard]] Result<QByteArray> generatedPostScript(const QByteArray& pdf, QSize pageSize);

}  // namespace norvex::engine
