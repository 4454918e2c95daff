// The colours that a file of pixels is written in.
#pragma once

#include <optional>
#include <string_view>

#include "types/picture_format.h"

namespace norvex {

enum class OutputColor { Rgb, Grey, Cmyk };

inline constexpr std::string_view outputColorNames = "rgb grey cmyk";  ///< in the order of the values

/// False for formats of vectors: they keep the colours of the picture.
[[nodiscard]] constexpr bool holdsColor(PictureFormat format, OutputColor color) {
  switch (color) {
    case OutputColor::Rgb:
      return isRaster(format);
    case OutputColor::Grey:
      return format == PictureFormat::Tiff || format == PictureFormat::Png || format == PictureFormat::Jpeg;
    case OutputColor::Cmyk:
      return format == PictureFormat::Tiff || format == PictureFormat::Jpeg;
  }
  return false;
}

[[nodiscard]] constexpr std::string_view nameOf(OutputColor color) {
  std::string_view found;
  int at = 0;
  forEachWord(outputColorNames, [&](std::string_view word) {
    if (at++ == int(color)) found = word;
  });
  return found;
}

[[nodiscard]] constexpr std::optional<OutputColor> outputColorNamed(std::string_view name) {
  for (const OutputColor each : {OutputColor::Rgb, OutputColor::Grey, OutputColor::Cmyk})
    if (nameOf(each) == name) return each;
  return std::nullopt;
}

}  // namespace norvex
