// Which pixels of a layer are asked for: how far around what is seen, and in which pieces.
#pragma once

#include <QList>
#include <QRect>
#include <QRegion>

namespace norvex {

/// Bounds of what is asked for at once.
struct RenderRectLimits {
  qint64 wholePixels = 4'000'000;  ///< a picture up to this size is one bitmap. Default: 4 megapixels
  qint64 visiblePixels =
      64'000'000;  ///< a larger view is rendered around its middle only. Default: 64 megapixels
  int tile = 256;  ///< grid and margin of what is asked for, pixels. Default: 256
};

/// The longest side of a piece; pixels.
inline constexpr int longestPiece = 4096;

[[nodiscard]] qint64 pixelCount(const QRect& rect);

/// What is to be rendered of a picture that fills `box`, so that `visible` is there: within `box`, on the
/// grid of tiles. `withMargin`: a tile more on each side.
[[nodiscard]] QRect wantedRect(const QRect& visible, const QRect& box, const RenderRectLimits& limits,
                               bool withMargin);

/// `missing` in rectangles that no side of is longer than longestPiece. Its own rectangles become one where
/// that costs less than a walk through the picture for each.
[[nodiscard]] QList<QRect> piecesOf(const QRegion& missing);

}  // namespace norvex
