#include "worker/drawing/pixel_edges.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace norvex::engine {
namespace {

const cairo_user_data_key_t kAsked{};

// Cairo keeps places on the surface in steps of a 256th.
constexpr double kSameLine = 1.5 / 256;

struct PathRelease {
  void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
};
using CairoPath = std::unique_ptr<cairo_path_t, PathRelease>;

// A place in the middle of a pixel is what round numbers often come to; it is kept clear of the border
// between down and up, so that two tiles whose numbers differ in the last digit do not part there.
double betweenPixels(double place) {
  return std::floor(place + 0.47);
}

/// The points of a path, each with what its edges ask of it.
struct Corner {
  cairo_path_data_t* at;
  bool upright = false;  ///< belongs to an edge along y: x is moved
  bool level = false;    ///< belongs to an edge along x: y is moved
};

void join(Corner& from, Corner& to) {
  const double dx = std::abs(from.at->point.x - to.at->point.x);
  const double dy = std::abs(from.at->point.y - to.at->point.y);
  if (dx <= kSameLine && dy > kSameLine) from.upright = to.upright = true;
  if (dy <= kSameLine && dx > kSameLine) from.level = to.level = true;
}

class Outline {
 public:
  explicit Outline(cairo_path_t& path) {
    for (int i = 0; i < path.num_data; i += path.data[i].header.length) take(&path.data[i]);
    leaveOutLonePlace();
  }

  /// Moves the edges; false, and nothing is moved, where that would leave nothing of the path.
  template <typename MovedX, typename MovedY>
  bool move(const MovedX& movedX, const MovedY& movedY) {
    const auto x = [&](const Corner& c) { return c.upright ? movedX(c.at->point.x) : c.at->point.x; };
    const auto y = [&](const Corner& c) { return c.level ? movedY(c.at->point.y) : c.at->point.y; };
    if (!isLong(x) || !isLong(y)) return false;
    for (const Corner& corner : corners_) corner.at->point = {x(corner), y(corner)};
    return true;
  }

 private:
  void take(cairo_path_data_t* part) {
    switch (part->header.type) {
      case CAIRO_PATH_MOVE_TO:
        leaveOutLonePlace();
        corners_.push_back({part + 1});
        first_ = corners_.size() - 1;
        break;
      case CAIRO_PATH_LINE_TO:
        corners_.push_back({part + 1});
        if (corners_.size() > 1) join(corners_[corners_.size() - 2], corners_.back());
        break;
      case CAIRO_PATH_CURVE_TO:
        corners_.push_back({part + 3});
        break;
      case CAIRO_PATH_CLOSE_PATH:
        if (!corners_.empty()) join(corners_.back(), corners_[first_]);
        break;
    }
  }

  /// Cairo goes to a place behind each closed part, from which nothing need be drawn.
  void leaveOutLonePlace() {
    if (!corners_.empty() && first_ + 1 == corners_.size()) corners_.pop_back();
  }

  /// Whether the path reaches from one place to another along an axis.
  template <typename Place>
  [[nodiscard]] bool isLong(const Place& place) const {
    return std::any_of(corners_.begin(), corners_.end(),
                       [&](const Corner& corner) { return place(corner) != place(corners_.front()); });
  }

  std::vector<Corner> corners_;
  size_t first_ = 0;
};

/// Coordinates of the surface, while this lives.
class SurfaceSpace {
 public:
  explicit SurfaceSpace(cairo_t* context) : context_(context) {
    cairo_get_matrix(context, &matrix_);
    cairo_identity_matrix(context);
  }
  ~SurfaceSpace() { cairo_set_matrix(context_, &matrix_); }
  SurfaceSpace(const SurfaceSpace&) = delete;
  SurfaceSpace& operator=(const SurfaceSpace&) = delete;

 private:
  cairo_t* context_;
  cairo_matrix_t matrix_;
};

template <typename MovedX, typename MovedY>
void moveEdges(cairo_t* context, const MovedX& x, const MovedY& y) {
  const CairoPath path(cairo_copy_path(context));
  if (path->status != CAIRO_STATUS_SUCCESS || !Outline(*path).move(x, y)) return;
  cairo_new_path(context);
  cairo_append_path(context, path.get());
}

void putBetweenPixels(cairo_t* context) {
  const SurfaceSpace surface(context);
  moveEdges(context, betweenPixels, betweenPixels);
}

/// From `least` to `most` along an axis.
struct Span {
  double least = 0;
  double most = 0;

  /// Where an edge is to be that lies so close to an end that it was meant to be there.
  [[nodiscard]] double reached(double place) const {
    if (place > least && place <= least + kNear) return least;
    if (place < most && place >= most - kNear) return most;
    return place;
  }

  /// How far an edge of a clip is moved at most, and a little.
  static constexpr double kNear = 0.55;
};

// What ends where its clip does is moved with it.
void reachClip(cairo_t* context) {
  const SurfaceSpace surface(context);
  Span x, y, clipX, clipY;
  cairo_path_extents(context, &x.least, &y.least, &x.most, &y.most);
  cairo_clip_extents(context, &clipX.least, &clipY.least, &clipX.most, &clipY.most);
  const auto stays = [](const Span& span, const Span& clip) {
    return clip.reached(span.least) == span.least && clip.reached(span.most) == span.most;
  };
  if (stays(x, clipX) && stays(y, clipY)) return;
  moveEdges(
      context, [&](double place) { return clipX.reached(place); },
      [&](double place) { return clipY.reached(place); });
}

bool isAsked(cairo_t* context) {
  return cairo_get_user_data(context, &kAsked) != nullptr;
}

bool paintsImage(cairo_t* context) {
  return cairo_pattern_get_type(cairo_get_source(context)) == CAIRO_PATTERN_TYPE_SURFACE;
}

}  // namespace

void askForPixelEdges(cairo_t* context) {
  cairo_set_user_data(context, &kAsked, context, nullptr);
}

void clipBetweenPixels(cairo_t* context) {
  if (isAsked(context)) putBetweenPixels(context);
  cairo_clip_preserve(context);
  cairo_new_path(context);
}

void fillBetweenPixels(cairo_t* context) {
  if (isAsked(context) && paintsImage(context)) putBetweenPixels(context);
  if (isAsked(context) && !paintsImage(context)) reachClip(context);
  cairo_fill_preserve(context);
  cairo_new_path(context);
}

}  // namespace norvex::engine
