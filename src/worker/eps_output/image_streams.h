// The images of a PDF in a form in which they can go into PostScript.
#pragma once

#include <qpdf/QPDF.hh>

namespace norvex::engine {

/// Images reach the EPS as they are stored: what is not compressed is compressed, and what is damaged, so
/// that an interpreter would stop there, is decoded as far as it goes and stored anew. Throws as qpdf does.
void prepareImages(QPDF& qpdf);

}  // namespace norvex::engine
