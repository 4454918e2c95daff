// How closely cairo measures strokes. It flattens each one to know where it reaches, also for a PDF, which
// holds it as it is: half of the time of a drawing of many curves. What is drawn larger than it is shown, for
// the sake of exact places, need not be measured as closely as its units are small.
#pragma once

#include <cairo.h>

namespace norvex::engine {

/// From now on strokes of this context may be measured with a tolerance of `units` of the surface; cairo's
/// own is 0.1. Only for surfaces that hold strokes as strokes: others would draw corners. Goes with the
/// context.
void askForCoarseStrokes(cairo_t* context, double units);

/// Tells that a context for which that was asked is clipped to its path from now on. Call it before the path
/// becomes the clip.
void noteClip(cairo_t* context);

/// The tolerance for a stroke, as the context stands. Cairo leaves out a stroke whose width is half of its
/// tolerance or less: it never exceeds half of the width, unless that is below cairo's own. Where a PDF is
/// the same wherever within its clip a stroke reaches, it is one and a half times the width.
[[nodiscard]] double strokeTolerance(cairo_t* context);

/// The tolerance for asking where strokes and areas reach, as the context stands: whoever has chosen one for
/// that has chosen it for the units that things are shown in.
[[nodiscard]] double extentsTolerance(cairo_t* context);

}  // namespace norvex::engine
