#include "worker/svg_output/svg_gradient.h"

#include <GfxState.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr size_t kPlaces = 1024;       // intervals that are looked at
constexpr double kUnseen = 0.8 / 255;  // a line may miss a colour by so much
constexpr double kStep = 12.0 / 255;   // between two places next to one another: no slope
constexpr int kHalvings = 16;          // to find the place of a step
constexpr double kBeyond =
    0.01;  // of the length: so far a gradient goes on behind an end where it is not seen
constexpr int kDecimals = 5;

double distance(const Rgb& a, const Rgb& b) {
  return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

Rgb between(const Rgb& a, const Rgb& b, double share) {
  return {a.red + (b.red - a.red) * share, a.green + (b.green - a.green) * share,
          a.blue + (b.blue - a.blue) * share};
}

// The places that a line from `from` to `to` misses most, until it misses none.
void keepPlaces(const std::vector<Rgb>& all, size_t from, size_t to, std::vector<size_t>& kept) {
  double worst = kUnseen;
  size_t place = 0;
  for (size_t i = from + 1; i < to; ++i) {
    const double missed = distance(all[i], between(all[from], all[to], double(i - from) / double(to - from)));
    if (missed > worst) worst = missed, place = i;
  }
  if (place != 0) {
    keepPlaces(all, from, place, kept);
    keepPlaces(all, place, to, kept);
  } else {
    kept.push_back(to);
  }
}

double placeOfStep(const std::function<Rgb(double)>& colourAt, double low, double high, const Rgb& before,
                   const Rgb& after) {
  for (int i = 0; i < kHalvings; ++i) {
    const double middle = (low + high) / 2;
    const Rgb colour = colourAt(middle);
    (distance(colour, before) < distance(colour, after) ? low : high) = middle;
  }
  return high;
}

Rgb rgbOf(GfxUnivariateShading& shading, double place) {
  GfxColor colour{};
  GfxRGB rgb{};
  shading.getColor(shading.getDomain0() + place * (shading.getDomain1() - shading.getDomain0()), &colour);
  shading.getColorSpace()->getRGB(&colour, &rgb);
  return {colToDbl(rgb.r), colToDbl(rgb.g), colToDbl(rgb.b)};
}

QByteArray stopText(double offset, const Rgb& colour, bool hidden = false) {
  return "<stop" + attribute("offset", svgNumber(offset, kDecimals)) +
         attribute("stop-color", colourText(colour)) + (hidden ? " stop-opacity=\"0\"" : "") + "/>";
}

/// A gradient that ends is written longer than it is: of two stops at its very end cairo, and with it what
/// Inkscape writes as PDF, keeps the inner one alone.
struct Lengthening {
  double before = 0, behind = 0;

  [[nodiscard]] double place(double offset) const { return (offset + before) / (1 + before + behind); }
};

/// The parts before the first and behind the last stop, where the colour does not go on.
QByteArray stopsText(const std::vector<GradientStop>& stops, bool before, bool behind) {
  QByteArray text;
  if (!before && !stops.empty()) text += stopText(stops.front().offset, stops.front().colour, true);
  for (const GradientStop& stop : stops) text += stopText(stop.offset, stop.colour);
  if (!behind && !stops.empty()) text += stopText(stops.back().offset, stops.back().colour, true);
  return text;
}

/// Circles stay circles, and right angles right.
bool isSimilarity(const AffineTransform& m) {
  const double size = std::abs(m.m11()) + std::abs(m.m12()) + std::abs(m.m21()) + std::abs(m.m22());
  const double slack = size * 1e-4;
  return (std::abs(m.m11() - m.m22()) < slack && std::abs(m.m12() + m.m21()) < slack) ||
         (std::abs(m.m11() + m.m22()) < slack && std::abs(m.m12() - m.m21()) < slack);
}

QByteArray coordinate(const char* name, double value) {
  return attribute(name, svgNumber(value, kDecimals));
}

QByteArray transformText(const AffineTransform& matrix) {
  const QByteArray text = svgTransform(matrix, kDecimals);
  return text.isEmpty() ? QByteArray() : attribute("gradientTransform", text);
}

struct Circle {
  double x = 0, y = 0, radius = 0;
};

bool isUsable(const Circle& circle) {
  return std::isfinite(circle.x) && std::isfinite(circle.y) && std::isfinite(circle.radius) &&
         circle.radius >= 0;
}

}  // namespace

QByteArray colourText(const Rgb& colour) {
  const auto byte = [](double value) { return int(std::lround(std::clamp(value, 0.0, 1.0) * 255)); };
  const int parts[3] = {byte(colour.red), byte(colour.green), byte(colour.blue)};
  const bool isShort = std::all_of(parts, parts + 3, [](int part) { return part % 17 == 0; });
  QByteArray text = "#";
  for (const int part : parts)
    text += isShort ? QByteArray::number(part / 17, 16) : QByteArray::number(part + 256, 16).mid(1);
  return text;
}

