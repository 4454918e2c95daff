// Annotations that bring no appearance of their own: a highlight, a line, a note are often told by their
// geometry alone, and the reader draws them.
#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "base/result.h"
#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// Prepares the annotations of `page` for flattening, so that all that the screen shows has an appearance,
/// and nothing else: what has none is drawn, as vectors and at its place in the order, by what draws the
/// screen; links are taken away; appearances know the layer of their annotation. `page` holds its own
/// attributes, `geometry` is its geometry, `interactiveForm` the catalogue's AcroForm or null. May throw;
/// fails with what the drawing fails with.
[[nodiscard]] Result<void> completeAnnotations(QPDF& qpdf, QPDFObjectHandle page,
                                               const PageGeometry& geometry,
                                               QPDFObjectHandle interactiveForm);

}  // namespace norvex::engine
