#include "worker/eps_output/inner_glyphs.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <algorithm>
#include <cctype>
#include <exception>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "protocol/limits.h"
#include "worker/pdf/pdf_dictionaries.h"

namespace norvex::engine {
namespace {

/// A font of Type 3 that others can refer to.
bool isDrawnFont(QPDFObjectHandle font) {
  return font.isIndirect() && font.isDictionary() && font.getKey("/Subtype").isNameAndEquals("/Type3");
}

QPDFObjectHandle entriesOf(QPDFObjectHandle owner) {
  return owner.isStream() ? owner.getDict() : owner;
}

QPDFObjectHandle resourcesOf(QPDFObjectHandle owner) {
  return entriesOf(owner).getKey("/Resources");
}

/// Counts characters that are shown and forms that are drawn.
class Counter final : public QPDFObjectHandle::ParserCallbacks {
 public:
  void handleObject(QPDFObjectHandle object, size_t, size_t) override {
    count(object);
    if (object.isOperator()) drawn += object.getOperatorValue() == "Do" ? 1 : 0;
  }
  void handleEOF() override {}

  double shown = 0, drawn = 0;

 private:
  void count(QPDFObjectHandle object) {
    if (object.isString()) shown += double(object.getStringValue().size());
    if (object.isArray())
      for (QPDFObjectHandle& item : object.getArrayAsVector()) count(item);
  }
};

/// Whether a name holds the number of a character (PDF 1.7, 7.3.5). The bytes of images hold such marks, too.
bool hasCodedName(const std::string& text) {
  constexpr std::string_view kNameEnds("\0\t\n\f\r ()<>[]{}/%", 16);
  const auto isHex = [&](size_t at) { return at < text.size() && std::isxdigit(uchar(text[at])); };
  bool isInName = false;
  for (size_t at = 0; at < text.size(); ++at) {
    if (kNameEnds.find(text[at]) != std::string_view::npos) isInName = text[at] == '/';
    if (isInName && text[at] == '#' && isHex(at + 1) && isHex(at + 2)) return true;
  }
  return false;
}

/// What a font's glyphs, a form or a pattern draw.
class Contents {
 public:
  explicit Contents(QPDFObjectHandle owner) {
    if (owner.isStream()) {
      streams_.push_back(owner);
    } else if (QPDFObjectHandle glyphs = owner.getKey("/CharProcs"); glyphs.isDictionary()) {
      for (const std::string& key : glyphs.getKeys())
        if (QPDFObjectHandle glyph = glyphs.getKey(key); glyph.isStream()) streams_.push_back(glyph);
    }
  }

  /// True unless no stream has this name: it begins with a slash.
  [[nodiscard]] bool name(const std::string& resource) {
    read();
    return isUnreadable_ || std::any_of(texts_.begin(), texts_.end(), [&](const std::string& text) {
             return text.find(resource) != std::string::npos;
           });
  }

  /// Glyphs below the one that has most of them; `ofGlyph`, `ofForm`: below one that is shown, and drawn.
  [[nodiscard]] double most(double ofGlyph, double ofForm) {
    double most = 0;
    for (QPDFObjectHandle& stream : streams_) {
      Counter counter;
      stream.parseAsContents(&counter);
      most = std::max(most, counter.shown * ofGlyph + counter.drawn * ofForm);
    }
    return most;
  }

 private:
  void read() {
    if (!texts_.empty() || isUnreadable_) return;
    try {
      for (QPDFObjectHandle& stream : streams_) {
        const std::shared_ptr<Buffer> data = stream.getStreamData(qpdf_dl_generalized);
        texts_.emplace_back(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
      }
    } catch (const std::exception&) {
      isUnreadable_ = true;  // others may read it all the same
    }
    isUnreadable_ = isUnreadable_ || std::any_of(texts_.begin(), texts_.end(), hasCodedName);
  }

  std::vector<QPDFObjectHandle> streams_;
  std::vector<std::string> texts_;
  bool isUnreadable_ = false;  ///< or its names are written in codes
};

class Search {
 public:
  QStringList run(QPDF& qpdf) {
    std::vector<QPDFObjectHandle> fonts;
    visitDictionaries(qpdf, [&](QPDFObjectHandle dictionary) {
      if (isDrawnFont(dictionary)) fonts.push_back(dictionary);
    });
    for (QPDFObjectHandle& font : fonts) glyphsBelow(font);
    return told_;
  }

 private:
  /// What one resource of an owner leads to.
  struct Way {
    const char* kind;
    std::string name;
    QPDFObjectHandle to;
    double glyphs = 0;  ///< below one use
  };