std::vector<GradientStop> gradientStops(const std::function<Rgb(double)>& colourAt) {
  std::vector<Rgb> all(kPlaces + 1);
  for (size_t i = 0; i <= kPlaces; ++i) all[i] = colourAt(double(i) / kPlaces);
  std::vector<size_t> kept{0};
  keepPlaces(all, 0, kPlaces, kept);
  std::vector<GradientStop> stops;
  for (size_t i = 0; i < kept.size(); ++i) {
    const double offset = double(kept[i]) / kPlaces;
    if (i > 0 && kept[i] == kept[i - 1] + 1 && distance(all[kept[i]], all[kept[i - 1]]) > kStep) {
      const double step =
          placeOfStep(colourAt, double(kept[i - 1]) / kPlaces, offset, all[kept[i - 1]], all[kept[i]]);
      // The places beside it give way, unless something ends there.
      if (kept[i - 1] > 0)
        stops.back().offset = step;
      else
        stops.push_back({step, all[kept[i - 1]]});
      stops.push_back({step, all[kept[i]]});
      if (kept[i] < kPlaces) continue;
    }
    stops.push_back({offset, all[kept[i]]});
  }
  return stops;
}

std::optional<QByteArray> axialGradient(GfxAxialShading& shading, const AffineTransform& matrix) {
  double x0, y0, x1, y1;
  shading.getCoords(&x0, &y0, &x1, &y1);
  if (!std::isfinite(x0 + y0 + x1 + y1) || !matrix.isFinite()) return std::nullopt;
  auto stops = gradientStops([&](double place) { return rgbOf(shading, place); });
  const Lengthening longer{shading.getExtend0() ? 0 : kBeyond, shading.getExtend1() ? 0 : kBeyond};
  for (GradientStop& stop : stops) stop.offset = longer.place(stop.offset);
  const bool straight = isSimilarity(matrix);
  const QPointF along(x1 - x0, y1 - y0);
  const QPointF first = QPointF(x0, y0) - longer.before * along,
                last = QPointF(x1, y1) + longer.behind * along;
  const QPointF from = straight ? matrix.map(first) : first, to = straight ? matrix.map(last) : last;
  return "<linearGradient gradientUnits=\"userSpaceOnUse\"" + coordinate("x1", from.x()) +
         coordinate("y1", from.y()) + coordinate("x2", to.x()) + coordinate("y2", to.y()) +
         (straight ? QByteArray() : transformText(matrix)) + '>' +
         stopsText(stops, shading.getExtend0(), shading.getExtend1()) + "</linearGradient>";
}

// SVG counts from a point to a circle around it: the circles that grow from the smaller to the larger one are
// followed back to the point that they come from. Where the smaller does not lie in the larger there is none.
std::optional<QByteArray> radialGradient(GfxRadialShading& shading, const AffineTransform& matrix) {
  Circle inner, outer;
  shading.getCoords(&inner.x, &inner.y, &inner.radius, &outer.x, &outer.y, &outer.radius);
  if (!isUsable(inner) || !isUsable(outer) || !matrix.isFinite()) return std::nullopt;
  bool within = shading.getExtend0(), beyond = shading.getExtend1();
  const bool shrinks = inner.radius > outer.radius;
  if (shrinks) {
    std::swap(inner, outer);
    std::swap(within, beyond);
  }
  const double grown = outer.radius - inner.radius;
  if (grown <= 0 || std::hypot(outer.x - inner.x, outer.y - inner.y) >= grown * 0.999) return std::nullopt;
  const double point = -inner.radius / grown;  // where between the two the radius is none
  const double start = -point / (1 - point);
  auto stops = gradientStops([&](double place) { return rgbOf(shading, shrinks ? 1 - place : place); });
  const Lengthening longer{0, beyond ? 0 : kBeyond};
  for (GradientStop& stop : stops) stop.offset = longer.place(start + stop.offset * (1 - start));

  const bool straight = isSimilarity(matrix);
  const QPointF focus(inner.x + point * (outer.x - inner.x), inner.y + point * (outer.y - inner.y));
  const QPointF centre = QPointF(outer.x, outer.y) + longer.behind * (QPointF(outer.x, outer.y) - focus);
  const QPointF c = straight ? matrix.map(centre) : centre, f = straight ? matrix.map(focus) : focus;
  const double scale = straight ? std::sqrt(std::abs(matrix.determinant())) : 1;
  QByteArray text = "<radialGradient gradientUnits=\"userSpaceOnUse\"" + coordinate("cx", c.x()) +
                    coordinate("cy", c.y()) + coordinate("r", outer.radius * (1 + longer.behind) * scale);
  if (focus != centre) text += coordinate("fx", f.x()) + coordinate("fy", f.y());
  if (!straight) text += transformText(matrix);
  return text + '>' + stopsText(stops, within || start == 0, beyond) + "</radialGradient>";
}

}  // namespace norvex::engine
