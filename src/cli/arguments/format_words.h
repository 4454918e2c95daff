// The table of formats in the words of the command line.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "types/picture_format.h"

namespace norvex {

/// A text that is put together while the program is compiled; one that is too long does not compile.
class FixedText {
 public:
  constexpr void add(std::string_view text) {
    for (const char c : text) chars_.at(size_++) = c;
  }
  /// A whole number, not negative.
  constexpr void add(int number) {
    if (number >= 10) add(number / 10);
    chars_.at(size_++) = char('0' + number % 10);
  }
  /// With what stands between it and what was added before.
  constexpr void addItem(std::string_view separator, std::string_view text) {
    if (size_ > 0) add(separator);
    add(text);
  }
  [[nodiscard]] constexpr std::string_view text() const { return {chars_.data(), size_}; }

 private:
  std::array<char, 512> chars_{};
  size_t size_ = 0;
};

/// The names of all formats that are written, between blanks.
inline constexpr FixedText writtenFormatNames = [] {
  FixedText names;
  for (const FormatRow& row : formatTable)
    if (isWritten(row)) names.addItem(" ", row.name);
  return names;
}();

/// The names of those that --quality goes with, between blanks.
inline constexpr FixedText qualityFormatNames = [] {
  FixedText names;
  for (const FormatRow& row : formatTable)
    if (row.quality != NoQuality) names.addItem(" ", row.name);
  return names;
}();

/// The help of --quality.
inline constexpr FixedText qualityHelp = [] {
  FixedText formats, help;
  for (const FormatRow& row : formatTable) {
    if (row.quality == NoQuality) continue;
    formats.addItem(", ", row.name);
    formats.add(" ");
    if (row.quality == Lossless)
      formats.add("lossless");
    else
      formats.add(row.quality);
  }
  help.add("how much is kept by a format that can lose some, 1 to 100 (without it: ");
  help.add(formats.text());
  help.add(")");
  return help;
}();

}  // namespace norvex
