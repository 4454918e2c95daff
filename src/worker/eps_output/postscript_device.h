// Poppler's PostScript generator with gradients left to the interpreter.
#pragma once

#include <QByteArray>
#include <QSize>

#include "base/result.h"

namespace norvex::engine {

/// Poppler reads its settings and lists of encodings whenever a document is opened while no other is. From
/// now on it has them as long as the process lives.
void keepPopplerSettings();

struct GeneratedPostScript {
  QByteArray text;
  bool leftOutPrograms = false;  ///< the page holds PostScript of its own
};

/// The first page of `pdf` as Poppler's generator writes it, document structure and all, Level 3. `pageSize`
/// in points. Gradients of every type call shadingProcedures(). PostScript that the page
/// holds is left out. Fails with Unsupported when Poppler has no
/// such page.
[[nodiscard]] Result<GeneratedPostScript> generatedPostScript(const QByteArray& pdf, QSize pageSize);

}  // namespace norvex::engine
