// The parts of Poppler's graphics state that are asked for in more than one place.
#pragma once

#include <GfxState.h>

#include <QByteArray>
#include <QRectF>

#include "base/affine_transform.h"
#include "worker/svg_output/svg_gradient.h"

namespace norvex::engine {

/// User space → the page: points, y down.
[[nodiscard]] AffineTransform pageMatrix(GfxState* state);
/// How much larger a length becomes, where that is the same in every direction; 0 where it is not.
[[nodiscard]] double evenScale(const AffineTransform& matrix);
/// How far a line's paint reaches beyond its path, miters and square ends included.
[[nodiscard]] double lineReach(GfxState* state, double scale);
[[nodiscard]] QRectF grown(const QRectF& rect, double by);
[[nodiscard]] Rgb fillColour(GfxState* state);
/// Of mix-blend-mode; empty for the normal one.
[[nodiscard]] QByteArray blendName(GfxBlendMode mode);
/// The attribute, or nothing for 1.
[[nodiscard]] QByteArray opacityText(const char* name, double opacity);

}  // namespace norvex::engine
