// An SVG picture as a one-page PDF.
#pragma once

#include <QByteArray>
#include <QSizeF>

#include "platform/result.h"
#include "worker/engine/svg_renderer.h"

namespace norvex::engine {

/// A page of exactly the picture's size in points. Vectors stay vectors and text stays text; what is drawn through a
/// filter or a mask becomes an image, and `hasImageEffects` says that there is such a thing. The same picture gives
/// the same bytes.
[[nodiscard]] Result<QByteArray> svgToPdf(const SvgRenderer& renderer, const QSizeF& pixels, bool hasImageEffects);

/// Pixels an inch of the images of filters and masks in that page.
[[nodiscard]] double svgEffectsDpi(const QSizeF& pixels);

}  // namespace norvex::engine
