// Transparency in a PDF's dictionaries: whether there is any, and how to take it out.
#pragma once

#include <qpdf/QPDF.hh>

namespace norvex::engine {

/// True if anything in the file may be painted other than opaquely: constant opacity, blend modes, soft
/// masks. Transparency groups alone do not count. May throw; call it inside guarded().
[[nodiscard]] bool usesTransparency(QPDF& qpdf);

/// Makes everything opaque: opacity, blend modes, soft masks and groups are dropped from every dictionary.
/// May throw.
void removeTransparency(QPDF& qpdf);

}  // namespace norvex::engine
