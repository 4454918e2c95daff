#include "worker/svg_output/svg_device_state.h"

#include <algorithm>
#include <cmath>

#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {

AffineTransform pageMatrix(GfxState* state) {
  const double* m = state->getCTM();
  return {m[0], m[1], m[2], m[3], m[4], m[5]};
}

double evenScale(const AffineTransform& m) {
  const double across = std::hypot(m.m11(), m.m12()), up = std::hypot(m.m21(), m.m22());
  const double skew = m.m11() * m.m21() + m.m12() * m.m22();
  const double slack = 1e-3 * std::max(across, up);
  if (!std::isfinite(across + up) || std::abs(across - up) > slack || std::abs(skew) > slack * across)
    return 0;
  return (across + up) / 2;
}

double lineReach(GfxState* state, double scale) {
  const double half = std::max(state->getLineWidth() * (scale > 0 ? scale : 1), 1.0) / 2;
  const double miter = state->getLineJoin() == 0 ? std::clamp(state->getMiterLimit(), 1.0, 100.0) : 1;
  return half * std::max(miter, 1.5);
}

QRectF grown(const QRectF& rect, double by) {
  return rect.adjusted(-by, -by, by, by);
}

Rgb fillColour(GfxState* state) {
  GfxRGB rgb{};
  state->getFillRGB(&rgb);
  return {colToDbl(rgb.r), colToDbl(rgb.g), colToDbl(rgb.b)};
}

QByteArray blendName(GfxBlendMode mode) {
  switch (mode) {
    case gfxBlendMultiply:
      return "multiply";
    case gfxBlendScreen:
      return "screen";
    case gfxBlendOverlay:
      return "overlay";
    case gfxBlendDarken:
      return "darken";
    case gfxBlendLighten:
      return "lighten";
    case gfxBlendColorDodge:
      return "color-dodge";
    case gfxBlendColorBurn:
      return "color-burn";
    case gfxBlendHardLight:
      return "hard-light";
    case gfxBlendSoftLight:
      return "soft-light";
    case gfxBlendDifference:
      return "difference";
    case gfxBlendExclusion:
      return "exclusion";
    case gfxBlendHue:
      return "hue";
    case gfxBlendSaturation:
      return "saturation";
    case gfxBlendColor:
      return "color";
    case gfxBlendLuminosity:
      return "luminosity";
    default:
      return {};
  }
}

QByteArray opacityText(const char* name, double opacity) {
  if (opacity >= 1) return {};
  return attribute(name, svgNumber(std::max(0.0, opacity), 4));
}

}  // namespace norvex::engine
