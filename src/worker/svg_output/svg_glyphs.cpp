#include "worker/svg_output/svg_glyphs.h"

#include <GfxFont.h>
#include <GlobalParams.h>
#include <fofi/FoFiTrueType.h>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr int kFewestUnits = 1000, kMostUnits = 16384;
constexpr int kCodes = 256;
constexpr double kFixed = 64;      // FreeType's units of a pixel
constexpr double kNarrower = 0.9;  // less than this share of the width is a narrower font
constexpr double kNoWidth = 0.01;

struct Release {
  void operator()(int* map) const { gfree(map); }
};
using GlyphMap = std::unique_ptr<int, Release>;

/// Fonts that everybody has are described by their names alone.
SvgFontLook lookOf(GfxFont& font) {
  const std::string name = font.getName().value_or(std::string());
  const auto says = [&](const char* word) { return name.find(word) != std::string::npos; };
  return {font.isBold() || says("Bold"), font.isItalic() || says("Italic") || says("Oblique"),
          font.isFixedWidth() || says("Courier"), font.isSerif() || says("Times")};
}

std::vector<int> listOf(const int* map, int length) {
  return map ? std::vector<int>(map, map + length) : std::vector<int>();
}

/// FreeType walks along an outline.
struct Walk {
  std::vector<OutlineStep>& steps;

  static QPointF at(const FT_Vector* point) { return {double(point->x) / kFixed, double(point->y) / kFixed}; }
  static int add(void* walk, const OutlineStep& step) {
    static_cast<Walk*>(walk)->steps.push_back(step);
    return 0;
  }
  static int move(const FT_Vector* to, void* walk) { return add(walk, {OutlineStep::Move, {at(to)}}); }
  static int line(const FT_Vector* to, void* walk) { return add(walk, {OutlineStep::Line, {at(to)}}); }
  static int quad(const FT_Vector* control, const FT_Vector* to, void* walk) {
    return add(walk, {OutlineStep::Quadratic, {at(control), at(to)}});
  }
  static int cubic(const FT_Vector* first, const FT_Vector* second, const FT_Vector* to, void* walk) {
    return add(walk, {OutlineStep::Cubic, {at(first), at(second), at(to)}});
  }
};

void put(const OutlineStep& step, const AffineTransform& matrix, SvgPathWriter& writer) {
  const auto& [a, b, c] = step.points;
  switch (step.kind) {
    case OutlineStep::Move:
      writer.moveTo(matrix.map(a));
      break;
    case OutlineStep::Line:
      writer.lineTo(matrix.map(a));
      break;
    case OutlineStep::Quadratic:
      writer.quadTo(matrix.map(a), matrix.map(b));
      break;
    case OutlineStep::Cubic:
      writer.curveTo(matrix.map(a), matrix.map(b), matrix.map(c));
      break;
  }
}

}  // namespace

SvgFont::SvgFont(FT_LibraryRec_* library, GfxFont& font, XRef* objects) : look_(lookOf(font)) {
  if (!open(library, font, objects)) return;
  unitsPerEm_ = std::clamp<int>(face_->units_per_EM, kFewestUnits, kMostUnits);
  FT_Set_Pixel_Sizes(face_, 0, FT_UInt(unitsPerEm_));
  narrowing_ = narrowingFor(font);
}

SvgFont::~SvgFont() {
  if (face_) FT_Done_Face(face_);
}

bool SvgFont::open(FT_LibraryRec_* library, GfxFont& font, XRef* objects) {
  const std::optional<GfxFontLoc> place = font.locateFont(objects, nullptr);
  if (!place || place->locType == gfxFontLocResident) return false;
  FT_Error failed = 0;
  if (place->locType == gfxFontLocEmbedded) {
    auto bytes = font.readEmbFontFile(objects);
    if (!bytes || bytes->empty()) return false;
    bytes_ = std::move(*bytes);
    failed = FT_New_Memory_Face(library, bytes_.data(), FT_Long(bytes_.size()), 0, &face_);
  } else {
    standsIn_ = true;
    failed = FT_New_Face(library, place->path.c_str(), place->fontNum, &face_);
  }
  if (failed) {
    face_ = nullptr;
    return false;
  }
  mapCodes(font, *place);
  return true;
}

// Characters of fonts with names: by the name, what it means, or another name of the same.
void SvgFont::mapNames(GfxFont& font) {
  char** const names = static_cast<Gfx8BitFont&>(font).getEncoding();
  glyphs_.assign(kCodes, 0);
  for (int code = 0; code < kCodes; ++code) {
    const char* name = names[code];
    if (!name) continue;
    int& glyph = glyphs_[size_t(code)];
    glyph = int(FT_Get_Name_Index(face_, const_cast<char*>(name)));
    if (glyph == 0) glyph = int(FT_Get_Char_Index(face_, globalParams->mapNameToUnicodeText(name)));
    if (const char* other = glyph == 0 ? GfxFont::getAlternateName(name) : nullptr)
      glyph = int(FT_Get_Name_Index(face_, const_cast<char*>(other)));
  }
}

