// Insertion of an interchange preview (EPSI: DSC "%%BeginPreview:") into PostScript text.
#pragma once

#include <QString>

#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// How a bitmap row is written: `lines` lines of `bytes` bytes and, when `rest` > 0, one more of `rest`
/// bytes.
struct EpsiRowLayout {
  int lines = 1;
  int bytes = 0;
  int rest = 0;
  [[nodiscard]] int linesInAll() const { return lines + (rest > 0 ? 1 : 0); }
};

/// DSC allows 255 characters a line: a "%" and 127 bytes of two digits. Rows below 1024 bits stay one line.
[[nodiscard]] EpsiRowLayout epsiRowLayout(int bitsPerRow);

/// `source` with the bitmap as comment lines after the first "%%EndComments" (or, where there is none, after
/// the four integers of the first "%%BoundingBox:", followed by an "%%EndComments" of our own). The bits are
/// inverted: 1 means black in a preview. A null string when the text has neither keyword.
[[nodiscard]] QString insertEpsiPreview(const QString& source, const NSBitmapImageRep& grey);

}  // namespace norvex
