#include "worker/examine/page_colour.h"

#include <algorithm>
#include <numeric>
#include <string>

namespace norvex::engine {
namespace {

constexpr double kNearly = 0.001;

ColourSpace named(const std::string& name) {
  if (name == "/DeviceGray" || name == "/G" || name == "/CalGray") return {ColourModel::Grey};
  if (name == "/DeviceRGB" || name == "/RGB" || name == "/CalRGB") return {ColourModel::Rgb};
  if (name == "/DeviceCMYK" || name == "/CMYK") return {ColourModel::Cmyk};
  ColourSpace other{ColourModel::Other};
  other.isPattern = name == "/Pattern";
  return other;
}

ColourModel modelOfProfile(QPDFObjectHandle profile) {
  QPDFObjectHandle count = profile.isStream() ? profile.getDict().getKey("/N") : QPDFObjectHandle::newNull();
  const long long n = count.isInteger() ? count.getIntValue() : 0;
  return n == 1   ? ColourModel::Grey
         : n == 3 ? ColourModel::Rgb
         : n == 4 ? ColourModel::Cmyk
                  : ColourModel::Other;
}

}  // namespace

ColourSpace colourSpaceOf(QPDFObjectHandle space) {
  if (space.isName()) return named(space.getName());
  if (!space.isArray() || space.getArrayNItems() < 1 || !space.getArrayItem(0).isName())
    return {ColourModel::Other};
  const std::string kind = space.getArrayItem(0).getName();
  QPDFObjectHandle second = space.getArrayNItems() > 1 ? space.getArrayItem(1) : QPDFObjectHandle::newNull();
  if (kind == "/ICCBased") return {modelOfProfile(second)};
  if (kind == "/Indexed" || kind == "/I") {
    // A base that is itself indexed is not allowed, and would be followed for ever.
    const bool nested =
        second.isArray() && second.getArrayNItems() > 0 &&
        (second.getArrayItem(0).isNameAndEquals("/Indexed") || second.getArrayItem(0).isNameAndEquals("/I"));
    ColourSpace base = nested ? ColourSpace{ColourModel::Other} : colourSpaceOf(second);
    base.isIndexed = true;
    return base;
  }
  if (kind == "/Separation" || kind == "/DeviceN") {
    ColourSpace spot{ColourModel::Spot};
    spot.isRegistration = second.isNameAndEquals("/All");
    spot.paintsNothing = second.isNameAndEquals("/None");
    return spot;
  }
  return named(kind);
}

PageColour colourOf(const ColourSpace& space, const std::vector<double>& components) {
  PageColour colour{space.model, 0, false, false, !space.paintsNothing};
  if (space.isIndexed || space.isPattern || components.empty()) return colour;
  const double sum = std::accumulate(components.begin(), components.end(), 0.0);
  const auto largest = std::max_element(components.begin(), components.end());
  switch (space.model) {
    case ColourModel::Grey:
      colour.ink = (1 - std::clamp(components[0], 0.0, 1.0)) * 100;
      colour.isWhite = components[0] >= 1 - kNearly;
      colour.isBlack = components[0] <= kNearly;
      break;
    case ColourModel::Rgb:
      colour.isWhite = *std::min_element(components.begin(), components.end()) >= 1 - kNearly;
      break;
    case ColourModel::Cmyk:
      colour.ink = std::clamp(sum, 0.0, 4.0) * 100;
      colour.isWhite = *largest <= kNearly;
      colour.isBlack = components.size() == 4 && components[3] >= 1 - kNearly && sum <= 1 + kNearly;
      break;
    case ColourModel::Spot:
      colour.ink = std::max(sum, 0.0) * (space.isRegistration ? 400 : 100);
      colour.isWhite = *largest <= kNearly;
      break;
    case ColourModel::Other:
      break;
  }
  return colour;
}

PageColour initialColourOf(const ColourSpace& space) {
  if (space.model == ColourModel::Cmyk) return colourOf(space, {0, 0, 0, 1});
  if (space.model == ColourModel::Spot) return colourOf(space, {1});
  return colourOf(space, {0, 0, 0});
}

}  // namespace norvex::engine
