#include "worker/web_fonts/web_faces.h"

#include "protocol/limits.h"
#include "worker/web_fonts/type2_outline.h"

namespace norvex::engine {
namespace {

constexpr char32_t kPrivate = 0xE000, kPrivateEnd = 0xF8FF, kMorePrivate = 0xF0000, kMorePrivateEnd = 0xFFFFD;
constexpr size_t kBlank = 0;

}  // namespace

WebFaces::WebFaces(int unitsPerEm, int ascent, int descent) {
  common_.unitsPerEm = unitsPerEm;
  common_.ascent = ascent;
  common_.descent = descent;
  common_.outlines.emplace_back();
}

bool WebFaces::add(unsigned glyph, const GlyphOutline& outline) {
  if (knows(glyph)) return true;
  if (!type2Outline(outline)) return false;
  glyphs_[glyph] = common_.outlines.size();
  common_.outlines.push_back(outline);
  return true;
}

bool WebFaces::isBlank(unsigned glyph) const {
  return common_.outlines.at(glyphs_.at(glyph)).steps.empty();
}

std::optional<FaceCharacter> WebFaces::choose(char32_t character, size_t outline) {
  for (size_t face = 0; face < limits::maximumWebFaces; ++face) {
    if (face == faces_.size()) faces_.emplace_back();
    std::map<char32_t, size_t>& shown = faces_[face];
    const auto at = shown.find(character);
    if (at == shown.end() && shown.size() >= limits::maximumWebCharacters) continue;
    if (at == shown.end()) shown.emplace(character, outline);
    if (at == shown.end() || at->second == outline) return FaceCharacter{face, character};
  }
  return std::nullopt;
}

std::optional<std::vector<FaceCharacter>> WebFaces::show(unsigned glyph, const std::vector<char32_t>& text) {
  const size_t outline = glyphs_.at(glyph);
  std::vector<FaceCharacter> shown;
  for (const char32_t character : text) {
    const auto chosen = choose(character, shown.empty() ? outline : kBlank);
    if (!chosen) break;
    shown.push_back(*chosen);
  }
  if (!shown.empty()) return shown;
  for (const auto& [first, last] :
       {std::pair(kPrivate, kPrivateEnd), std::pair(kMorePrivate, kMorePrivateEnd)}) {
    if (outline > last - first) continue;
    if (const auto chosen = choose(first + char32_t(outline), outline)) return std::vector{*chosen};
  }
  return std::nullopt;
}

std::optional<FaceCharacter> WebFaces::space() {
  return choose(U' ', kBlank);
}

WebFont WebFaces::font(size_t face) const {
  WebFont font = common_;
  font.shownBy = faces_.at(face);
  return font;
}

}  // namespace norvex::engine
