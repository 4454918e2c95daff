// The characters that may stand for an outline, so that a reader shows that outline and nothing else.
#pragma once

#include <vector>

namespace norvex::engine {

/// The text of an outline, as its document tells it (`told`), in characters that a reader draws with the
/// font's own outlines. Ligatures are taken apart, contextual forms become their letters. Empty: nothing is
/// told, or readers would draw something else or nothing for it: ignored characters, spaces that are not
/// blank, pictures in colours, letters that they take apart themselves. `isBlank`: the outline is.
[[nodiscard]] std::vector<char32_t> charactersFor(const std::vector<char32_t>& told, bool isBlank);

/// True for characters that readers join, move or turn around beside others: they keep their place only in a
/// text of their own.
[[nodiscard]] bool standsAlone(char32_t character);

}  // namespace norvex::engine
