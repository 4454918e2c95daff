// Poppler sets its clips with cairo_clip(), paints its images with cairo_fill() and its text with
// cairo_show_glyphs(), and its interface has no word for what becomes of the pixels of their edges, nor of
// glyphs in colours of their own. A name that a library calls is looked for in the module that loaded the
// library before it is looked for in cairo: these are the ones that are called. A library stays bound to the
// module that loaded it first, and each module has its own key for what is asked of a context: in a process
// that has loaded two modules, only what the first of them draws has these edges. librsvg strokes with
// cairo_stroke_preserve(), and sets width and matrix just before; it asks for the extents of each path, and
// its gradients come with cairo_set_source(). Poppler asks cairo_matrix_transform_distance() for the cells of
// a gradient that a function tells, and cairo_user_to_device_distance() for the width of a line before it
// sets it. What librsvg draws an image with is told to another thread (told_drawing.h): it saves and
// restores, clips, fills and strokes, and whatever else paints is told as something that cannot be told.
#include <string_view>

#include "programs/taken_call.h"
#include "worker/drawing/coloured_glyphs.h"
#include "worker/drawing/gradient_ends.h"
#include "worker/drawing/path_extents.h"
#include "worker/drawing/seams/pixel_edges.h"
#include "worker/drawing/shading_steps.h"
#include "worker/drawing/stroke_measure.h"
#include "worker/drawing/thin_lines.h"
#include "worker/drawing/told_drawing.h"

NORVEX_STANDS_IN void cairo_clip(cairo_t* context) {
  norvex::engine::tellClip(context);
  norvex::engine::noteClip(context);
  norvex::engine::clipBetweenPixels(context);
}

NORVEX_STANDS_IN void cairo_fill(cairo_t* context) {
  norvex::engine::tellOther(context);
  norvex::engine::fillBetweenPixels(context);
}

NORVEX_STANDS_IN void cairo_stroke_preserve(cairo_t* context) {
  static const auto cairos = norvex::librarysOwn(&cairo_stroke_preserve, "cairo_stroke_preserve");
  norvex::engine::tellStroke(context);
  const double before = cairo_get_tolerance(context);
  cairo_set_tolerance(context, norvex::engine::strokeTolerance(context));
  cairos(context);
  cairo_set_tolerance(context, before);
}

NORVEX_STANDS_IN void cairo_fill_preserve(cairo_t* context) {
  static const auto cairos = norvex::librarysOwn(&cairo_fill_preserve, "cairo_fill_preserve");
  norvex::engine::tellFill(context);
  cairos(context);
}

NORVEX_STANDS_IN void cairo_save(cairo_t* context) {
  static const auto cairos = norvex::librarysOwn(&cairo_save, "cairo_save");
  norvex::engine::tellSave(context);
  cairos(context);
}

NORVEX_STANDS_IN void cairo_restore(cairo_t* context) {
  static const auto cairos = norvex::librarysOwn(&cairo_restore, "cairo_restore");
  norvex::engine::tellRestore(context);
  cairos(context);
}

NORVEX_STANDS_IN void cairo_stroke(cairo_t* context) {
  static const auto cairos = norvex::librarysOwn(&cairo_stroke, "cairo_stroke");
  norvex::engine::tellOther(context);
  cairos(context);
}

NORVEX_STANDS_IN void cairo_paint(cairo_t* context) {
  static const auto cairos = norvex::librarysOwn(&cairo_paint, "cairo_paint");
  norvex::engine::tellOther(context);
  cairos(context);
}

NORVEX_STANDS_IN void cairo_paint_with_alpha(cairo_t* context, double alpha) {
  static const auto cairos = norvex::librarysOwn(&cairo_paint_with_alpha, "cairo_paint_with_alpha");
  norvex::engine::tellOther(context);
  cairos(context, alpha);
}

NORVEX_STANDS_IN void cairo_mask(cairo_t* context, cairo_pattern_t* pattern) {
  static const auto cairos = norvex::librarysOwn(&cairo_mask, "cairo_mask");
  norvex::engine::tellOther(context);
  cairos(context, pattern);
}

NORVEX_STANDS_IN void cairo_mask_surface(cairo_t* context, cairo_surface_t* surface, double x, double y) {
  static const auto cairos = norvex::librarysOwn(&cairo_mask_surface, "cairo_mask_surface");
  norvex::engine::tellOther(context);
  cairos(context, surface, x, y);
}

