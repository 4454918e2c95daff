// A font made of outlines, as a page of the web or an SVG document carries it.
#pragma once

#include <QByteArray>
#include <QList>

#include <map>
#include <optional>
#include <vector>

#include "worker/web_fonts/glyph_outline.h"

namespace norvex::engine {

/// Outlines and the characters that show them. Nothing joins, moves or replaces characters in it: each shows
/// its outline, wherever it stands.
struct WebFont {
  int unitsPerEm = 1000;
  int ascent = 800, descent = 200;     ///< of a line, units; both count away from the baseline
  std::vector<GlyphOutline> outlines;  ///< at most 65,534
  std::map<char32_t, size_t> shownBy;  ///< character → index of the outline
};

/// A font file of PostScript outlines (OpenType: "OTTO") with what browsers ask for and no more. Nothing: an
/// outline does not fit a font, or there are too many.
[[nodiscard]] std::optional<QByteArray> openTypeFont(const WebFont& font);

/// The same as WOFF 1.0.
[[nodiscard]] std::optional<QByteArray> woffFont(const WebFont& font);

}  // namespace norvex::engine
