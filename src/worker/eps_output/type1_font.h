// Fonts in Type 1 format, which are PostScript programs: read as data and written anew.
#pragma once

#include <QByteArray>
#include <QList>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace norvex::engine {

/// The drawing parts of a Type 1 font. Numbers are kept as they were written.
struct Type1Font {
  using Numbers = QList<QByteArray>;

  QByteArray name;
  Numbers matrix;                                              ///< six of them; never empty
  Numbers box;                                                 ///< four of them, or none
  Numbers weights;                                             ///< of a font that is made of several masters
  QByteArray paintType, strokeWidth;                           ///< empty: not told
  std::vector<std::pair<QByteArray, QByteArray>> information;  ///< texts of /FontInfo
  /// Names by code; nothing: the standard encoding.
  std::optional<std::map<int, QByteArray>> encoding;

  std::vector<std::pair<QByteArray, Numbers>> hintArrays;     ///< of /Private
  std::vector<std::pair<QByteArray, QByteArray>> hintValues;  ///< numbers, "true", "false"
  std::map<int, QByteArray> subroutines;                      ///< encrypted as they were
  std::vector<std::pair<QByteArray, QByteArray>> outlines;    ///< names and encrypted outlines
};

/// A font program, with or without the segment headers of PC files, its second part binary or hexadecimal.
/// Nothing of it is run. Nothing when it is not built as fonts of Type 1 are.
[[nodiscard]] std::optional<Type1Font> readType1Font(const QByteArray& program);

/// A program of ours with what `font` holds.
struct Type1Program {
  QByteArray clearText, encrypted;  ///< one behind the other; what is encrypted is binary
};
[[nodiscard]] Type1Program writeType1Font(const Type1Font& font);

/// The encryption of the second part of a font program, and its reverse, which keeps the four bytes that go
/// before what was encrypted.
[[nodiscard]] QByteArray eexecEncrypted(const QByteArray& plain);
[[nodiscard]] QByteArray eexecDecrypted(const QByteArray& encrypted);

}  // namespace norvex::engine
