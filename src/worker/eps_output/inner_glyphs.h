// Glyphs that are drawings and show other glyphs: in PostScript each shows the next by calling its procedure,
// and whoever runs it has neither our levels nor our patience.
#pragma once

#include <QStringList>

class QPDF;

namespace norvex::engine {

/// Takes away from fonts of Type 3, and from the forms and patterns that their glyphs draw with, what leads
/// back to them, and what shows more than limits::maximumInnerGlyphs for one glyph. Gives what is to be told.
/// Throws as qpdf does.
QStringList boundInnerGlyphs(QPDF& qpdf);

}  // namespace norvex::engine
