// The parts into which the engines are cut, each with the libraries that it takes. Free of Qt, because the
// program that starts a picture process looks into it before Qt is loaded.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "protocol/picture_needs.h"

namespace norvex {

/// norvex-engine-NAME.so, and norvex-picture-NAME, the program that has it linked.
struct EnginePart {
  const char* name;
  PictureNeeds offers;
};

/// Every part, what is needed most often first. What two of them offer is the same code.
inline constexpr std::array<EnginePart, 5> engineParts{{
    {"facts", NeedFacts},
    {"svg", NeedSvgDrawing},
    {"pages", NeedPages | NeedPreviews},
    {"svg-pdf", NeedSvgDrawing | NeedSvgPdf | NeedSheets},
    {"all", allPictureNeeds},
}};

/// The first that can do all of `needs`: an index of engineParts.
constexpr size_t enginePartFor(PictureNeeds needs) {
  size_t first = 0;
  while ((needs & ~engineParts[first].offers) != 0 && first + 1 < engineParts.size()) ++first;
  return first;
}

/// The engines that the part of this name offers, for the part itself; a name that is not in the table does
/// not compile.
consteval PictureNeeds offersOfPart(std::string_view name) {
  size_t row = 0;
  while (engineParts[row].name != name) ++row;
  return engineParts[row].offers;
}

}  // namespace norvex