void SvgFont::mapCodes(GfxFont& font, const GfxFontLoc& place) {
  const auto trueType = [&] {
    return bytes_.empty() ? FoFiTrueType::load(place.path.c_str(), place.fontNum)
                          : FoFiTrueType::make(bytes_.data(), int(bytes_.size()));
  };
  switch (place.fontType) {
    case fontType1:
    case fontType1C:
    case fontType1COT:
      mapNames(font);
      break;
    case fontTrueType:
    case fontTrueTypeOT: {
      const std::unique_ptr<FoFiTrueType> file = font.isCIDFont() ? nullptr : trueType();
      const GlyphMap map(file ? static_cast<Gfx8BitFont&>(font).getCodeToGIDMap(file.get()) : nullptr);
      glyphs_ = listOf(map.get(), kCodes);
      break;
    }
    case fontCIDType2:
    case fontCIDType2OT: {
      auto& cid = static_cast<GfxCIDFont&>(font);
      glyphs_ = listOf(cid.getCIDToGID(), int(cid.getCIDToGIDLen()));
      const std::unique_ptr<FoFiTrueType> file = glyphs_.empty() ? trueType() : nullptr;
      if (!file) break;
      int length = 0;
      const GlyphMap map(cid.getCodeToGIDMap(file.get(), &length));
      glyphs_ = listOf(map.get(), length);
      break;
    }
    case fontCIDType0C:  // FreeType counts the glyphs of these by their characters' numbers
      break;
    case fontCIDType0COT: {
      const auto& cid = static_cast<GfxCIDFont&>(font);
      glyphs_ = listOf(cid.getCIDToGID(), int(cid.getCIDToGIDLen()));
      const std::unique_ptr<FoFiTrueType> file = glyphs_.empty() ? trueType() : nullptr;
      if (!file || !file->isOpenTypeCFF()) break;
      int length = 0;
      const GlyphMap map(file->getCIDToGIDMap(&length));
      glyphs_ = listOf(map.get(), length);
      break;
    }
    default:
      break;
  }
}

// As the screen does: a font that stands in for one whose "m" is much narrower is narrowed to it.
double SvgFont::narrowingFor(GfxFont& font) const {
  if (!standsIn_ || font.isCIDFont() || font.isSymbolic()) return 1;
  auto& simple = static_cast<Gfx8BitFont&>(font);
  for (int code = 0; code < kCodes; ++code) {
    const char* const name = simple.getCharName(code);
    if (!name || std::strcmp(name, "m") != 0) continue;
    if (FT_Load_Glyph(face_, glyphOf(unsigned(code)), FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP) != 0) return 1;
    const double asked = simple.getWidth(static_cast<unsigned char>(code));
    const double found = double(face_->glyph->advance.x) / kFixed / unitsPerEm_;
    const bool narrower =
        found > 0 && asked > simple.getWidth(0) && asked > kNoWidth && asked < kNarrower * found;
    return narrower ? asked / found : 1;
  }
  return 1;
}

unsigned SvgFont::glyphOf(unsigned code) const {
  if (code < glyphs_.size()) return unsigned(std::max(0, glyphs_[code]));
  return code;
}

GlyphOutline SvgFont::outlineOf(unsigned glyph) const {
  GlyphOutline found;
  if (!face_ || FT_Load_Glyph(face_, glyph, FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP) != 0) return found;
  found.advance = double(face_->glyph->advance.x) / kFixed;
  if (face_->glyph->format != FT_GLYPH_FORMAT_OUTLINE || face_->glyph->outline.n_contours == 0) return found;
  Walk walk{found.steps};
  const FT_Outline_Funcs steps{&Walk::move, &Walk::line, &Walk::quad, &Walk::cubic, 0, 0};
  FT_Outline_Decompose(&face_->glyph->outline, &steps, &walk);
  return found;
}

bool SvgFont::outline(unsigned glyph, const AffineTransform& matrix, SvgPathWriter& writer) const {
  const GlyphOutline found = outlineOf(glyph);
  bool isBegun = false;
  for (const OutlineStep& step : found.steps) {
    if (step.kind == OutlineStep::Move && std::exchange(isBegun, true)) writer.close();
    put(step, matrix, writer);
  }
  if (isBegun) writer.close();
  return isBegun;
}

int SvgFont::ascent() const {
  return int(std::lround(double(face_->size->metrics.ascender) / kFixed));
}

int SvgFont::descent() const {
  return int(std::lround(-double(face_->size->metrics.descender) / kFixed));
}

bool SvgFont::mayBeEmbedded() const {
  const FT_UShort rights = FT_Get_FSType_Flags(face_);
  // Of rights that exclude each other the larger one counts.
  constexpr FT_UShort kAll = FT_FSTYPE_RESTRICTED_LICENSE_EMBEDDING | FT_FSTYPE_PREVIEW_AND_PRINT_EMBEDDING |
                             FT_FSTYPE_EDITABLE_EMBEDDING;
  return (rights & kAll) != FT_FSTYPE_RESTRICTED_LICENSE_EMBEDDING &&
         (rights & FT_FSTYPE_BITMAP_EMBEDDING_ONLY) == 0;
}

SvgFonts::SvgFonts() {
  if (FT_Init_FreeType(&library_) != 0) library_ = nullptr;
}

SvgFonts::~SvgFonts() {
  fonts_.clear();
  if (library_) FT_Done_FreeType(library_);
}

SvgFont* SvgFonts::font(GfxFont& font, XRef* objects) {
  if (!library_) return nullptr;
  const std::pair<int, int> key(font.getID()->num, font.getID()->gen);
  if (const auto at = fonts_.find(key); at != fonts_.end()) return at->second.get();
  if (qsizetype(fonts_.size()) >= limits::maximumSvgFonts) {
    leftOut_ = true;
    return nullptr;
  }
  return fonts_.emplace(key, std::make_unique<SvgFont>(library_, font, objects)).first->second.get();
}

}  // namespace norvex::engine
