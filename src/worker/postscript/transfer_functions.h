// Transfer functions in what Ghostscript writes: whether there are any, and what becomes of spot inks where
// they are applied.
#pragma once

#include <QByteArray>

namespace norvex::engine {

/// A PDF keeps transfer functions for printers; who draws it on a screen does not look at them. False for
/// what is no PDF.
[[nodiscard]] bool hasTransferFunctions(const QByteArray& pdf);

/// Whether two PDFs of one program show its spot inks in the same colours. Where transfer functions are
/// applied while an ink is chosen, they are applied to the colours that stand in for it as well, as if these
/// were light: another ink than that of the document is shown. False for what is no PDF.
[[nodiscard]] bool haveSameTints(const QByteArray& pdf, const QByteArray& other);

}  // namespace norvex::engine
