// The outlines of a font's characters, as the drawing of a page takes them.
#pragma once

#include <QByteArray>

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "base/affine_transform.h"
#include "worker/svg_output/svg_path.h"
#include "worker/web_fonts/glyph_outline.h"

class GfxFont;
class GfxFontLoc;
class XRef;
struct FT_LibraryRec_;
struct FT_FaceRec_;

namespace norvex::engine {

/// The font as its document describes it, for readers that have to take another.
struct SvgFontLook {
  bool isBold = false, isItalic = false, isFixed = false, hasSerifs = false;
};

/// An opened font. Outlines are in units of which `unitsPerEm` make the font's size, y up.
class SvgFont {
 public:
  /// A font that cannot be read has no outlines.
  SvgFont(FT_LibraryRec_* library, GfxFont& font, XRef* objects);
  ~SvgFont();
  SvgFont(const SvgFont&) = delete;
  SvgFont& operator=(const SvgFont&) = delete;

  [[nodiscard]] bool isOpen() const { return face_ != nullptr; }
  [[nodiscard]] int unitsPerEm() const { return unitsPerEm_; }
  /// Another font stands in for a wider one: its characters are narrowed by this.
  [[nodiscard]] double narrowing() const { return narrowing_; }
  [[nodiscard]] unsigned glyphOf(unsigned code) const;
  /// The outline under `matrix`, added to `writer`; false: there is none.
  bool outline(unsigned glyph, const AffineTransform& matrix, SvgPathWriter& writer) const;
  /// The outline in the font's own units; no steps: there is none.
  [[nodiscard]] GlyphOutline outlineOf(unsigned glyph) const;

  // For a font made of these outlines.
  [[nodiscard]] const SvgFontLook& look() const { return look_; }
  [[nodiscard]] int ascent() const;   ///< units
  [[nodiscard]] int descent() const;  ///< units, below the baseline
  /// False: whoever made it says that it goes into no document.
  [[nodiscard]] bool mayBeEmbedded() const;

 private:
  bool open(FT_LibraryRec_* library, GfxFont& font, XRef* objects);
  void mapCodes(GfxFont& font, const GfxFontLoc& place);
  void mapNames(GfxFont& font);
  [[nodiscard]] double narrowingFor(GfxFont& font) const;

  std::vector<unsigned char> bytes_;  ///< of the file; the face reads from it
  FT_FaceRec_* face_ = nullptr;
  bool standsIn_ = false;
  SvgFontLook look_;
  int unitsPerEm_ = 1000;
  double narrowing_ = 1;
  std::vector<int> glyphs_;  ///< by character code; empty: the code is the glyph
};

/// The fonts of a page, each opened once.
class SvgFonts {
 public:
  SvgFonts();
  ~SvgFonts();
  SvgFonts(const SvgFonts&) = delete;
  SvgFonts& operator=(const SvgFonts&) = delete;

  /// Null: there are more fonts than are opened; leftOut() then.
  [[nodiscard]] SvgFont* font(GfxFont& font, XRef* objects);
  [[nodiscard]] bool leftOut() const { return leftOut_; }

 private:
  FT_LibraryRec_* library_ = nullptr;
  std::map<std::pair<int, int>, std::unique_ptr<SvgFont>> fonts_;  ///< by the object's number
  bool leftOut_ = false;
};

}  // namespace norvex::engine
