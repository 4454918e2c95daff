// Tiling patterns and gradients.
#include <Gfx.h>
#include <GfxState.h>

#include <algorithm>
#include <cmath>

#include "protocol/limits.h"
#include "worker/svg_output/svg_device.h"
#include "worker/svg_output/svg_device_state.h"
#include "worker/svg_output/svg_path.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr int kTileDecimals = 6;  // errors add up from tile to tile
constexpr double kSameLength = 1e-3;

QByteArray rectangleText(const QRectF& rect) {
  return attribute("x", svgNumber(rect.x(), kTileDecimals)) +
         attribute("y", svgNumber(rect.y(), kTileDecimals)) +
         attribute("width", svgNumber(rect.width(), kTileDecimals)) +
         attribute("height", svgNumber(rect.height(), kTileDecimals));
}

bool isUpright(const AffineTransform& m) {
  const double slack = 1e-6 * (std::abs(m.m11()) + std::abs(m.m22()));
  return std::abs(m.m12()) <= slack && std::abs(m.m21()) <= slack;
}

/// Of what is filled with a pattern Poppler draws nothing beyond the clip of the moment, where the cell at
/// the pattern's origin may be.
bool holdsPatterns(GfxTilingPattern& pattern) {
  Dict* const resources = pattern.getResDict();
  return resources && (resources->lookup("Pattern").isDict() || resources->lookup("Shading").isDict());
}

}  // namespace

// ---- what a clip leaves is painted --------------------------------------------------------------------

// Poppler clips to what is to be painted. The innermost clip that is no rectangle becomes the painted path.
void SvgDevice::paintClip(GfxState* state, const QByteArray& definition) {
  flushText();
  SvgPlace where = place(state);
  const QByteArray paint = reference(definition);
  if (where.clips.isEmpty()) {
    const QRectF page(QPointF(0, 0), sheet_.page());
    sheet_.addPath(rectanglePath(page, sheet_.decimals()),
                   attribute("fill", paint) + opacityText("fill-opacity", state->getFillOpacity()), {}, false,
                   page, where);
    return;
  }
  const auto shaped = std::find_if(where.clips.rbegin(), where.clips.rend(),
                                   [](const auto& clip) { return !clip->isRectangle; });
  const qsizetype at =
      shaped == where.clips.rend() ? where.clips.size() - 1 : where.clips.rend() - shaped - 1;
  const std::shared_ptr<const SvgClip> clip = where.clips.takeAt(at);
  if (!clip->stroke.isEmpty()) {
    sheet_.addPath(clip->path, {},
                   attribute("stroke", paint) + opacityText("stroke-opacity", state->getStrokeOpacity()) +
                       (clip->stroke == " " ? QByteArray() : clip->stroke),
                   false, clip->bounds, where);
    return;
  }
  sheet_.addPath(clip->path,
                 attribute("fill", paint) + opacityText("fill-opacity", state->getFillOpacity()) +
                     (clip->evenOdd ? attribute("fill-rule", "evenodd") : QByteArray()),
                 {}, false, clip->bounds, where);
}

QRectF SvgDevice::clipBounds(GfxState* state) const {
  double left, top, right, bottom;
  state->getClipBBox(&left, &top, &right, &bottom);
  return QRectF(QPointF(left, top), QPointF(right, bottom)).intersected(QRectF(QPointF(0, 0), sheet_.page()));
}

// ---- gradients ----------------------------------------------------------------------------------------

bool SvgDevice::axialShadedFill(GfxState* state, GfxAxialShading* shading, double, double) {
  if (const auto gradient = axialGradient(*shading, pageMatrix(state)))
    paintClip(state, sheet_.define(*gradient));
  return true;
}

bool SvgDevice::radialShadedFill(GfxState* state, GfxRadialShading* shading, double, double) {
  if (const auto gradient = radialGradient(*shading, pageMatrix(state)))
    paintClip(state, sheet_.define(*gradient));
  else
    placeShading(state, circlesImage(*shading, pageMatrix(state), clipBounds(state)));
  return true;
}

bool SvgDevice::functionShadedFill(GfxState* state, GfxFunctionShading* shading) {
  placeShading(state, functionImage(*shading, pageMatrix(state)));
  return true;
}

bool SvgDevice::gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) {
  placeShading(state, triangleImage(*shading, pageMatrix(state), clipBounds(state)));
  return true;
}

bool SvgDevice::patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) {
  placeShading(state, patchImage(*shading, pageMatrix(state), clipBounds(state)));
  return true;
}

void SvgDevice::placeShading(GfxState* state, const std::optional<ShadingImage>& image) {
  flushText();
  if (!image) return;
  const auto defined = images_.define(image->pixels);
  if (!defined) return;
  const QRectF bounds = image->toPage.mapRect(QRectF(0, 0, image->pixels.width, image->pixels.height));
  const QRectF shown = bounds.intersected(clipBounds(state));
  if (shown.isEmpty()) return;
  ++rasterised_.regions;
  rasterised_.area += shown.width() * shown.height();
  rasterised_.dpi = rasterised_.dpi > 0 ? std::min(rasterised_.dpi, image->dpi) : image->dpi;
  sheet_.add("<use" + attribute("xlink:href", '#' + defined->name) +
                 opacityText("opacity", state->getFillOpacity()) +
                 attribute("transform", svgTransform(image->toPage, 4)) + "/>",
             false, bounds, place(state));
}

