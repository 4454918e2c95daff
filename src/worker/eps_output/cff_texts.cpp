#include "worker/eps_output/cff_texts.h"

#include <initializer_list>
#include <map>
#include <optional>

#include "worker/eps_output/cff_index.h"

namespace norvex::engine {
namespace {

constexpr int kStandardTexts = 391;  // numbers below are of every font's texts
enum Operator {
  Version = 0,
  Notice = 1,
  FullName = 2,
  FamilyName = 3,
  Weight = 4,
  Charset = 15,
  Encoding = 16,
  Copyright = cffEscape | 0,
  Program = cffEscape | 21,
  BaseFontName = cffEscape | 22,
  CharacterNumbers = cffEscape | 30
};

/// Takes the texts that name glyphs out of `texts`; false: the font's tables are damaged.
class GlyphNames {
 public:
  GlyphNames(const QByteArray& cff, std::set<int>& texts) : read_(cff), texts_(texts) {}

  bool leaveOutOfCharset(qsizetype at, qsizetype charStrings) {
    const auto glyphs = cffIndexAt(read_, charStrings);
    if (!glyphs) return false;
    const auto format = int(read_.number(at, 1));
    if (format > 2) return false;
    const int size = format == 0 ? 0 : format;  // of the number of names that follow the first
    ++at;
    for (int named = 1; named < glyphs->count && read_.valid();) {
      const auto first = int(read_.number(at, 2));
      const int left = size == 0 ? 0 : int(read_.number(at + 2, size));
      at += 2 + size;
      for (int i = 0; i <= left && !texts_.empty(); ++i) texts_.erase(first + i);
      named += left + 1;
    }
    return read_.valid();
  }

  bool leaveOutOfEncoding(qsizetype at) {
    const auto format = int(read_.number(at, 1));
    const auto count = qsizetype(read_.number(at + 1, 1));
    if ((format & 0x80) == 0) return read_.valid();
    at += 2 + count * ((format & 0x7F) == 0 ? 1 : 2);
    const auto more = int(read_.number(at, 1));
    for (int i = 0; i < more; ++i) texts_.erase(int(read_.number(at + 2 + 3 * qsizetype(i), 2)));
    return read_.valid();
  }

 private:
  ByteReader read_;
  std::set<int>& texts_;
};

}  // namespace

std::set<int> textsForReading(const QByteArray& cff, QByteArrayView dict, int count) {
  const std::map<int, qint64> found = cffOperands(dict);
  const auto operand = [&](int name) {
    const auto at = found.find(name);
    return at == found.end() ? std::optional<qint64>() : std::optional(at->second);
  };
  if (operand(CharacterNumbers)) return {};
  std::set<int> texts;
  for (const int name : {Version, Notice, FullName, FamilyName, Weight, Copyright})
    if (const auto text = operand(name); text && *text >= kStandardTexts && *text < kStandardTexts + count)
      texts.insert(int(*text));
  for (const int name : {Program, BaseFontName})
    if (const auto text = operand(name)) texts.erase(int(*text));
  GlyphNames names(cff, texts);
  if (const auto at = operand(Charset);
      at && *at > 2 &&
      !names.leaveOutOfCharset(qsizetype(*at), qsizetype(operand(CffCharStrings).value_or(-1))))
    return {};
  if (const auto at = operand(Encoding); at && *at > 1 && !names.leaveOutOfEncoding(qsizetype(*at)))
    return {};
  std::set<int> numbers;
  for (const int text : texts) numbers.insert(text - kStandardTexts);
  return numbers;
}

}  // namespace norvex::engine
