#include "worker/metafile/brush_tile.h"

#include "worker/drawing/cairo_surface.h"

namespace norvex::engine {
namespace {

constexpr int kSide = 8;

bool isLine(int hatch, int x, int y) {
  const bool across = y == kSide / 2, down = x == kSide / 2, falling = x == y, rising = x + y == kSide - 1;
  switch (hatch) {
    case 1:
      return down;
    case 2:
      return falling;
    case 3:
      return rising;
    case 4:
      return across || down;
    case 5:
      return falling || rising;
    default:
      return across;
  }
}

}  // namespace

Result<Bitmap> hatchTile(int hatch, Argb32 colour) {
  Result<Bitmap> tile = Bitmap::create({kSide, kSide});
  if (!tile) return tile.error();
  for (int y = 0; y < kSide; ++y)
    for (int x = 0; x < kSide; ++x)
      if (isLine(hatch, x, y)) tile->row(y)[x] = colour;
  return tile;
}

void fillWithTile(cairo_t* context, const Bitmap& tile) {
  Bitmap shared = tile;
  const CairoSurface image(cairo_image_surface_create_for_data(reinterpret_cast<uchar*>(shared.row(0)),
                                                               CAIRO_FORMAT_ARGB32, shared.width(),
                                                               shared.height(), shared.bytesPerRow()));
  cairo_save(context);
  cairo_identity_matrix(context);
  cairo_set_source_surface(context, image.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_REPEAT);
  cairo_pattern_set_filter(cairo_get_source(context), CAIRO_FILTER_NEAREST);
  cairo_fill_preserve(context);
  cairo_restore(context);  // the image goes with its source
}

}  // namespace norvex::engine
