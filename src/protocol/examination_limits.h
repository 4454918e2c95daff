// Limits of looking at what is in a page, each with the attack that it stops: those of protocol/limits.h that
// only this needs.
#pragma once

#include <QtGlobal>

namespace norvex::limits {

/// A page of hundreds of thousands of small images, each with its own place.
inline constexpr int maximumToldImages = 500;
/// Sides of images that overflow when they are multiplied. No image is as large.
inline constexpr int maximumImageSide = 1 << 24;
/// Contents that unpack to gigabytes.
inline constexpr qint64 maximumReadContents = 64LL << 20;
/// Forms that show forms that show forms: operators that are carried out in all.
inline constexpr int maximumOperators = 3'000'000;
/// Operands without an operator.
inline constexpr int maximumOperands = 4096;
/// States saved and never brought back.
inline constexpr int maximumSavedStates = 4096;
/// XMP packets of megabytes.
inline constexpr qint64 maximumXmpBytes = 1LL << 20;
/// Pixels of one bitmap in which the ink's edge is looked for.
inline constexpr double maximumInkPixels = 24.0e6;

}  // namespace norvex::limits
