#include "worker/drawing/gradient_ends.h"

#include <algorithm>
#include <vector>

namespace norvex::engine {
namespace {

struct Stop {
  double offset, red, green, blue, alpha;
};

std::vector<Stop> stopsOf(cairo_pattern_t* pattern) {
  int count = 0;
  if (cairo_pattern_get_color_stop_count(pattern, &count) != CAIRO_STATUS_SUCCESS) return {};
  std::vector<Stop> stops;
  stops.resize(size_t(count));
  for (int i = 0; i < count; ++i) {
    Stop& stop = stops[size_t(i)];
    cairo_pattern_get_color_stop_rgba(pattern, i, &stop.offset, &stop.red, &stop.green, &stop.blue,
                                      &stop.alpha);
  }
  return stops;
}

/// How far a gradient is to reach, in parts of its own length: 0 and 1 are where it begins and ends.
struct Reach {
  double first, last;
};

CairoPattern linear(cairo_pattern_t* pattern, const Reach& reach) {
  double x0 = 0, y0 = 0, x1 = 0, y1 = 0;
  cairo_pattern_get_linear_points(pattern, &x0, &y0, &x1, &y1);
  const double dx = x1 - x0, dy = y1 - y0;
  return CairoPattern(cairo_pattern_create_linear(x0 + reach.first * dx, y0 + reach.first * dy,
                                                  x0 + reach.last * dx, y0 + reach.last * dy));
}

/// `reach` becomes what the circles allow: none has a radius below 0.
CairoPattern radial(cairo_pattern_t* pattern, Reach& reach) {
  double x0 = 0, y0 = 0, r0 = 0, x1 = 0, y1 = 0, r1 = 0;
  cairo_pattern_get_radial_circles(pattern, &x0, &y0, &r0, &x1, &y1, &r1);
  const double dx = x1 - x0, dy = y1 - y0, dr = r1 - r0;
  if (dr > 0) reach.first = std::max(reach.first, -r0 / dr);
  if (dr < 0) reach.last = std::min(reach.last, -r0 / dr);
  return CairoPattern(cairo_pattern_create_radial(x0 + reach.first * dx, y0 + reach.first * dy,
                                                  std::max(0.0, r0 + reach.first * dr), x0 + reach.last * dx,
                                                  y0 + reach.last * dy, std::max(0.0, r0 + reach.last * dr)));
}

void add(cairo_pattern_t* pattern, const Stop& stop, double offset) {
  cairo_pattern_add_color_stop_rgba(pattern, offset, stop.red, stop.green, stop.blue, stop.alpha);
}

}  // namespace

CairoPattern withEndsOfItsOwn(cairo_pattern_t* pattern) {
  const cairo_pattern_type_t type = cairo_pattern_get_type(pattern);
  if (type != CAIRO_PATTERN_TYPE_LINEAR && type != CAIRO_PATTERN_TYPE_RADIAL) return {};
  if (cairo_pattern_get_extend(pattern) != CAIRO_EXTEND_PAD) return {};
  const std::vector<Stop> stops = stopsOf(pattern);
  if (stops.size() < 2) return {};
  const bool begins = stops[0].offset == stops[1].offset;
  const bool ends = stops[stops.size() - 2].offset == stops.back().offset;
  if (!begins && !ends) return {};

  Reach reach{begins && stops.front().offset <= 0 ? -1.0 : 0.0, ends && stops.back().offset >= 1 ? 2.0 : 1.0};
  CairoPattern longer = type == CAIRO_PATTERN_TYPE_LINEAR ? linear(pattern, reach) : radial(pattern, reach);
  cairo_matrix_t matrix;
  cairo_pattern_get_matrix(pattern, &matrix);
  cairo_pattern_set_matrix(longer.get(), &matrix);
  cairo_pattern_set_extend(longer.get(), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(longer.get(), cairo_pattern_get_filter(pattern));
  const auto place = [&reach](double offset) { return (offset - reach.first) / (reach.last - reach.first); };
  if (begins && place(stops.front().offset) > 0) add(longer.get(), stops.front(), 0);
  for (const Stop& stop : stops) add(longer.get(), stop, place(stop.offset));
  if (ends && place(stops.back().offset) < 1) add(longer.get(), stops.back(), 1);
  return longer;
}

}  // namespace norvex::engine
