#include "picture/inks/ink_image.h"

#include <algorithm>
#include <array>
#include <vector>

#include "picture/inks/ink_colours.h"

namespace norvex {
namespace {

/// Below the heat the picture stays to be recognised, above it the red deepens over so many percent.
constexpr float kPaleness = 0.75F;
constexpr float kHottest = 100;

double percentOf(int sum) {
  return sum * 100.0 / 255;
}

class PixelMixer {
 public:
  PixelMixer(const PageInks& page, const InkChoice& choice) : page_(page), choice_(choice) {
    for (qsizetype ink = 0; ink < page.inks.size(); ++ink) {
      const bool isShown = choice.shown.value(ink, true);
      if (isShown) shown_.push_back(ink);
      if (ink < kProcess) process_[size_t(ink)] = isShown ? 1 : 0;
      if (isShown && ink >= kProcess) spots_.push_back({ink, ownColour(page, ink)});
    }
  }

  [[nodiscard]] QRgb at(qsizetype pixel) const {
    const PaperColour colour = choice_.isPlate ? grey(pixel) : colours(pixel);
    return rgbOf(choice_.limit > 0 ? heated(colour, pixel) : colour);
  }

 private:
  static constexpr qsizetype kProcess = std::tuple_size_v<ProcessInks>;
  struct Spot {
    qsizetype ink = 0;
    PaperColour colour;
  };

  [[nodiscard]] float share(qsizetype ink, qsizetype pixel) const {
    return float(page_.plate(ink)[pixel]) / 255;
  }

  [[nodiscard]] PaperColour grey(qsizetype pixel) const {
    float sum = 0;
    for (const qsizetype ink : shown_) sum += share(ink, pixel);
    const float paper = 1 - std::min(1.0F, sum);
    return {paper, paper, paper};
  }

  /// A spot ink lets through what it leaves of white.
  [[nodiscard]] PaperColour colours(qsizetype pixel) const {
    PaperColour colour = colourOfProcessInks(process_[0] * share(0, pixel), process_[1] * share(1, pixel),
                                             process_[2] * share(2, pixel), process_[3] * share(3, pixel));
    for (const Spot& spot : spots_) {
      const float amount = share(spot.ink, pixel);
      colour.red *= 1 - amount * (1 - spot.colour.red);
      colour.green *= 1 - amount * (1 - spot.colour.green);
      colour.blue *= 1 - amount * (1 - spot.colour.blue);
    }
    return colour;
  }

  [[nodiscard]] PaperColour heated(const PaperColour& colour, qsizetype pixel) const {
    int sum = 0;
    for (qsizetype ink = 0; ink < page_.inks.size(); ++ink) sum += page_.plate(ink)[pixel];
    const double over = percentOf(sum) - choice_.limit;
    if (over <= 0) {
      const float grey = 0.3F * colour.red + 0.59F * colour.green + 0.11F * colour.blue;
      const float pale = kPaleness + (1 - kPaleness) * grey;
      return {pale, pale, pale};
    }
    const float heat = std::min(1.0F, float(over) / kHottest);
    return {1 - 0.3F * heat, 0.55F * (1 - heat), 0};
  }

  const PageInks& page_;
  const InkChoice& choice_;
  std::array<float, size_t(kProcess)> process_{};  ///< 0: it is not shown
  std::vector<qsizetype> shown_;
  std::vector<Spot> spots_;
};

/// Of every pixel, in 255ths.
std::vector<int> totals(const PageInks& page) {
  std::vector<int> sums(size_t(page.plateBytes()));
  for (qsizetype ink = 0; ink < page.inks.size(); ++ink) {
    const uchar* plate = page.plate(ink);
    for (size_t i = 0; i < sums.size(); ++i) sums[i] += plate[i];
  }
  return sums;
}

}  // namespace

InkChoice everyInk(const PageInks& page) {
  InkChoice choice;
  choice.shown = QList<bool>(page.inks.size(), true);
  return choice;
}

QImage inkImage(const PageInks& page, const InkChoice& choice, const CancelToken& cancel) {
  QImage image(page.pixels, QImage::Format_RGB32);
  if (image.isNull()) return {};
  const PixelMixer mixer(page, choice);
  qsizetype pixel = 0;
  for (int y = 0; y < image.height(); ++y) {
    if (cancel.cancelled()) return {};
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) row[x] = mixer.at(pixel++);
  }
  return image;
}

QList<double> inksAt(const PageInks& page, QPoint pixel) {
  if (!QRect(QPoint(0, 0), page.pixels).contains(pixel)) return {};
  const qsizetype at = qsizetype(pixel.y()) * page.pixels.width() + pixel.x();
  QList<double> percent;
  for (qsizetype ink = 0; ink < page.inks.size(); ++ink) percent << percentOf(page.plate(ink)[at]);
  return percent;
}

double mostInk(const PageInks& page) {
  const std::vector<int> sums = totals(page);
  return sums.empty() ? 0 : percentOf(*std::max_element(sums.begin(), sums.end()));
}

double shareAbove(const PageInks& page, double limit) {
  const std::vector<int> sums = totals(page);
  const auto above = std::count_if(sums.begin(), sums.end(), [&](int sum) { return percentOf(sum) > limit; });
  return sums.empty() ? 0 : double(above) / double(sums.size());
}

}  // namespace norvex
