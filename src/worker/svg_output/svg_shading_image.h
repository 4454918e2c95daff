// Gradients that SVG does not have, meshes and functions of the place, as pixels.
#pragma once

#include <QRectF>

#include <optional>

#include "base/affine_transform.h"
#include "base/result.h"
#include "worker/svg_output/svg_pixels.h"

class GfxFunctionShading;
class GfxGouraudTriangleShading;
class GfxPatchMeshShading;
class GfxRadialShading;

namespace norvex::engine {

struct ShadingImage {
  SvgPixels pixels;
  AffineTransform toPage;  ///< pixels, y down → the page's coordinates
  double dpi = 0;
};

/// The part of the mesh within `part` of the page; transparent beside it. `matrix` maps the shading's space
/// to the page. Nothing where there are no pixels or no memory for them.
[[nodiscard]] std::optional<ShadingImage> triangleImage(GfxGouraudTriangleShading& shading,
                                                        const AffineTransform& matrix, const QRectF& part);
[[nodiscard]] std::optional<ShadingImage> patchImage(GfxPatchMeshShading& shading,
                                                     const AffineTransform& matrix, const QRectF& part);
/// Two circles neither of which lies in the other.
[[nodiscard]] std::optional<ShadingImage> circlesImage(GfxRadialShading& shading,
                                                       const AffineTransform& matrix, const QRectF& part);
/// The function's whole domain.
[[nodiscard]] std::optional<ShadingImage> functionImage(GfxFunctionShading& shading,
                                                        const AffineTransform& matrix);

}  // namespace norvex::engine
