// Gradients that change their colour at once where they begin or end. A PDF made by cairo shows beyond that
// place the colour that is inside, because its function has no piece for the one outside.
#pragma once

#include <cairo.h>

#include <memory>

namespace norvex::engine {

struct PatternRelease {
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using CairoPattern = std::unique_ptr<cairo_pattern_t, PatternRelease>;

/// A gradient that looks the same and has its outermost colours for a while before they change. Null where
/// `pattern` needs none: no padded linear or radial gradient whose first or last two stops are at one place.
[[nodiscard]] CairoPattern withEndsOfItsOwn(cairo_pattern_t* pattern);

}  // namespace norvex::engine
