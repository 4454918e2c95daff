// An outline as the program that draws it in a CFF font (Adobe technical note 5177).
#pragma once

#include <QByteArray>

#include <optional>

#include "worker/web_fonts/glyph_outline.h"

namespace norvex::engine {

/// Every point is rounded to whole units by itself, so errors do not add up; curves of the second degree are
/// raised to the third. Nothing: a point lies too far away for a font.
[[nodiscard]] std::optional<QByteArray> type2Outline(const GlyphOutline& glyph);

/// A number as these programs hold it; `value` has 16 bits.
void putType2Number(QByteArray& program, int value);

}  // namespace norvex::engine