namespace {

using Extents = void (*)(cairo_t*, double*, double*, double*, double*);

void measure(Extents cairos, cairo_t* context, double* x1, double* y1, double* x2, double* y2) {
  const double before = cairo_get_tolerance(context);
  cairo_set_tolerance(context, norvex::engine::extentsTolerance(context));
  cairos(context, x1, y1, x2, y2);
  cairo_set_tolerance(context, before);
}

bool isOfPoppler(const void* code) {
  Dl_info module = {};
  return ::dladdr(code, &module) != 0 && module.dli_fname != nullptr &&
         std::string_view(module.dli_fname).find("libpoppler") != std::string_view::npos;
}

}  // namespace

NORVEX_STANDS_IN void cairo_stroke_extents(cairo_t* context, double* x1, double* y1, double* x2, double* y2) {
  static const auto cairos = norvex::librarysOwn(&cairo_stroke_extents, "cairo_stroke_extents");
  measure(cairos, context, x1, y1, x2, y2);
}

NORVEX_STANDS_IN void cairo_fill_extents(cairo_t* context, double* x1, double* y1, double* x2, double* y2) {
  static const auto cairos = norvex::librarysOwn(&cairo_fill_extents, "cairo_fill_extents");
  measure(cairos, context, x1, y1, x2, y2);
}

NORVEX_STANDS_IN void cairo_path_extents(cairo_t* context, double* x0, double* y0, double* x1, double* y1) {
  static const auto cairos = norvex::librarysOwn(&cairo_path_extents, "cairo_path_extents");
  if (!norvex::engine::turnedPathExtents(context, x0, y0, x1, y1)) cairos(context, x0, y0, x1, y1);
}

NORVEX_STANDS_IN void cairo_set_source(cairo_t* context, cairo_pattern_t* pattern) {
  static const auto cairos = norvex::librarysOwn(&cairo_set_source, "cairo_set_source");
  // Pixels have the right colours by themselves.
  const bool pixels = cairo_surface_get_type(cairo_get_target(context)) == CAIRO_SURFACE_TYPE_IMAGE;
  const auto longer = pixels ? nullptr : norvex::engine::withEndsOfItsOwn(pattern);
  cairos(context, longer ? longer.get() : pattern);
}

NORVEX_STANDS_IN void cairo_show_glyphs(cairo_t* context, const cairo_glyph_t* glyphs, int count) {
  norvex::engine::tellOther(context);
  norvex::engine::showGlyphs(context, glyphs, count);
}

NORVEX_STANDS_IN void cairo_show_text_glyphs(cairo_t* context, const char* text, int length,
                                             const cairo_glyph_t* glyphs, int count,
                                             const cairo_text_cluster_t* clusters, int clusterCount,
                                             cairo_text_cluster_flags_t flags) {
  static const auto cairos = norvex::librarysOwn(&cairo_show_text_glyphs, "cairo_show_text_glyphs");
  norvex::engine::tellOther(context);
  cairos(context, text, length, glyphs, count, clusters, clusterCount, flags);
}

NORVEX_STANDS_IN void cairo_matrix_transform_distance(const cairo_matrix_t* matrix, double* x, double* y) {
  static const auto cairos =
      norvex::librarysOwn(&cairo_matrix_transform_distance, "cairo_matrix_transform_distance");
  constexpr double kCell = norvex::engine::kAskedCell;
  // Nothing but these numbers tells what is asked for. Others have distances of their own.
  if (*x == kCell && *y == kCell && isOfPoppler(__builtin_return_address(0)))
    norvex::engine::shadingSteps(*matrix, x, y);
  else
    cairos(matrix, x, y);
}

NORVEX_STANDS_IN void cairo_user_to_device_distance(cairo_t* context, double* x, double* y) {
  static const auto cairos =
      norvex::librarysOwn(&cairo_user_to_device_distance, "cairo_user_to_device_distance");
  if (*x == *y) norvex::engine::noteLineWidth(context, *x);
  cairos(context, x, y);
}

NORVEX_STANDS_IN void cairo_set_line_width(cairo_t* context, double width) {
  static const auto cairos = norvex::librarysOwn(&cairo_set_line_width, "cairo_set_line_width");
  cairos(context, norvex::engine::lineWidthToSet(context, width));
}
