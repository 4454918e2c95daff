// Fonts without the outlines that a page does not show.
#pragma once

#include <QByteArray>

#include <optional>
#include <set>

namespace norvex::engine {

/// The TrueType, OpenType or bare CFF font `font` with every outline emptied but those of `glyphs`, of what
/// they are composed of, and of glyph 0. Their numbers, encodings and metrics stay; TrueType's glyphs end
/// with the last of them. Nothing when the font is of another kind, damaged, or would not get smaller.
[[nodiscard]] std::optional<QByteArray> thinnedFont(const QByteArray& font, const std::set<int>& glyphs);

}  // namespace norvex::engine
