// Insertion of an interchange preview (EPSI: DSC "%%BeginPreview:") into PostScript text.
#pragma once

#include <QByteArray>

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

/// `source` with the bitmap as comment lines behind the line "%%EndComments" (or, where there is none, behind
/// the four integers of "%%BoundingBox:", followed by an "%%EndComments" of our own). A keyword at the start
/// of a line goes before one within a line, such as a title's. What follows on the keyword's line stays a
/// comment unless it is the rest of a number. Every other byte goes over as it is. The bits are inverted: 1
/// means black in a preview. Null when the source has neither keyword.
[[nodiscard]] QByteArray insertEpsiPreview(const QByteArray& source, const NSBitmapImageRep& grey);

}  // namespace norvex
