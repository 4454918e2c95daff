#include "worker/svg_output/svg_shading_image.h"

#include <GfxState.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "protocol/limits.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/svg_output/svg_gradient.h"

namespace norvex::engine {
namespace {

constexpr double kDpi = 150;
constexpr int kMostPlaces = 512;  // a side, of a function: each is computed by a program of the document
constexpr int kCorners[4][2] = {{0, 0}, {0, 1}, {1, 1}, {1, 0}};

struct PatternRelease {
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using Pattern = std::unique_ptr<cairo_pattern_t, PatternRelease>;

Rgb rgbOf(GfxColorSpace* space, const GfxColor& colour) {
  GfxRGB rgb{};
  space->getRGB(&colour, &rgb);
  return {colToDbl(rgb.r), colToDbl(rgb.g), colToDbl(rgb.b)};
}

template <typename Mesh>
Rgb parameterColour(Mesh& shading, double value) {
  GfxColor colour{};
  shading.getParameterizedColor(value, &colour);
  return rgbOf(shading.getColorSpace(), colour);
}

void setCorner(const Pattern& mesh, unsigned corner, const Rgb& colour) {
  cairo_mesh_pattern_set_corner_color_rgb(mesh.get(), corner, colour.red, colour.green, colour.blue);
}

// The pixels that `pattern`, in the shading's space, paints on `part` of the page. Meshes and circles paint a
// pixel fully or not at all, so that what is premultiplied is straight as well.
std::optional<ShadingImage> painted(const Pattern& pattern, const AffineTransform& matrix,
                                    const QRectF& part) {
  if (part.isEmpty() || !matrix.isFinite()) return std::nullopt;
  const double scale =
      std::min(kDpi / 72, std::sqrt(limits::maximumSvgShadingPixels / (part.width() * part.height())));
  const QSize size(std::max(1, int(std::ceil(part.width() * scale))),
                   std::max(1, int(std::ceil(part.height() * scale))));
  RenderRequest request;
  request.pixelSize = size;
  request.pictureToDevice = matrix * AffineTransform::fromTranslate(-part.left(), -part.top()) *
                            AffineTransform::fromScale(scale, scale);
  PictureLimits limits;
  limits.megapixels = double(size.width()) * size.height() / 1e6 + 1;
  const Result<Bitmap> bitmap = paintImage(request, limits, [&](cairo_t* context) -> Result<void> {
    cairo_set_source(context, pattern.get());
    cairo_paint(context);
    return {};
  });
  if (!bitmap) return std::nullopt;
  ShadingImage image;
  image.pixels = {size.width(), size.height(), {}};
  image.pixels.argb.reserve(size_t(size.width()) * size_t(size.height()));
  for (int y = 0; y < size.height(); ++y)
    image.pixels.argb.insert(image.pixels.argb.end(), bitmap->row(y), bitmap->row(y) + size.width());
  image.toPage = AffineTransform::fromScale(1 / scale, 1 / scale) *
                 AffineTransform::fromTranslate(part.left(), part.top());
  image.dpi = scale * 72;
  return image;
}

}  // namespace

std::optional<ShadingImage> triangleImage(GfxGouraudTriangleShading& shading, const AffineTransform& matrix,
                                          const QRectF& part) {
  const Pattern mesh(cairo_pattern_create_mesh());
  for (int i = 0; i < shading.getNTriangles(); ++i) {
    double x[3], y[3];
    Rgb colours[3];
    if (shading.isParameterized()) {
      double values[3];
      shading.getTriangle(i, &x[0], &y[0], &values[0], &x[1], &y[1], &values[1], &x[2], &y[2], &values[2]);
      for (int k = 0; k < 3; ++k) colours[k] = parameterColour(shading, values[k]);
    } else {
      GfxColor found[3]{};
      shading.getTriangle(i, &x[0], &y[0], &found[0], &x[1], &y[1], &found[1], &x[2], &y[2], &found[2]);
      for (int k = 0; k < 3; ++k) colours[k] = rgbOf(shading.getColorSpace(), found[k]);
    }
    cairo_mesh_pattern_begin_patch(mesh.get());
    cairo_mesh_pattern_move_to(mesh.get(), x[0], y[0]);
    cairo_mesh_pattern_line_to(mesh.get(), x[1], y[1]);
    cairo_mesh_pattern_line_to(mesh.get(), x[2], y[2]);
    for (unsigned k = 0; k < 3; ++k) setCorner(mesh, k, colours[k]);
    cairo_mesh_pattern_end_patch(mesh.get());
  }
  return painted(mesh, matrix, part);
}

std::optional<ShadingImage> patchImage(GfxPatchMeshShading& shading, const AffineTransform& matrix,
                                       const QRectF& part) {
  const Pattern mesh(cairo_pattern_create_mesh());
  for (int i = 0; i < shading.getNPatches(); ++i) {
    const auto& [x, y, colours] = *shading.getPatch(i);
    cairo_mesh_pattern_begin_patch(mesh.get());
    cairo_mesh_pattern_move_to(mesh.get(), x[0][0], y[0][0]);
    cairo_mesh_pattern_curve_to(mesh.get(), x[0][1], y[0][1], x[0][2], y[0][2], x[0][3], y[0][3]);
    cairo_mesh_pattern_curve_to(mesh.get(), x[1][3], y[1][3], x[2][3], y[2][3], x[3][3], y[3][3]);
    cairo_mesh_pattern_curve_to(mesh.get(), x[3][2], y[3][2], x[3][1], y[3][1], x[3][0], y[3][0]);
    cairo_mesh_pattern_curve_to(mesh.get(), x[2][0], y[2][0], x[1][0], y[1][0], x[0][0], y[0][0]);
    cairo_mesh_pattern_set_control_point(mesh.get(), 0, x[1][1], y[1][1]);
    cairo_mesh_pattern_set_control_point(mesh.get(), 1, x[1][2], y[1][2]);
    cairo_mesh_pattern_set_control_point(mesh.get(), 2, x[2][2], y[2][2]);
    cairo_mesh_pattern_set_control_point(mesh.get(), 3, x[2][1], y[2][1]);
    for (unsigned corner = 0; corner < 4; ++corner) {
      const double* const values = colours[kCorners[corner][0]][kCorners[corner][1]].c;
      GfxColor colour{};
      for (int k = 0; k < gfxColorMaxComps; ++k) colour.c[k] = GfxColorComp(values[k]);
      setCorner(mesh, corner,
                shading.isParameterized() ? parameterColour(shading, values[0])
                                          : rgbOf(shading.getColorSpace(), colour));
    }
    cairo_mesh_pattern_end_patch(mesh.get());
  }
  return painted(mesh, matrix, part);
}

std::optional<ShadingImage> circlesImage(GfxRadialShading& shading, const AffineTransform& matrix,
                                         const QRectF& part) {
  double x0, y0, r0, x1, y1, r1;
  shading.getCoords(&x0, &y0, &r0, &x1, &y1, &r1);
  if (!std::isfinite(x0 + y0 + r0 + x1 + y1 + r1)) return std::nullopt;
  // Where the colour goes on, the circles do: to none, or until they are beyond everything that is seen.
  const QRectF seen = matrix.inverted().mapRect(part);
  const double reach = std::hypot(seen.width(), seen.height()) +
                       std::hypot(seen.center().x() - x0, seen.center().y() - y0) + std::abs(r0) +
                       std::abs(r1);
  const double moved = std::hypot(x1 - x0, y1 - y0), grown = r1 - r0;
  if (!(std::max(moved, std::abs(grown)) > 0)) return std::nullopt;
  const double far = 2 * reach / std::max(std::abs(grown), moved);
  double low = 0, high = 1;
  if (shading.getExtend0()) low = grown > 0 ? -r0 / grown : -far;
  if (shading.getExtend1()) high = grown < 0 ? r0 / -grown : 1 + far;
  const auto circle = [&](double place) {
    return std::array<double, 3>{x0 + place * (x1 - x0), y0 + place * (y1 - y0),
                                 std::max(0.0, r0 + place * grown)};
  };
  const auto from = circle(low), to = circle(high);
  const Pattern circles(cairo_pattern_create_radial(from[0], from[1], from[2], to[0], to[1], to[2]));
  const auto stops = gradientStops([&](double place) {
    GfxColor colour{};
    shading.getColor(shading.getDomain0() + place * (shading.getDomain1() - shading.getDomain0()), &colour);
    return rgbOf(shading.getColorSpace(), colour);
  });
  const auto add = [&](double place, const Rgb& colour) {
    cairo_pattern_add_color_stop_rgb(circles.get(), (place - low) / (high - low), colour.red, colour.green,
                                     colour.blue);
  };
  add(low, stops.front().colour);
  for (const GradientStop& stop : stops) add(stop.offset, stop.colour);
  add(high, stops.back().colour);
  cairo_pattern_set_extend(circles.get(), CAIRO_EXTEND_NONE);
  return painted(circles, matrix, part);
}

std::optional<ShadingImage> functionImage(GfxFunctionShading& shading, const AffineTransform& matrix) {
  double x0, y0, x1, y1;
  shading.getDomain(&x0, &y0, &x1, &y1);
  const double* m = shading.getMatrix();
  const AffineTransform toPage = AffineTransform(m[0], m[1], m[2], m[3], m[4], m[5]) * matrix;
  if (!(x1 > x0) || !(y1 > y0) || !toPage.isFinite()) return std::nullopt;
  const auto places = [&](double alongX, double alongY) {
    const double length = std::hypot(alongX * toPage.m11() + alongY * toPage.m21(),
                                     alongX * toPage.m12() + alongY * toPage.m22());
    return std::clamp(int(std::ceil(std::min(length, 1e6) * kDpi / 72)), 1, kMostPlaces);
  };
  const int width = places(x1 - x0, 0), height = places(0, y1 - y0);
  ShadingImage image;
  image.pixels = {width, height, {}};
  image.pixels.argb.reserve(size_t(width) * size_t(height));
  for (int row = 0; row < height; ++row)
    for (int column = 0; column < width; ++column) {
      GfxColor colour{};
      shading.getColor(x0 + (column + 0.5) / width * (x1 - x0), y0 + (row + 0.5) / height * (y1 - y0),
                       &colour);
      const Rgb rgb = rgbOf(shading.getColorSpace(), colour);
      const auto byte = [](double value) { return quint32(std::lround(std::clamp(value, 0.0, 1.0) * 255)); };
      image.pixels.argb.push_back(0xff000000u | byte(rgb.red) << 16 | byte(rgb.green) << 8 | byte(rgb.blue));
    }
  image.toPage = AffineTransform((x1 - x0) / width, 0, 0, (y1 - y0) / height, x0, y0) * toPage;
  image.dpi = 72 * std::sqrt(width * double(height) /
                             std::max(1e-9, std::abs((x1 - x0) * (y1 - y0) * toPage.determinant())));
  return image;
}

}  // namespace norvex::engine
