// Axial and radial shadings as gradients of SVG: their functions become stops.
#pragma once

#include <QByteArray>

#include <functional>
#include <optional>
#include <vector>

#include "base/affine_transform.h"

class GfxAxialShading;
class GfxRadialShading;

namespace norvex::engine {

struct Rgb {
  double red = 0, green = 0, blue = 0;  ///< 0 … 1
};

struct GradientStop {
  double offset = 0;  ///< 0 … 1
  Rgb colour;
};

/// As few stops as give `colourAt` (0 … 1) again by straight lines between them; a step becomes two stops at
/// one place.
[[nodiscard]] std::vector<GradientStop> gradientStops(const std::function<Rgb(double)>& colourAt);

/// #rgb or #rrggbb.
[[nodiscard]] QByteArray colourText(const Rgb& colour);

/// The definition's element, in the page's coordinates, without an id; `matrix` maps the shading's space to
/// them. Nothing: the shading is not drawable or SVG has no such gradient.
[[nodiscard]] std::optional<QByteArray> axialGradient(GfxAxialShading& shading,
                                                      const AffineTransform& matrix);
[[nodiscard]] std::optional<QByteArray> radialGradient(GfxRadialShading& shading,
                                                       const AffineTransform& matrix);

}  // namespace norvex::engine
