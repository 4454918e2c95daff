// Rules about the preview of an EPS file.
#pragma once

#include <QByteArrayView>
#include <QRectF>

#include <optional>

#include "base/result.h"
#include "check/finding.h"
#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// True if there is a preview, it could be read, and it has the shape of `box`.
[[nodiscard]] Findings epsPreviewFindings(const Result<std::optional<NSBitmapImageRep>>& preview,
                                          const std::optional<QRectF>& box);

/// Both pictures brought to so many grey samples a side, 0 black, over white.
inline constexpr int comparedSide = 32;

/// True if two pictures of comparedSide × comparedSide samples show different things. Made for previews:
/// dithering, other colours and a blurred drawing are no difference.
[[nodiscard]] Findings epsPreviewDifference(QByteArrayView preview, QByteArrayView drawn);

}  // namespace norvex
