#include "worker/pdf/plain_page.h"

#include <set>
#include <string>
#include <string_view>

#include "protocol/limits.h"
#include "worker/pdf/pdf_colour_operators.h"

namespace norvex::engine {
namespace {

/// Bytes of contents, unpacked: some thousand curves, a tenth of a second.
constexpr qint64 kLong = 256 << 10;
/// Longer ones are not looked at: some seconds more or less would be spent on that alone.
constexpr qint64 kTooLong = 64 << 20;
constexpr int kDepth = 8;

constexpr std::string_view kBlanks("\0\t\n\f\r ", 6);

/// "BI" as a word. Where a text has it, a page that is plain is taken for one that is not.
bool mayHaveImages(std::string_view contents) {
  const auto isBlank = [&](size_t at) {
    return at >= contents.size() || kBlanks.find(contents[at]) != std::string_view::npos;
  };
  for (size_t at = contents.find("BI"); at != std::string_view::npos; at = contents.find("BI", at + 1))
    if ((at == 0 || isBlank(at - 1)) && isBlank(at + 2)) return true;
  return false;
}

/// One page's walk. It ends with the first thing that is not plain.
class Walk {
 public:
  [[nodiscard]] bool isLongAndPlain() const { return isPlain_ && length_ >= kLong; }

  void takeContents(QPDFObjectHandle contents);
  void takeResources(QPDFObjectHandle resources, int depth);

 private:
  template <typename Take>
  void forEach(QPDFObjectHandle dictionary, Take&& take);
  void takeXObject(QPDFObjectHandle object, int depth);

  std::set<QPDFObjGen> seen_;
  int objects_ = 0;
  qint64 length_ = 0;
  bool isPlain_ = true;
};

template <typename Take>
void Walk::forEach(QPDFObjectHandle dictionary, Take&& take) {
  if (!dictionary.isDictionary()) return;
  for (const std::string& key : dictionary.getKeys()) {
    if (++objects_ > limits::maximumResources) isPlain_ = false;
    if (!isPlain_) return;
    take(dictionary.getKey(key));
  }
}

void Walk::takeContents(QPDFObjectHandle contents) {
  if (contents.isArray()) {
    for (int i = 0; isPlain_ && i < contents.getArrayNItems(); ++i) takeContents(contents.getArrayItem(i));
    return;
  }
  if (!isPlain_ || !contents.isStream()) return;
  const std::string bytes = unpacked(contents, kTooLong - length_);
  length_ += qint64(bytes.size());
  isPlain_ = length_ < kTooLong && !mayHaveImages(bytes);
}

void Walk::takeXObject(QPDFObjectHandle object, int depth) {
  if (!object.isStream()) return;
  if (object.isIndirect() && !seen_.insert(object.getObjGen()).second) return;
  QPDFObjectHandle dictionary = object.getDict();
  isPlain_ = dictionary.getKey("/Subtype").isNameAndEquals("/Form") && !dictionary.hasKey("/Group");
  takeContents(object);
  takeResources(dictionary.getKey("/Resources"), depth + 1);
}

void Walk::takeResources(QPDFObjectHandle resources, int depth) {
  if (!isPlain_ || !resources.isDictionary()) return;
  if (depth > kDepth) isPlain_ = false;
  for (const char* kind : {"/Shading", "/Pattern"})
    forEach(resources.getKey(kind), [&](QPDFObjectHandle) { isPlain_ = false; });
  forEach(resources.getKey("/XObject"), [&](QPDFObjectHandle object) { takeXObject(object, depth); });
  forEach(resources.getKey("/Font"), [&](QPDFObjectHandle font) {
    isPlain_ = font.isDictionary() && !font.getKey("/Subtype").isNameAndEquals("/Type3");
  });
  forEach(resources.getKey("/ExtGState"), [&](QPDFObjectHandle state) {
    isPlain_ = state.isDictionary() && (!state.hasKey("/SMask") || state.getKey("/SMask").isName());
  });
}

}  // namespace

bool isLongAndPlain(PdfFile& file, int page) {
  QPDFObjectHandle dictionary = file.page(page);
  if (QPDFObjectHandle notes = dictionary.getKey("/Annots"); notes.isArray() && notes.getArrayNItems() > 0)
    return false;
  Walk walk;
  walk.takeResources(dictionary.getKey("/Resources"), 0);
  walk.takeContents(dictionary.getKey("/Contents"));
  return walk.isLongAndPlain();
}

}  // namespace norvex::engine
