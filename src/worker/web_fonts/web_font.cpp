#include "worker/web_fonts/web_font.h"

#include <algorithm>
#include <cmath>

#include "worker/web_fonts/cff_table.h"
#include "worker/web_fonts/sfnt_tables.h"
#include "worker/web_fonts/type2_outline.h"

namespace norvex::engine {
namespace {

// Beside the empty one. Each has a name, and the numbers of a font's own names go from 391 to 64,999.
constexpr size_t kMostOutlines = 64'609;

/// Left, bottom, right, top of all points: what an outline reaches lies within.
struct Box {
  int left = 0, bottom = 0, right = 0, top = 0;
  bool isEmpty = true;

  void add(QPointF point) {
    const int west = int(std::floor(point.x())), east = int(std::ceil(point.x()));
    const int south = int(std::floor(point.y())), north = int(std::ceil(point.y()));
    left = isEmpty ? west : std::min(left, west);
    right = isEmpty ? east : std::max(right, east);
    bottom = isEmpty ? south : std::min(bottom, south);
    top = isEmpty ? north : std::max(top, north);
    isEmpty = false;
  }
  void add(const GlyphOutline& glyph) {
    constexpr size_t kPoints[] = {1, 1, 2, 3};
    for (const OutlineStep& step : glyph.steps)
      for (size_t i = 0; i < kPoints[step.kind]; ++i) add(step.points[i]);
  }
};

/// The glyphs stand in the order of the characters that show them: their map is short then.
std::map<size_t, int> numbersOf(const WebFont& font) {
  std::map<size_t, int> numbers;
  for (const auto& [character, outline] : font.shownBy) numbers.try_emplace(outline, int(numbers.size()) + 1);
  return numbers;
}

std::optional<std::map<QByteArray, QByteArray>> tablesOf(const WebFont& font) {
  const std::map<size_t, int> numbers = numbersOf(font);
  if (numbers.size() > kMostOutlines) return std::nullopt;
  std::vector<GlyphOutline> glyphs(numbers.size() + 1);
  for (const auto& [outline, number] : numbers) glyphs[size_t(number)] = font.outlines.at(outline);
  CffOutlines outlines{font.unitsPerEm, {}, {}};
  SfntFacts facts{font.unitsPerEm, font.ascent, font.descent, {}, {}, {}, {}};
  Box all;
  for (const GlyphOutline& glyph : glyphs) {
    const std::optional<QByteArray> program = type2Outline(glyph);
    if (!program) return std::nullopt;
    outlines.programs << *program;
    Box own;
    own.add(glyph);
    all.add(glyph);
    facts.advances.push_back(std::max(0, int(std::lround(glyph.advance))));
    facts.lefts.push_back(own.left);
  }
  for (const auto& [character, outline] : font.shownBy) facts.glyphs[character] = numbers.at(outline);
  outlines.box = facts.box = {all.left, all.bottom, all.right, all.top};
  auto tables = sfntTables(facts);
  if (!tables) return std::nullopt;
  (*tables)["CFF "] = cffTable(outlines);
  return tables;
}

}  // namespace

std::optional<QByteArray> openTypeFont(const WebFont& font) {
  auto tables = tablesOf(font);
  if (!tables) return std::nullopt;
  return sfntFile(*tables);
}

std::optional<QByteArray> woffFont(const WebFont& font) {
  auto tables = tablesOf(font);
  if (!tables) return std::nullopt;
  return woffFile(std::move(*tables));
}

}  // namespace norvex::engine
