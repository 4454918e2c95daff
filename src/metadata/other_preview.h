// Previews that the header dictionary has no place for, and why a preview cannot be shown.
#pragma once

#include <QByteArray>

#include <optional>

#include "base/result.h"
#include "protocol/bitmap_image_rep.h"

namespace norvex {

/// For an EPS source whose header dictionary holds no preview: an interchange preview within the PostScript
/// of a binary file; nothing when the file carries no preview at all, or a Windows metafile, which takes a
/// picture process to draw; otherwise why the one that it carries is not shown (malformed, too large, a
/// section outside of the file). Thread-safe.
[[nodiscard]] Result<std::optional<NSBitmapImageRep>> otherPreview(const QByteArray& source);

}  // namespace norvex
