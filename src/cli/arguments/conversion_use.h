// The needs of a conversion of the picture process. Free of Qt, because it is also guessed before Qt is
// loaded.
#pragma once

#include <optional>

#include "protocol/picture_needs.h"
#include "types/picture_format.h"

namespace norvex {

/// `format` nothing: it is not known. `isWhole`: the picture is neither cut nor turned.
[[nodiscard]] constexpr PictureUse useOfConversion(std::optional<PictureFormat> format, bool isWhole) {
  if (!format) return PictureUse::Everything;
  const DocumentKind kind = rowOf(*format).kind;
  if (kind == DocumentKind::Other || kind == DocumentKind::Svg) return PictureUse::Drawing;
  return kind == DocumentKind::Pdf && isWhole ? PictureUse::WholePdf : PictureUse::Everything;
}

}  // namespace norvex
