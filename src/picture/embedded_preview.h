// The preview that a file carries.
#pragma once

#include <QByteArray>

#include <optional>

#include "base/cancel_token.h"
#include "base/result.h"
#include "picture/process/picture_process.h"
#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// The preview of an EPS file; nothing when there is none. A TIFF or a Windows metafile is
/// decoded by a picture process, for which this blocks; no PostScript is run. Thread-safe.
[[nodiscard]] Result<std::optional<NSBitmapImageRep>> embeddedPreview(
    PictureService& service, const QByteArray& bytes, const CancelToken& cancel = {},
    const PictureLimits& limits = toolLimits());

}  // namespace norvex
