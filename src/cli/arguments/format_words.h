// What the table of formats says on the command line.
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

}  // namespace norvex
