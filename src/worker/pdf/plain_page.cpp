#include "worker/pdf/plain_page.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

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

/// How far what is painted reaches up the page, roughly. Fed with the words of contents; within texts and
/// arrays they may be no words, which matters little.
class Reach {
 public:
  void take(std::string_view contents) {
    for (size_t at = 0; at < contents.size() && paths_ < kEnough;) {
      const size_t end = std::min(contents.find_first_of(kBlanks, at), contents.size());
      word(contents.substr(at, end - at));
      at = end + 1;
    }
  }
  /// True if most is lines and areas, and these are on average a sixteenth of `height` high.
  [[nodiscard]] bool isFar(double height) const {
    return paths_ > texts_ * 4 && sum_ * 16 >= height * double(paths_);
  }

 private:
  static constexpr qint64 kEnough = 20'000;

  void word(std::string_view word) {
    double number = 0;
    if (std::from_chars(word.data(), word.data() + word.size(), number).ec == std::errc()) {
      std::copy(operands_.begin() + 1, operands_.end(), operands_.begin());
      operands_.back() = number;
      return;
    }
    if (word == "m" || word == "l") points({5});
    if (word == "c") points({1, 3, 5});
    if (word == "v" || word == "y") points({3, 5});
    if (word == "re") {
      operands_[5] += operands_[3];
      points({3, 5});
    }
    if (word == "q" && scales_.size() < 64) scales_.push_back(scales_.back());
    if (word == "Q" && scales_.size() > 1) scales_.pop_back();
    if (word == "cm") scales_.back() *= std::max(std::abs(operands_[1]), std::abs(operands_[3]));
    if (word == "Tj" || word == "TJ" || word.ends_with(")Tj") || word.ends_with("]TJ")) ++texts_;
    for (const std::string_view paint : {"S", "s", "f", "F", "f*", "B", "B*", "b", "b*", "n"})
      if (word == paint) endPath();
  }

  void points(std::initializer_list<size_t> heights) {
    for (const size_t at : heights) {
      least_ = hasPoint_ ? std::min(least_, operands_[at]) : operands_[at];
      most_ = hasPoint_ ? std::max(most_, operands_[at]) : operands_[at];
      hasPoint_ = true;
    }
  }

  void endPath() {
    if (hasPoint_) sum_ += (most_ - least_) * scales_.back();
    hasPoint_ = false;
    ++paths_;
  }

  std::array<double, 6> operands_{};
  std::vector<double> scales_{1};  ///< of heights, one for each state that is kept
  bool hasPoint_ = false;
  double least_ = 0, most_ = 0, sum_ = 0;
  qint64 paths_ = 0, texts_ = 0;
};

/// One page's walk. It ends with the first thing that is not plain.
class Walk {
 public:
  [[nodiscard]] bool isLongAndPlain(double height) const {
    return isPlain_ && length_ >= kLong && reach_.isFar(height);
  }

  void takeContents(QPDFObjectHandle contents);
  void takeResources(QPDFObjectHandle resources, int depth);

 private:
  template <typename Take>
  void forEach(QPDFObjectHandle dictionary, Take&& take);
  void takeXObject(QPDFObjectHandle object, int depth);

  std::set<QPDFObjGen> seen_;
  int objects_ = 0;
  qint64 length_ = 0;
  Reach reach_;
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
  if (isPlain_) reach_.take(bytes);
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
  return walk.isLongAndPlain(file.geometry(page).box.height());
}

}  // namespace norvex::engine
