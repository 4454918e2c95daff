// Which texts of a CFF font are for reading, and which are names.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <set>

namespace norvex::engine {

/// The texts (their numbers in the font's list of texts, `count` long) that tell of the font `cff` (notice,
/// names for people, weight, version) and of nothing else: none of them names a glyph or is a program.
/// `dict`: the font's top dictionary. None for a font of character numbers, and where anything is damaged.
[[nodiscard]] std::set<int> textsForReading(const QByteArray& cff, QByteArrayView dict, int count);

}  // namespace norvex::engine
