// Images and stencils.
#include <GfxState.h>
#include <Stream.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "worker/svg_output/svg_device.h"
#include "worker/svg_output/svg_device_state.h"
#include "worker/svg_output/svg_path.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr double kLargePixel = 2;  // points: from there on a pixel is seen as what it is, a square
constexpr double kMostPixels = 250'000;
constexpr int kMostTimes = 500;
constexpr int kPlaceDecimals = 4;
constexpr Rgb kWhite{1, 1, 1};

// The image's pixels, y down → page.
AffineTransform pixelMatrix(GfxState* state, QSize size) {
  return AffineTransform(1.0 / size.width(), 0, 0, -1.0 / size.height(), 0, 1) * pageMatrix(state);
}

/// How often a pixel is repeated: readers of SVG smooth what is enlarged, whatever they are asked to do.
int enlargement(GfxState* state, int width, int height, bool interpolate) {
  if (interpolate || width < 1 || height < 1) return 1;
  const AffineTransform page = pageMatrix(state);
  const double pixel =
      std::min(std::hypot(page.m11(), page.m12()) / width, std::hypot(page.m21(), page.m22()) / height);
  if (!(pixel > kLargePixel)) return 1;
  // The same wherever the image is shown: it is there once.
  return std::clamp(int(std::sqrt(kMostPixels / (double(width) * height))), 1, kMostTimes);
}

QByteArray useText(const DefinedImage& image, const AffineTransform& matrix, const QByteArray& opacity) {
  const QByteArray transform = svgTransform(matrix, kPlaceDecimals);
  return "<use" + attribute("xlink:href", '#' + image.name) + opacity +
         (transform.isEmpty() ? QByteArray() : attribute("transform", transform)) + "/>";
}

}  // namespace

void SvgDevice::placeImage(GfxState* state, const std::optional<DefinedImage>& image) {
  flushText();
  if (!image || !pageMatrix(state).isFinite()) return;
  sheet_.add(
      useText(*image, pixelMatrix(state, image->size), opacityText("opacity", state->getFillOpacity())),
      false, pageMatrix(state).mapRect(QRectF(0, 0, 1, 1)), place(state));
}

void SvgDevice::drawImage(GfxState* state, Object* reference, Stream* data, int width, int height,
                          GfxImageColorMap* colours, bool interpolate, const int* maskColours,
                          bool isInline) {
  placeImage(state, images_.image({reference, data, width, height, colours, false, isInline,
                                   enlargement(state, width, height, interpolate)},
                                  maskColours));
}

void SvgDevice::drawMaskedImage(GfxState* state, Object* reference, Stream* data, int width, int height,
                                GfxImageColorMap* colours, bool interpolate, Stream* mask, int maskWidth,
                                int maskHeight, bool maskInvert, bool) {
  placeImage(state, images_.maskedImage({reference, data, width, height, colours, false, false,
                                         enlargement(state, width, height, interpolate)},
                                        {nullptr, mask, maskWidth, maskHeight, nullptr, maskInvert}));
}

void SvgDevice::drawSoftMaskedImage(GfxState* state, Object* reference, Stream* data, int width, int height,
                                    GfxImageColorMap* colours, bool interpolate, Stream* mask, int maskWidth,
                                    int maskHeight, GfxImageColorMap* maskColours, bool) {
  placeImage(state, images_.maskedImage({reference, data, width, height, colours, false, false,
                                         enlargement(state, width, height, interpolate)},
                                        {nullptr, mask, maskWidth, maskHeight, maskColours}));
}

void SvgDevice::drawImageMask(GfxState* state, Object* reference, Stream* data, int width, int height,
                              bool invert, bool interpolate, bool isInline) {
  placeImage(state, images_.stencil({reference, data, width, height, nullptr, invert, isInline,
                                     enlargement(state, width, height, interpolate)},
                                    fillColour(state)));
}

// What is painted next, a pattern, shows through the stencil.
void SvgDevice::setSoftMaskFromImageMask(GfxState* state, Object* reference, Stream* data, int width,
                                         int height, bool invert, bool isInline, double*) {
  flushText();
  maskedBefore_.push_back(states_.back().mask);
  const auto image = images_.stencil(
      {reference, data, width, height, nullptr, invert, isInline, enlargement(state, width, height, false)},
      kWhite);
  const QByteArray area = attribute("x", "0") + attribute("y", "0") +
                          attribute("width", svgNumber(sheet_.page().width(), sheet_.decimals())) +
                          attribute("height", svgNumber(sheet_.page().height(), sheet_.decimals()));
  states_.back().mask = sheet_.define(
      "<mask maskUnits=\"userSpaceOnUse\"" + area + '>' +
      (image ? useText(*image, pixelMatrix(state, image->size), {}) : QByteArray()) + "</mask>");
}

void SvgDevice::unsetSoftMaskFromImageMask(GfxState*, double*) {
  flushText();
  if (maskedBefore_.empty()) return;
  states_.back().mask = std::move(maskedBefore_.back());
  maskedBefore_.pop_back();
}

}  // namespace norvex::engine
