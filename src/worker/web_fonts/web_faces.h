// The outlines of a document's font as fonts of the web: several, where a character is shown by more than one
// outline.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "worker/web_fonts/web_font.h"

namespace norvex::engine {

/// A character in one of the faces.
struct FaceCharacter {
  size_t face = 0;
  char32_t character = 0;
};

class WebFaces {
 public:
  WebFaces(int unitsPerEm, int ascent, int descent);

  /// The glyph's outline joins the faces. False: it does not fit a font. Again for the same number: the same.
  bool add(unsigned glyph, const GlyphOutline& outline);
  [[nodiscard]] bool knows(unsigned glyph) const { return glyphs_.count(glyph) != 0; }
  /// REQUIRES a glyph that was added.
  [[nodiscard]] bool isBlank(unsigned glyph) const;

  /// The characters that show the glyph: the first its outline, the others nothing. `text`: its meaning;
  /// empty: a character for private use stands for it. Nothing: there is no character left for it.
  [[nodiscard]] std::optional<std::vector<FaceCharacter>> show(unsigned glyph,
                                                               const std::vector<char32_t>& text);
  /// A space that shows nothing.
  [[nodiscard]] std::optional<FaceCharacter> space();

  [[nodiscard]] size_t count() const { return faces_.size(); }
  /// REQUIRES face < count().
  [[nodiscard]] WebFont font(size_t face) const;

 private:
  [[nodiscard]] std::optional<FaceCharacter> choose(char32_t character, size_t outline);

  WebFont common_;                     ///< all outlines; the first is a blank
  std::map<unsigned, size_t> glyphs_;  ///< by number → outline
  std::vector<std::map<char32_t, size_t>> faces_;
};

}  // namespace norvex::engine
