// Gradients as gradients: Poppler's procedures paint them as hundreds of strips, which show seams on every renderer
// that smooths edges.
#pragma once

#include <QByteArray>

namespace norvex::engine {

/// PostScript that follows Poppler's procedures and gives its axial and radial gradients to the interpreter's shfill,
/// with the gradient's function sampled at 256 places. Interpreters without shfill, colour spaces that reach beyond
/// 0 … 1 and colours that need a transformation go on with the strips.
[[nodiscard]] QByteArray smoothShadingProcedures();

}  // namespace norvex::engine
