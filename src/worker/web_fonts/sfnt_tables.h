// The tables of a font file beside its outlines (OpenType 1.9), as short as browsers take them.
#pragma once

#include <QByteArray>

#include <array>
#include <map>
#include <optional>
#include <vector>

namespace norvex::engine {

struct SfntFacts {
  int unitsPerEm = 1000;
  int ascent = 800, descent = 200;  ///< both count away from the baseline
  std::array<int, 4> box{};         ///< left, bottom, right, top
  std::vector<int> advances;        ///< of each glyph
  std::vector<int> lefts;           ///< where its outline begins
  std::map<char32_t, int> glyphs;   ///< character → number of its glyph
};

/// Tables by their tags: all but that of the outlines. Nothing: more than 8,188 characters of the first plane
/// begin anew, in their number or in that of their glyph.
[[nodiscard]] std::optional<std::map<QByteArray, QByteArray>> sfntTables(const SfntFacts& facts);

/// The sum of a table's 32-bit words.
[[nodiscard]] quint32 tableSum(const QByteArray& table);

/// A file of these tables with outlines of PostScript. Sets the sum of the whole, in `head`.
[[nodiscard]] QByteArray sfntFile(std::map<QByteArray, QByteArray>& tables);

/// As WOFF 1.0: each table packed by itself where that makes it smaller.
[[nodiscard]] QByteArray woffFile(std::map<QByteArray, QByteArray> tables);

}  // namespace norvex::engine
