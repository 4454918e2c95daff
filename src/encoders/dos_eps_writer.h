// The binary EPS file with a TIFF preview (Adobe EPSF 3.0, "DOS EPS binary file header").
#pragma once

#include <QByteArray>

namespace norvex {

/// A 30-byte little-endian header, the TIFF section, then the PostScript section. The TIFF comes first:
/// readers go by the header's offsets, and a preview at a fixed place is found even by those that read only
/// the start of a file. Lengths are written as their low 32 bits; the checksum is FF FF (none).
[[nodiscard]] QByteArray dosEpsFile(const QByteArray& tiff, const QByteArray& postScript);

}  // namespace norvex
