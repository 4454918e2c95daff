// Fonts of a PDF without what would run as a program in the PostScript that is made of it.
#pragma once

#include <QStringList>

#include <qpdf/QPDF.hh>

namespace norvex::engine {

/// Poppler's generator copies Type 1 fonts as they are, and names of fonts and glyphs without a look at them.
/// Afterwards every embedded Type 1 font of `qpdf` is a program of ours that holds the same outlines
/// (type1_font.h), and names are plain (plainName()), in CFF fonts, too. A font file that cannot be taken
/// over is taken out, and one sentence says so; so are fonts of Type 3 from the resources of their own
/// glyphs. Throws as qpdf does.
[[nodiscard]] QStringList makeFontsHarmless(QPDF& qpdf);

}  // namespace norvex::engine
