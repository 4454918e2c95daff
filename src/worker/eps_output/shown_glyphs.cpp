#include "worker/eps_output/shown_glyphs.h"

#include <Gfx.h>
#include <GfxFont.h>
#include <GfxState.h>
#include <OutputDev.h>
#include <PDFDoc.h>
#include <Stream.h>
#include <fofi/FoFiTrueType.h>
#include <fofi/FoFiType1C.h>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "protocol/limits.h"
#include "worker/eps_output/font_thinning.h"

namespace norvex::engine {
namespace {

constexpr CharCode kMostCodes = 0x10000;

// The font files of a document: where they hang, and whether a tiling pattern may show text.
struct FontFiles {
  std::map<Ref, Object> streams;
  bool textInPatterns = false;
};

void noteFile(const Dict& descriptor, XRef& objects, FontFiles& found) {
  for (const char* key : {"FontFile2", "FontFile3"}) {
    const Object& file = descriptor.lookupNF(key);
    if (file.isRef() && found.streams.count(file.getRef()) == 0)
      found.streams.emplace(file.getRef(), objects.fetch(file.getRef()));
  }
}

FontFiles fontFilesOf(XRef& objects) {
  FontFiles found;
  for (int i = 0; i < objects.getNumObjects(); ++i) {
    const XRefEntry* entry = objects.getEntry(i, false);
    if (!entry || entry->type == xrefEntryFree) continue;
    const Object object = objects.fetch(i, entry->type == xrefEntryCompressed ? 0 : entry->gen);
    if (object.isStream() && object.streamGetDict()->lookup("PatternType").isInt()) {
      const Object resources = object.streamGetDict()->lookup("Resources");
      found.textInPatterns = found.textInPatterns || !resources.isDict() ||
                             resources.getDict()->hasKey("Font") || resources.getDict()->hasKey("XObject");
    }
    if (!object.isDict()) continue;
    noteFile(*object.getDict(), objects, found);
    const Object descriptor = object.getDict()->lookup("FontDescriptor");
    if (descriptor.isDict()) noteFile(*descriptor.getDict(), objects, found);
    const Object descendants = object.getDict()->lookup("DescendantFonts");
    const Object descendant = descendants.isArray() ? descendants.arrayGet(0) : Object();
    const Object inner = descendant.isDict() ? descendant.getDict()->lookup("FontDescriptor") : Object();
    if (inner.isDict()) noteFile(*inner.getDict(), objects, found);
  }
  return found;
}

// Takes note of every character that is shown.
class TextListener : public OutputDev {
 public:
  struct Shown {
    std::shared_ptr<GfxFont> font;
    std::vector<bool> codes;
  };

  explicit TextListener(bool patterns) : patterns_(patterns) {}
  bool upsideDown() override { return false; }
  bool useDrawChar() override { return true; }
  bool interpretType3Chars() override { return true; }
  bool useShadedFills(int) override { return true; }
  bool useTilingPatternFill() override { return true; }
  bool needNonText() override { return patterns_; }  // images, too, but those only then

  bool functionShadedFill(GfxState*, GfxFunctionShading*) override { return true; }
  bool axialShadedFill(GfxState*, GfxAxialShading*, double, double) override { return true; }
  bool radialShadedFill(GfxState*, GfxRadialShading*, double, double) override { return true; }
  bool gouraudTriangleShadedFill(GfxState*, GfxGouraudTriangleShading*) override { return true; }
  bool patchMeshShadedFill(GfxState*, GfxPatchMeshShading*) override { return true; }

  bool tilingPatternFill(GfxState*, Gfx* gfx, Catalog*, GfxTilingPattern* pattern, const double* matrix, int,
                         int, int, int, double, double) override {
    gfx->drawForm(pattern->getContentStream(), pattern->getResDict(), matrix, pattern->getBBox());
    return true;
  }

  void drawChar(GfxState* state, double, double, double, double, double, double, CharCode code, int,
                const Unicode*, int) override {
    const std::shared_ptr<GfxFont> font = state->getFont();
    if (font != last_.font) last_ = {font, &shown_[font.get()]};
    if (!last_.shown->font) *last_.shown = {font, std::vector<bool>(kMostCodes, false)};
    if (code < kMostCodes) last_.shown->codes[code] = true;
  }

  [[nodiscard]] const std::map<const GfxFont*, Shown>& shown() const { return shown_; }