// ---- tiles --------------------------------------------------------------------------------------------

// The cell at the pattern's origin, as it lies on the page. Its box is the first clip of all that is in it.
SvgLayer SvgDevice::drawnCell(GfxState* state, Gfx* gfx, GfxTilingPattern* pattern, const double* matrix,
                              bool clipped) {
  flushText();
  const size_t depth = states_.size();
  states_.push_back(states_.back());
  states_.back().mask.clear();  // mask and blending are those of what is filled
  const GfxBlendMode blending = state->getBlendMode();
  state->setBlendMode(gfxBlendNormal);
  sheet_.beginLayer(states_.back().clips.size() + (clipped ? 0 : 1), true);
  gfx->drawForm(pattern->getContentStream(), pattern->getResDict(), matrix, pattern->getBBox());
  flushText();
  SvgLayer cell = sheet_.endLayer();
  state->setBlendMode(blending);
  states_.resize(depth);
  return cell;
}

// Each cell is placed by itself: they overlap, or stand apart.
void SvgDevice::repeatCell(GfxState* state, const SvgLayer& cell, const AffineTransform& matrix,
                           const QRect& cells, double xStep, double yStep) {
  const AffineTransform linear(matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), 0, 0);
  const QByteArray name = sheet_.define("<g>\n" + cell.body + "</g>");
  for (int y = cells.top(); y < cells.top() + cells.height(); ++y)
    for (int x = cells.left(); x < cells.left() + cells.width(); ++x) {
      const QPointF by = linear.map({x * xStep, y * yStep});
      sheet_.add("<use" + attribute("xlink:href", '#' + name) + attribute("x", svgNumber(by.x(), 4)) +
                     attribute("y", svgNumber(by.y(), 4)) + "/>",
                 false, cell.bounds.translated(by), place(state));
    }
}

void SvgDevice::paintPattern(GfxState* state, const SvgLayer& cell, const AffineTransform& matrix,
                             const QRectF& tile) {
  constexpr char kStart[] = "<pattern patternUnits=\"userSpaceOnUse\"";
  // A tile's content counts from the tile's own corner. Its space is that of the page, or one that is turned
  // and not mirrored, which Inkscape does not write as PDF.
  const bool upright = isUpright(matrix), mirrored = matrix.determinant() < 0;
  const AffineTransform space = upright    ? AffineTransform()
                                : mirrored ? AffineTransform::fromScale(1, -1) * matrix
                                           : matrix;
  const QRectF place = (matrix * space.inverted()).mapRect(tile);
  const AffineTransform toTile = space.inverted() * AffineTransform::fromTranslate(-place.x(), -place.y());
  const QByteArray element =
      kStart + rectangleText(place) +
      (upright ? QByteArray() : attribute("patternTransform", svgTransform(space, kTileDecimals))) + ">\n<g" +
      attribute("transform", svgTransform(toTile, kTileDecimals)) + ">\n" + cell.body + "</g></pattern>";
  paintClip(state, sheet_.define(element));
}

bool SvgDevice::tilingPatternFill(GfxState* state, Gfx* gfx, Catalog*, GfxTilingPattern* pattern,
                                  const double* m, int x0, int y0, int x1, int y1, double xStep,
                                  double yStep) {
  const AffineTransform matrix = AffineTransform(m[0], m[1], m[2], m[3], m[4], m[5]) * pageMatrix(state);
  if (!matrix.isFinite() || !matrix.isInvertible() || mustStop()) return true;
  const double* box = pattern->getBBox();
  const double width = box[2] - box[0], height = box[3] - box[1];
  const double across = std::abs(xStep), up = std::abs(yStep);
  const bool abuts =
      std::abs(width - across) < kSameLength * across && std::abs(height - up) < kSameLength * up;
  const double count = (double(x1) - x0) * (double(y1) - y0);
  if (count <= limits::maximumSvgCells && holdsPatterns(*pattern) &&
      !clipBounds(state).contains(matrix.mapRect(QRectF(box[0], box[1], width, height))))
    return false;  // Poppler draws each cell
  const bool oneByOne = count <= 1 || (!abuts && count <= limits::maximumSvgCells);
  // A tile as large as the cell's box clips by itself.
  const SvgLayer cell = drawnCell(state, gfx, pattern, m, oneByOne || !abuts);
  if (cell.elements == 0) return true;
  if (oneByOne)
    repeatCell(state, cell, matrix, QRect(x0, y0, x1 - x0, y1 - y0), xStep, yStep);
  else
    paintPattern(state, cell, matrix, QRectF(box[0], box[1], across, up));
  return true;
}

}  // namespace norvex::engine
