// The plates within a separated picture (DCS 2), which its header finds by their bytes.
#pragma once

#include <QByteArray>

namespace norvex {

/// `mended`, which takes the place of compositeOf(program), with all that stands behind that in `program`, to
/// the byte; the header's comments say where each plate is now. `mended` itself where there are no plates.
[[nodiscard]] QByteArray withPlatesOf(const QByteArray& mended, const QByteArray& program);

}  // namespace norvex
