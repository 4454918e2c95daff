#include "worker/examine/page_findings.h"

#include <algorithm>
#include <cmath>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

/// Points beyond the page's box that nobody sees.
constexpr double kOutsideSlack = 1;
/// Black text larger than this is meant to knock out.
constexpr double kSmallBlackText = 12;

bool isTold(const QRectF& rect) {
  const auto far = [](double n) { return !std::isfinite(n) || std::abs(n) > limits::maximumPoints / 2; };
  return !far(rect.left()) && !far(rect.right()) && !far(rect.top()) && !far(rect.bottom());
}

void keepLeast(std::optional<Measured>& kept, double value, const QRectF& rect) {
  if (std::isfinite(value) && value >= 0 && (!kept || value < kept->value)) kept = Measured{value, rect};
}

void keepMost(std::optional<Measured>& kept, double value, const QRectF& rect) {
  if (std::isfinite(value) && value >= 0 && (!kept || value > kept->value)) kept = Measured{value, rect};
}

}  // namespace

// A line or a point has no area, and is there all the same.
std::optional<QRectF> PageFindings::shown(const GraphicsState& state, const QRectF& rect) const {
  const double left = std::max(rect.left(), state.clip.left()),
               right = std::min(rect.right(), state.clip.right());
  const double top = std::max(rect.top(), state.clip.top()),
               bottom = std::min(rect.bottom(), state.clip.bottom());
  if (!(left <= right && top <= bottom)) return std::nullopt;
  const QRectF part(QPointF(left, top), QPointF(right, bottom));
  return isTold(part) ? std::optional(part) : std::nullopt;
}

void PageFindings::noteModel(ColourModel model, const QRectF& where) {
  if (model == ColourModel::Rgb && !contents_.rgb) contents_.rgb = where;
  if (model == ColourModel::Cmyk && !contents_.cmyk) contents_.cmyk = where;
}

void PageFindings::paint(PaintKind kind, const GraphicsState& state, const PaintState& how,
                         const QRectF& rect) {
  const auto where = shown(state, rect);
  if (!where || !how.colour.isVisible || how.alpha <= 0) return;
  const double beyond = std::max({box_.left() - where->left(), where->right() - box_.right(),
                                  box_.top() - where->top(), where->bottom() - box_.bottom()});
  // Text is placed roughly, as its widths are not read. White that sticks out is no loss.
  if (kind != PaintKind::Text && beyond > kOutsideSlack && !how.colour.isWhite)
    keepMost(contents_.outside, beyond, *where);
  if (!box_.intersects(where->adjusted(-0.01, -0.01, 0.01, 0.01))) return;  // it is not seen
  noteModel(how.colour.model, *where);
  keepMost(contents_.mostInk, how.colour.ink, *where);
  if (how.overprints && how.colour.isWhite && how.colour.model != ColourModel::Rgb &&
      !contents_.whiteOverprint)
    contents_.whiteOverprint = where;
  if ((how.alpha < 1 || state.blends) && !contents_.transparency) contents_.transparency = where;
}

void PageFindings::line(const GraphicsState& state, double width, const QRectF& rect) {
  const auto where = shown(state, rect);
  if (where && box_.intersects(where->adjusted(-0.01, -0.01, 0.01, 0.01)) && state.stroke.alpha > 0)
    keepLeast(contents_.thinnestLine, width, *where);
}

void PageFindings::text(const GraphicsState& state, double size, const QRectF& rect) {
  const auto where = shown(state, rect);
  if (!where || !box_.intersects(*where)) return;
  keepLeast(contents_.smallestText, size, *where);
  if (state.fill.colour.isBlack && !state.fill.overprints && size <= kSmallBlackText &&
      !contents_.blackKnocksOut)
    contents_.blackKnocksOut = where;
}

void PageFindings::image(const GraphicsState& state, UsedImage image, const ColourSpace& space,
                         bool isTransparent) {
  const auto where = shown(state, image.rect);
  if (!where || where->isEmpty()) return;
  const double beyond = std::max({box_.left() - where->left(), where->right() - box_.right(),
                                  box_.top() - where->top(), where->bottom() - box_.bottom()});
  if (beyond > kOutsideSlack) keepMost(contents_.outside, beyond, *where);
  if (!box_.intersects(*where)) return;
  noteModel(space.model, *where);
  if ((isTransparent || state.fill.alpha < 1 || state.blends) && !contents_.transparency)
    contents_.transparency = where;
  image.rect = *where;
  if (contents_.images.size() < limits::maximumToldImages)
    contents_.images << std::move(image);
  else
    contents_.complete = false;
}

void PageFindings::shading(const GraphicsState& state, ColourModel model, const QRectF& rect) {
  const auto where = shown(state, rect);
  if (!where || !box_.intersects(*where)) return;
  noteModel(model, *where);
  if ((state.fill.alpha < 1 || state.blends) && !contents_.transparency) contents_.transparency = where;
}

}  // namespace norvex::engine
