// An SVG picture as a one-page PDF.
#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

#include "base/result.h"
#include "protocol/worker_protocol.h"
#include "worker/svg/svg_renderer.h"

namespace norvex::engine {

/// The parts of a picture that cannot stay what they are in a PDF.
struct SvgImageEffects {
  bool any = false;             ///< there are filters or masks
  double morphologyRadius = 0;  ///< the largest by which a filter thickens or thins, in pixels
  bool stretchedText = false;   ///< text is drawn under a transform that is more than a similarity
  double userScale = 1;         ///< pixels a user unit, as far as the view box tells
  double largestFont = 0;       ///< user units, as SvgTextSizes counts it; 0: there is no text
};

/// A page of exactly the picture's size in points. Vectors stay vectors and text stays text, but for outlines
/// where text is stretched. The same picture with the same attributes gives the same bytes.
[[nodiscard]] Result<QByteArray> svgToPdf(const SvgRenderer& renderer, const QSizeF& pixels,
                                          const SvgImageEffects& effects,
                                          const std::optional<PdfAttributes>& attributes = {});

/// Pixels an inch of the images of filters and masks in that page: 300, fewer where the images would be too
/// large or where a filter's radius would be out of the renderer's reach.
[[nodiscard]] double svgEffectsDpi(const QSizeF& pixels, const SvgImageEffects& effects);

}  // namespace norvex::engine
