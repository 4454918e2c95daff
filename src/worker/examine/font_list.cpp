#include "worker/examine/font_list.h"

#include <exception>
#include <set>
#include <string>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

QString nameOf(QPDFObjectHandle name) {
  return name.isName() ? QString::fromStdString(name.getName()).mid(1) : QString();
}

/// "ABCDEF+Name": PDF 1.7, 9.6.4.
bool hasSubsetTag(const QString& name) {
  if (name.size() < 8 || name[6] != u'+') return false;
  for (int i = 0; i < 6; ++i)
    if (name[i] < u'A' || name[i] > u'Z') return false;
  return true;
}

bool isEmbedded(QPDFObjectHandle font) {
  if (font.getKey("/Subtype").isNameAndEquals("/Type3")) return true;
  if (QPDFObjectHandle parts = font.getKey("/DescendantFonts"); parts.isArray() && parts.getArrayNItems() > 0)
    font = parts.getArrayItem(0);
  if (!font.isDictionary()) return false;
  QPDFObjectHandle descriptor = font.getKey("/FontDescriptor");
  if (!descriptor.isDictionary()) return false;
  for (const char* key : {"/FontFile", "/FontFile2", "/FontFile3"})
    if (descriptor.getKey(key).isStream()) return true;
  return false;
}

class Walk {
 public:
  explicit Walk(const std::set<std::string>& shown) : shown_(shown) {}

  void takeResources(QPDFObjectHandle resources, int depth) {
    if (depth > limits::maximumResourceDepth || !resources.isDictionary() || !isNew(resources)) return;
    forEach(resources.getKey("/Font"), [&](QPDFObjectHandle font) { takeFont(font, depth); });
    for (const char* category : {"/XObject", "/Pattern"})
      forEach(resources.getKey(category), [&](QPDFObjectHandle object) {
        if (object.isStream()) takeResources(object.getDict().getKey("/Resources"), depth + 1);
      });
    forEach(resources.getKey("/ExtGState"), [&](QPDFObjectHandle state) {
      if (!state.isDictionary()) return;
      if (QPDFObjectHandle font = state.getKey("/Font"); font.isArray() && font.getArrayNItems() > 0)
        takeFont(font.getArrayItem(0), depth);
      if (QPDFObjectHandle mask = state.getKey("/SMask"); mask.isDictionary() && mask.getKey("/G").isStream())
        takeResources(mask.getKey("/G").getDict().getKey("/Resources"), depth + 1);
    });
  }

  QList<UsedFont> found;

 private:
  bool isNew(QPDFObjectHandle object) {
    if (++objects_ > limits::maximumResources) return false;
    return !object.isIndirect() || seen_.insert(object.getObjGen()).second;
  }

  template <typename Take>
  static void forEach(QPDFObjectHandle dictionary, Take&& take) {
    if (!dictionary.isDictionary()) return;
    for (const std::string& key : dictionary.getKeys()) take(dictionary.getKey(key));
  }

  void takeFont(QPDFObjectHandle font, int depth) {
    if (!font.isDictionary() || !isNew(font) || found.size() >= limits::maximumNames) return;
    UsedFont used;
    used.name = nameOf(font.getKey("/BaseFont"));
    used.type = nameOf(font.getKey("/Subtype"));
    used.used = shown_.count(fontName(font)) > 0;
    used.subset = hasSubsetTag(used.name);
    if (used.subset) used.name.remove(0, 7);
    used.embedded = isEmbedded(font);
    found << used;
    if (used.type == u"Type3") takeResources(font.getKey("/Resources"), depth + 1);
  }

  const std::set<std::string>& shown_;
  std::set<QPDFObjGen> seen_;
  int objects_ = 0;
};

}  // namespace

std::string fontName(QPDFObjectHandle font) {
  if (!font.isDictionary() || !font.getKey("/BaseFont").isName()) return {};
  return font.getKey("/BaseFont").getName();
}

QList<UsedFont> usedFonts(PdfFile& file, int page, const std::set<std::string>& shown) {
  Walk walk(shown);
  try {
    walk.takeResources(file.page(page).getKey("/Resources"), 0);
  } catch (const std::exception&) {
    // Facts found before the damage are true all the same.
  }
  return walk.found;
}

}  // namespace norvex::engine
