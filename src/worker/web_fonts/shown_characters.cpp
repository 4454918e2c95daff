#include "worker/web_fonts/shown_characters.h"

#include <QChar>
#include <QList>
#include <QString>

#include <unicode/uchar.h>

#include <algorithm>
#include <cstddef>

namespace norvex::engine {
namespace {

constexpr size_t kLongest = 16;  // characters of one outline; a ligature has four
constexpr char32_t kSoftHyphen = 0xAD, kNothingKnown = 0xFFFD, kObject = 0xFFFC;

// Readers draw two glyphs for each of these, one of them perhaps of the same font.
constexpr char32_t kTakenApart[] = {0x0E33, 0x0EB3, 0x17BE, 0x17BF, 0x17C0, 0x17C4, 0x17C5};

bool isPresentationForm(char32_t c) {
  return (c >= 0xFB00 && c <= 0xFDFF) || (c >= 0xFE70 && c <= 0xFEFE);
}

bool isSpace(char32_t c) {
  return QChar::isSpace(c);
}

bool isControl(char32_t c) {
  return QChar::category(c) == QChar::Other_Control;
}

bool canStand(char32_t c) {
  if (c > QChar::LastValidCodePoint || QChar::isNonCharacter(c) || QChar::isSurrogate(c) || isControl(c) ||
      isSpace(c) || c == kNothingKnown || c == kObject)
    return false;
  if (u_hasBinaryProperty(UChar32(c), UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0 ||
      u_hasBinaryProperty(UChar32(c), UCHAR_EMOJI_PRESENTATION) != 0)
    return false;
  return std::find(std::begin(kTakenApart), std::end(kTakenApart), c) == std::end(kTakenApart);
}

std::vector<char32_t> takenApart(const std::vector<char32_t>& told) {
  std::vector<char32_t> parts;
  for (const char32_t c : told) {
    if (!isPresentationForm(c)) {
      parts.push_back(c == kSoftHyphen ? U'-' : c);
      continue;
    }
    for (const uint part : QString::fromUcs4(&c, 1).normalized(QString::NormalizationForm_KC).toUcs4())
      parts.push_back(part);
  }
  return parts;
}

bool isPlainScript(QChar::Script script) {
  switch (script) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
    case QChar::Script_Armenian:
    case QChar::Script_Georgian:
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Bopomofo:
    case QChar::Script_Unknown:  // what a document uses privately
      return true;
    default:
      return false;
  }
}

bool isLeftToRight(QChar::Direction direction) {
  switch (direction) {
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirAN:
    case QChar::DirNSM:
      return false;
    default:
      return true;
  }
}

bool isJamo(char32_t c) {
  return (c >= 0x1100 && c <= 0x11FF) || (c >= 0xA960 && c <= 0xA97F) || (c >= 0xD7B0 && c <= 0xD7FF);
}

}  // namespace

std::vector<char32_t> charactersFor(const std::vector<char32_t>& told, bool isBlank) {
  std::vector<char32_t> characters = takenApart(told);
  const bool isNothing = characters.empty() || characters.size() > kLongest;
  if (isBlank && !isNothing && std::all_of(characters.begin(), characters.end(), [](char32_t c) {
        return isSpace(c) || isControl(c);
      }))
    return {U' '};
  if (isNothing || !std::all_of(characters.begin(), characters.end(), canStand)) return {};
  return characters;
}

bool standsAlone(char32_t character) {
  return character > 0xFFFF || QChar::isMark(character) || isJamo(character) ||
         !isPlainScript(QChar::script(character)) || !isLeftToRight(QChar::direction(character));
}

}  // namespace norvex::engine
