// The bitmap that an EPSI file carries as hexadecimal comment lines.
#pragma once

#include <QByteArrayView>

#include "base/result.h"
#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// Reads the preview from the text just behind "%%BeginPreview:": width, height, depth and the number of
/// lines (which is not used), then lines that begin with "%". The text is in any encoding that keeps ASCII
/// bytes as they are. The bitmap has one grey sample a pixel, 0 black. Bytes that the lines do not give stay
/// white; bytes too many are dropped. Fails when the numbers are missing, not above zero, or the depth is no
/// depth (NotParsable), and when there are too many pixels (Limit).
[[nodiscard]] Result<NSBitmapImageRep> epsiPreview(QByteArrayView behindKeyword);

/// Bytes of a row: width × depth / 8, and one more only when neither is a multiple of 8, even where that is
/// one more than needed.
[[nodiscard]] qint64 epsiBytesPerRow(qint64 width, qint64 depth);

}  // namespace norvex
