#include "worker/svg_output/svg_device.h"

#include <GfxState.h>

#include <algorithm>
#include <cmath>

#include "worker/svg_output/svg_device_state.h"
#include "worker/svg_output/svg_path.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr int kWidthDecimals = 4;
constexpr double kHairline = 0.25;  // points: screens show every line, and SVG has no least width of its own

// A clip that leaves nothing: far away from everything.
const QRectF kNowhere(-1e9, -1e9, 0, 0);

const char* joinName(int join) {
  return join == 1 ? "round" : "bevel";
}

const char* capName(int cap) {
  return cap == 1 ? "round" : "square";
}

QByteArray dashText(GfxState* state, double scale) {
  double start = 0;
  const std::vector<double>& dashes = state->getLineDash(&start);
  const bool isDashed = !dashes.empty() && std::all_of(dashes.begin(), dashes.end(), [](double d) {
    return std::isfinite(d) && d >= 0;
  }) && std::any_of(dashes.begin(), dashes.end(), [](double d) { return d > 0; });
  if (!isDashed) return {};
  QByteArray text;
  for (const double dash : dashes)
    text += (text.isEmpty() ? "" : " ") + svgNumber(dash * scale, kWidthDecimals);
  QByteArray attributes = attribute("stroke-dasharray", text);
  if (start != 0) attributes += attribute("stroke-dashoffset", svgNumber(start * scale, kWidthDecimals));
  return attributes;
}

}  // namespace

SvgDevice::SvgDevice(SvgSheet& sheet, const PictureLimits& limits, const CancelToken& cancel, bool keepText,
                     qsizetype mostGlyphs)
    : sheet_(sheet), cancel_(cancel), images_(sheet, limits), mostGlyphs_(mostGlyphs) {
  if (keepText) lines_.emplace(sheet);
}

void SvgDevice::startPage(int, GfxState*, XRef* references) {
  objects_ = references;
}

void SvgDevice::endPage() {
  flushText();
}

void SvgDevice::saveState(GfxState*) {
  states_.push_back(states_.back());
}

void SvgDevice::restoreState(GfxState*) {
  if (states_.size() > 1) states_.pop_back();
}

SvgPlace SvgDevice::place(GfxState* state) const {
  return {states_.back().clips, blendName(state->getBlendMode()), states_.back().mask};
}

QByteArray SvgDevice::fillPaint(GfxState* state) const {
  return attribute("fill", colourText(fillColour(state))) +
         opacityText("fill-opacity", state->getFillOpacity());
}

QByteArray SvgDevice::strokePaint(GfxState* state) const {
  GfxRGB rgb{};
  state->getStrokeRGB(&rgb);
  return attribute("stroke", colourText({colToDbl(rgb.r), colToDbl(rgb.g), colToDbl(rgb.b)})) +
         opacityText("stroke-opacity", state->getStrokeOpacity());
}

// `scale`: what a unit of the line's space is on the page.
QByteArray SvgDevice::lineAttributes(GfxState* state, double scale) const {
  const double width = std::max(state->getLineWidth() * scale, kHairline);
  QByteArray text = attribute("stroke-width", svgNumber(width, kWidthDecimals));
  if (text == " stroke-width=\"1\"") text.clear();
  if (state->getLineCap() != 0) text += attribute("stroke-linecap", capName(state->getLineCap()));
  if (state->getLineJoin() != 0)
    text += attribute("stroke-linejoin", joinName(state->getLineJoin()));
  else if (state->getMiterLimit() != 10)
    text += attribute("stroke-miterlimit", svgNumber(std::max(1.0, state->getMiterLimit()), 2));
  return text + dashText(state, scale);
}

// ---- painting -----------------------------------------------------------------------------------------

void SvgDevice::fillPath(GfxState* state, bool evenOdd) {
  flushText();
  const SvgPath path = svgPath(*state->getPath(), pageMatrix(state), sheet_.decimals());
  QByteArray paint = fillPaint(state);
  if (evenOdd) paint += attribute("fill-rule", "evenodd");
  sheet_.addPath(path.data, paint, {}, false, path.bounds, place(state));
}

void SvgDevice::fill(GfxState* state) {
  fillPath(state, false);
}

void SvgDevice::eoFill(GfxState* state) {
  fillPath(state, true);
}

void SvgDevice::stroke(GfxState* state) {
  flushText();
  const AffineTransform matrix = pageMatrix(state);
  const double scale = evenScale(matrix);
  if (scale == 0) {
    strokeBent(state, *state->getPath(), place(state));
    return;
  }
  const SvgPath path = svgPath(*state->getPath(), matrix, sheet_.decimals());
  const QByteArray paint = strokePaint(state) + lineAttributes(state, scale);
  sheet_.addPath(path.data, {}, paint, state->getStrokeOpacity() == 1,
                 grown(path.bounds, lineReach(state, scale)), place(state));
}

// A line that is wider in one direction than in the other: it is drawn before it is stretched.
void SvgDevice::strokeBent(GfxState* state, const GfxPath& path, const SvgPlace& place) {
  const AffineTransform matrix = pageMatrix(state);
  if (!matrix.isFinite() || !matrix.isInvertible()) return;
  // The path in units of about a point, so that its decimals are those of the page.
  const double unit = std::sqrt(std::abs(matrix.determinant()));
  const AffineTransform even = AffineTransform::fromScale(unit, unit);
  const SvgPath drawn = svgPath(path, even, sheet_.decimals() + 1);
  const AffineTransform rest = AffineTransform::fromScale(1 / unit, 1 / unit) * matrix;
  const QRectF bounds = rest.mapRect(grown(drawn.bounds, lineReach(state, unit)));
  if (drawn.data.isEmpty()) return;
  sheet_.add("<path fill=\"none\"" + strokePaint(state) + lineAttributes(state, unit) +
                 attribute("transform", svgTransform(rest, 4)) + attribute("d", drawn.data) + "/>",
             false, bounds, place);
}

// ---- clips --------------------------------------------------------------------------------------------

void SvgDevice::addClip(GfxState* state, bool evenOdd, const QByteArray& stroke) {
  const AffineTransform matrix = pageMatrix(state);
  SvgPath path = svgPath(*state->getPath(), matrix, sheet_.decimals());
  if (path.data.isEmpty()) path = {{}, kNowhere, true};
  QRectF bounds = path.bounds;
  if (!stroke.isEmpty()) bounds = grown(bounds, lineReach(state, evenScale(matrix)));
  states_.back().clips << std::make_shared<const SvgClip>(
      SvgClip{path.data, evenOdd, bounds, path.isRectangle && stroke.isEmpty(), stroke});
}

void SvgDevice::clip(GfxState* state) {
  flushText();
  addClip(state, false, {});
}

void SvgDevice::eoClip(GfxState* state) {
  flushText();
  addClip(state, true, {});
}

void SvgDevice::clipToStrokePath(GfxState* state) {
  flushText();
  const double scale = evenScale(pageMatrix(state));
  const double unit = scale != 0 ? scale : std::sqrt(std::abs(pageMatrix(state).determinant()));
  const QByteArray line = lineAttributes(state, unit);
  addClip(state, false, line.isEmpty() ? QByteArray(" ") : line);
}

}  // namespace norvex::engine