  /// The glyphs that are shown for one of a font's, or for a form or a pattern.
  double glyphsBelow(QPDFObjectHandle owner) {
    const QPDFObjGen id = owner.getObjGen();
    if (const auto known = known_.find(id); known != known_.end()) return known->second;
    above_.insert(id);
    Contents contents(owner);
    std::vector<Way> ways = waysOf(owner, contents);
    double ofGlyph = 0, ofForm = 0;
    for (auto way = ways.begin(); way != ways.end();) {
      if (!follow(owner, *way)) {
        way = ways.erase(way);
        continue;
      }
      double& most = isDrawnFont(way->to) ? ofGlyph : ofForm;
      most = std::max(most, way->glyphs);
      ++way;
    }
    for (const Way& way : ways)
      if (isLent(way) && ofGlyph > 0) ofForm = std::max(ofForm, Contents(way.to).most(ofGlyph, ofForm));
    double below = ofGlyph + ofForm > 0 ? contents.most(ofGlyph, ofForm) : 0;
    if (below > limits::maximumInnerGlyphs) {
      for (const Way& way : ways)
        if (way.glyphs > 0 || isLent(way)) cut(owner, way, "glyphs that show too many others were left out");
      below = 0;
    }
    above_.erase(id);
    return known_[id] = below;
  }

  /// False if the way had to be cut.
  bool follow(QPDFObjectHandle owner, Way& way) {
    if (above_.count(way.to.getObjGen()) > 0) {
      cut(owner, way, "glyphs that show themselves were left out");
      return false;
    }
    if (above_.size() >= size_t(limits::maximumResourceDepth)) {
      cut(owner, way, "glyphs that show too many others were left out");
      return false;
    }
    way.glyphs = glyphsBelow(way.to) + (isDrawnFont(way.to) ? 1 : 0);
    return true;
  }

  /// A form without resources of its own takes those of who draws it.
  static bool isLent(Way way) { return way.to.isStream() && !resourcesOf(way.to).isDictionary(); }

  static std::vector<Way> waysOf(QPDFObjectHandle owner, Contents& contents) {
    std::vector<Way> ways;
    QPDFObjectHandle resources = resourcesOf(owner);
    if (!resources.isDictionary()) return ways;
    for (const char* kind : {"/Font", "/XObject", "/Pattern", "/ExtGState"}) {
      QPDFObjectHandle named = resources.getKey(kind);
      if (!named.isDictionary()) continue;
      for (const std::string& name : named.getKeys())
        if (QPDFObjectHandle to = target(named.getKey(name)); !to.isNull()) ways.push_back({kind, name, to});
    }
    if (std::any_of(ways.begin(), ways.end(), isLent)) return ways;
    const auto unused = std::stable_partition(ways.begin(), ways.end(),
                                              [&](const Way& way) { return contents.name(way.name); });
    if (isDrawnFont(owner)) withdrawFonts(owner, {unused, ways.end()});
    ways.erase(unused, ways.end());
    return ways;
  }

  /// Of what no glyph uses. PostScript is made of each font with all fonts that its glyphs may show, and
  /// where all share the resources of their page, of all of those within one another.
  static void withdrawFonts(QPDFObjectHandle owner, const std::vector<Way>& unused) {
    const auto isFont = [](const Way& way) { return std::string_view(way.kind) == "/Font"; };
    if (std::none_of(unused.begin(), unused.end(), isFont)) return;
    QPDFObjectHandle resources = resourcesOf(owner).shallowCopy();
    QPDFObjectHandle fonts = resources.getKey("/Font").shallowCopy();
    for (const Way& way : unused)
      if (isFont(way)) fonts.removeKey(way.name);
    resources.replaceKey("/Font", fonts);
    entriesOf(owner).replaceKey("/Resources", resources);
  }

  /// The font, form or pattern that a resource leads to; null for any other.
  static QPDFObjectHandle target(QPDFObjectHandle resource) {
    if (isDrawnFont(resource)) return resource;
    if (resource.isStream())
      return resource.getDict().getKey("/Subtype").isNameAndEquals("/Image") ? QPDFObjectHandle::newNull()
                                                                             : resource;
    if (!resource.isDictionary()) return QPDFObjectHandle::newNull();
    // A graphics state may choose a font.
    QPDFObjectHandle font = resource.getKey("/Font");
    if (font.isArray() && font.getArrayNItems() > 0 && isDrawnFont(font.getArrayItem(0)))
      return font.getArrayItem(0);
    return QPDFObjectHandle::newNull();
  }

  /// In resources of the owner's own: others may have the same ones, and need what is taken away.
  void cut(QPDFObjectHandle owner, const Way& way, const char* sentence) {
    QPDFObjectHandle resources = resourcesOf(owner).shallowCopy();
    QPDFObjectHandle named = resources.getKey(way.kind).shallowCopy();
    named.removeKey(way.name);
    resources.replaceKey(way.kind, named);
    entriesOf(owner).replaceKey("/Resources", resources);
    if (const QString told = QString::fromLatin1(sentence); !told_.contains(told)) told_ << told;
  }

  std::set<QPDFObjGen> above_;  ///< on the way to where the search is
  std::map<QPDFObjGen, double> known_;
  QStringList told_;
};

}  // namespace

QStringList boundInnerGlyphs(QPDF& qpdf) {
  return Search().run(qpdf);
}

}  // namespace norvex::engine
