#include "picture/inks/ink_colours.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace norvex {
namespace {

/// What the renderer of the picture shows for each overprint of full inks, measured: cyan is bit 0 of the
/// index, magenta bit 1, yellow bit 2, black bit 3. Between them it goes in straight lines, and so do we.
constexpr std::array<std::array<int, 3>, 16> kFullInks{{{255, 255, 255},
                                                        {0, 173, 239},
                                                        {236, 0, 140},
                                                        {46, 49, 146},
                                                        {255, 242, 0},
                                                        {0, 166, 80},
                                                        {237, 28, 36},
                                                        {54, 54, 57},
                                                        {35, 31, 32},
                                                        {0, 15, 36},
                                                        {36, 0, 0},
                                                        {0, 0, 1},
                                                        {28, 26, 0},
                                                        {0, 19, 0},
                                                        {34, 0, 0},
                                                        {0, 0, 0}}};

constexpr PaperColour kUnknown{0.5F, 0.5F, 0.5F};

}  // namespace

PaperColour colourOfProcessInks(float cyan, float magenta, float yellow, float black) {
  std::array<float, kFullInks.size()> weights{};
  weights[0] = 1;
  size_t known = 1;
  for (const float share : {cyan, magenta, yellow, black}) {
    for (size_t i = 0; i < known; ++i) {
      weights[i + known] = weights[i] * share;
      weights[i] *= 1 - share;
    }
    known *= 2;
  }
  std::array<float, 3> sums{};
  for (size_t i = 0; i < weights.size(); ++i)
    for (size_t c = 0; c < 3; ++c) sums[c] += weights[i] * float(kFullInks[i][c]);
  return {sums[0] / 255, sums[1] / 255, sums[2] / 255};
}

PaperColour ownColour(const PageInks& page, qsizetype ink) {
  const Ink& one = page.inks.at(ink);
  ProcessInks shares{};
  if (!one.isSpot && ink < qsizetype(shares.size()))
    shares[size_t(ink)] = 255;
  else if (one.alternate)
    shares = *one.alternate;
  else
    return kUnknown;
  return colourOfProcessInks(float(shares[0]) / 255, float(shares[1]) / 255, float(shares[2]) / 255,
                             float(shares[3]) / 255);
}

QRgb rgbOf(const PaperColour& colour) {
  const auto channel = [](float share) { return int(std::lround(255 * std::clamp(share, 0.0F, 1.0F))); };
  return qRgb(channel(colour.red), channel(colour.green), channel(colour.blue));
}

}  // namespace norvex
