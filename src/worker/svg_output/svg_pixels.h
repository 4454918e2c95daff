// Pixels as PNG: in the smallest of its forms that holds them.
#pragma once

#include <QByteArray>

#include <vector>

namespace norvex::engine {

/// Not premultiplied: 0xAARRGGBB, rows top to bottom.
struct SvgPixels {
  int width = 0, height = 0;
  std::vector<quint32> argb;
};

/// Every pixel as `times` × `times` of them.
[[nodiscard]] SvgPixels enlarged(const SvgPixels& pixels, int times);

/// A PNG of the rows from `first` on; up to 256 colours become a palette. Empty where there is no memory.
[[nodiscard]] QByteArray pngOf(const SvgPixels& pixels, int first, int rows);

}  // namespace norvex::engine