 private:
  struct Last {
    std::shared_ptr<GfxFont> font;
    Shown* shown = nullptr;
  };
  bool patterns_;
  std::map<const GfxFont*, Shown> shown_;
  Last last_;
};

std::optional<QByteArray> contents(const Object& stream) {
  if (!stream.isStream()) return {};
  const std::vector<unsigned char> bytes = stream.getStream()->toUnsignedChars();
  stream.getStream()->close();
  return QByteArray(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size()));
}

struct Release {
  void operator()(int* map) const { gfree(map); }
};
using GlyphMap = std::unique_ptr<int, Release>;

// The glyphs behind the codes; nothing where that cannot be told for certain, and then the font stays whole.
std::optional<std::set<int>> glyphsOf(const TextListener::Shown& shown, const QByteArray& file) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(file.constData());
  const GfxFontType type = shown.font->getType();
  const int* map = nullptr;
  int length = 0;
  GlyphMap made;
  if (type == fontTrueType || type == fontTrueTypeOT) {
    const std::unique_ptr<FoFiTrueType> font = FoFiTrueType::make(bytes, int(file.size()));
    if (!font || font->isOpenTypeCFF()) return {};
    made.reset(static_cast<Gfx8BitFont&>(*shown.font).getCodeToGIDMap(font.get()));
    if (!made) return {};
    length = 256;
  } else if (type == fontCIDType2 || type == fontCIDType2OT || type == fontCIDType0COT) {
    const auto& font = static_cast<const GfxCIDFont&>(*shown.font);
    map = font.getCIDToGID();
    length = int(font.getCIDToGIDLen());
    if (!map && type == fontCIDType0COT) {
      const std::unique_ptr<FoFiTrueType> open = FoFiTrueType::make(bytes, int(file.size()));
      if (!open || !open->isOpenTypeCFF()) return {};
      made.reset(open->getCIDToGIDMap(&length));
    }
  } else if (type == fontCIDType0C) {
    const std::unique_ptr<FoFiType1C> font(FoFiType1C::make(bytes, int(file.size())));
    if (!font) return {};
    made.reset(font->getCIDToGIDMap(&length));
  } else {
    return {};
  }
  if (made) map = made.get();
  std::set<int> glyphs;
  for (size_t code = 0; code < shown.codes.size(); ++code)
    if (shown.codes[code]) glyphs.insert(!map ? int(code) : int(code) < length ? map[code] : 0);
  return glyphs;
}

void replaceFile(XRef& objects, Ref place, const Object& stream, const QByteArray& bytes) {
  Object dictionary(stream.streamGetDict()->copy(&objects));
  for (const char* key : {"Filter", "F", "DecodeParms", "DP"}) dictionary.getDict()->remove(key);
  dictionary.getDict()->set("Length", Object(int(bytes.size())));
  const Object replaced(
      static_cast<Stream*>(new MemStream(bytes.constData(), 0, bytes.size(), std::move(dictionary))));
  objects.setModifiedObject(&replaced, place);
}

// A map from characters to glyphs that ends with the last character that is shown: the generator writes a
// glyph for each of its entries.
void shortenMaps(XRef& objects, const std::map<const GfxFont*, TextListener::Shown>& shown,
                 std::list<QByteArray>& store) {
  std::map<Ref, qsizetype> lengths;
  for (const auto& [font, use] : shown) {
    const Object dictionary = objects.fetch(*font->getID());
    const Object descendants =
        dictionary.isDict() ? dictionary.getDict()->lookup("DescendantFonts") : Object();
    const Object descendant = descendants.isArray() ? descendants.arrayGet(0) : Object();
    if (!descendant.isDict()) continue;
    const Object& map = descendant.getDict()->lookupNF("CIDToGIDMap");
    if (!map.isRef()) continue;
    const auto last = std::find(use.codes.rbegin(), use.codes.rend(), true);
    qsizetype& length = lengths[map.getRef()];
    length = std::max(length, 2 * qsizetype(use.codes.rend() - last));
  }
  for (const auto& [place, length] : lengths) {
    const Object stream = objects.fetch(place);
    auto map = contents(stream);
    if (!map || map->size() <= length) continue;
    store.push_back(map->left(length));
    replaceFile(objects, place, stream, store.back());
  }
}

}  // namespace

void keepShownGlyphs(PDFDoc& document, std::list<QByteArray>& store) {
  XRef& objects = *document.getXRef();
  if (objects.getNumObjects() > limits::maximumThinnedObjects) return;
  FontFiles files = fontFilesOf(objects);
  if (files.streams.empty()) return;
  TextListener listener(files.textInPatterns);
  document.displayPage(&listener, 1, 72, 72, 0, false, true, false);

  std::map<Ref, std::vector<const TextListener::Shown*>> uses;
  for (const auto& [font, shown] : listener.shown()) {
    Ref place;
    if (font->getEmbeddedFontID(&place)) uses[place].push_back(&shown);
  }
  shortenMaps(objects, listener.shown(), store);
  for (const auto& [place, stream] : files.streams) {
    const auto file = contents(stream);
    if (!file) continue;
    std::set<int> glyphs;
    bool certain = true;
    for (const TextListener::Shown* shown : uses[place]) {
      const auto more = glyphsOf(*shown, *file);
      certain = certain && more;
      if (more) glyphs.insert(more->begin(), more->end());
    }
    if (!certain) continue;
    if (auto thinned = thinnedFont(*file, glyphs)) {
      store.push_back(std::move(*thinned));
      replaceFile(objects, place, stream, store.back());
    }
  }
}

}  // namespace norvex::engine
