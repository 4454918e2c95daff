// Blanks, in each of the languages that are read here byte by byte.
#pragma once

namespace norvex {

/// As the C library's isspace() has it in every language: blank, tab, line ends, form feed, vertical tab.
[[nodiscard]] constexpr bool isWhiteSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

/// XML 1.0, 2.3.
[[nodiscard]] constexpr bool isXmlSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// PostScript (PLRM 3.1) and PDF (32000-1, 7.2.2).
[[nodiscard]] constexpr bool isPostScriptSpace(char c) {
  return isXmlSpace(c) || c == '\f' || c == '\0';
}

/// What writers and spoolers leave before the first line of PostScript: blanks of every sort, the byte that
/// fills records, and the one that ends a transmission.
[[nodiscard]] constexpr bool mayPrecedePostScript(char c) {
  return isWhiteSpace(c) || isPostScriptSpace(c) || c == '\x04';
}

/// Between the words of a comment line of PostScript, as writers of all sorts part them.
[[nodiscard]] constexpr bool isCommentBlank(char c) {
  return c == ' ' || c == '\t' || c == '\f' || c == '\v' || c == '\0';
}

}  // namespace norvex
