// The colours of inks on white paper.
#pragma once

#include <QRgb>

#include "protocol/page_inks.h"

namespace norvex {

/// Red, green and blue that the paper sends back, 0 … 1 each.
struct PaperColour {
  float red = 1, green = 1, blue = 1;
};

/// A mixture of process inks, shares 0 … 1, as the picture shows such colours on the screen.
[[nodiscard]] PaperColour colourOfProcessInks(float cyan, float magenta, float yellow, float black);

/// All of an ink alone: of a process ink itself, of a spot ink what stands in for it; a middle grey where
/// nobody knows that.
[[nodiscard]] PaperColour ownColour(const PageInks& page, qsizetype ink);

[[nodiscard]] QRgb rgbOf(const PaperColour& colour);

}  // namespace norvex
