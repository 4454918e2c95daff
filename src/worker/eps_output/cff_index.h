// The numbers and lists that font files are made of.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <map>
#include <optional>

namespace norvex::engine {

/// Big-endian numbers at places that may lie outside; then it is told once and for all. `bytes` must outlive
/// it.
class ByteReader {
 public:
  explicit ByteReader(const QByteArray& bytes) : bytes_(bytes) {}
  [[nodiscard]] quint32 number(qsizetype at, int size);
  [[nodiscard]] bool valid() const { return valid_; }

 private:
  const QByteArray& bytes_;
  bool valid_ = true;
};

void putNumber(QByteArray& bytes, qsizetype at, int size, quint32 value);

/// A list of byte strings in a CFF font.
struct CffIndex {
  qsizetype start = 0;
  int count = 0;
  int offsetSize = 0;
  qsizetype end = 0;  ///< behind it

  /// Where `item` begins and the one before it ends, 0 ≤ item ≤ count.
  [[nodiscard]] qsizetype offset(ByteReader& read, int item) const;
};

/// The list at `start`; nothing when it is damaged. Its end may lie outside the file.
[[nodiscard]] std::optional<CffIndex> cffIndexAt(ByteReader& read, qsizetype start);

inline constexpr int CffCharStrings = 17;  ///< the operator whose operand is the place of the outlines
inline constexpr int cffEscape = 0xC00;    ///< added to operators of two bytes

/// The operators of a dictionary of a CFF font, each with its last operand; real numbers count as 0.
[[nodiscard]] std::map<int, qint64> cffOperands(QByteArrayView dict);

/// The CFF font `cff` with plain names (plainName()) in place of its texts, glyph names above all: whoever
/// writes them into a program writes no program of the font's. Blanks stay in the texts that are nothing but
/// read. Nothing when its lists are damaged.
[[nodiscard]] std::optional<QByteArray> withPlainTexts(const QByteArray& cff);

}  // namespace norvex::engine
