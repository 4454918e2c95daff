#include "worker/drawing/seams/pixel_edges.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "worker/drawing/seams/edge_outline.h"
#include "worker/drawing/seams/level_seams.h"
#include "worker/drawing/seams/slanted_seams.h"

namespace norvex::engine {
namespace {

const cairo_user_data_key_t kAsked{};  // its address counts: another one in each module of an engine

/// From `least` to `most` along an axis.
struct Span {
  double least = 0;
  double most = 0;
};

/// What is kept for a context.
struct Asked {
  bool hard = false;
  QDeadlineTimer until{QDeadlineTimer::Forever};  ///< of hard edges
  double angle = 0;                               ///< of the picture on the surface, radians
  Span x, y;                                      ///< of the picture on the surface; empty where it is turned
  LevelSeams level;
  SlantedSeams slanted;
  SlantedSeams::Polygon clip;  ///< the last one
};

struct PathRelease {
  void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
};
using CairoPath = std::unique_ptr<cairo_path_t, PathRelease>;

// A place in the middle of a pixel is what round numbers often come to; it is kept clear of the border
// between down and up, so that two tiles whose numbers differ in the last digit do not part there. Beyond the
// picture nothing can meet: its own edges go outwards, and a last row that is not whole keeps what is in it.
double betweenPixels(double place, const Span& picture) {
  if (picture.least < picture.most && std::abs(place - picture.least) <= EdgeOutline::kSameLine)
    return std::floor(place);
  if (picture.least < picture.most && std::abs(place - picture.most) <= EdgeOutline::kSameLine)
    return std::ceil(place);
  return std::floor(place + 0.47);
}

/// Coordinates of the surface, turned by `angle`, while this lives.
class SurfaceSpace {
 public:
  explicit SurfaceSpace(cairo_t* context, double angle = 0) : context_(context) {
    cairo_get_matrix(context, &matrix_);
    cairo_identity_matrix(context);
    if (angle != 0) cairo_rotate(context, angle);
  }
  ~SurfaceSpace() { cairo_set_matrix(context_, &matrix_); }
  SurfaceSpace(const SurfaceSpace&) = delete;
  SurfaceSpace& operator=(const SurfaceSpace&) = delete;

 private:
  cairo_t* context_;
  cairo_matrix_t matrix_;
};

/// `seams`, if any, gets the edges as they were.
template <typename MovedXOf, typename MovedYOf>
void moveEdges(cairo_t* context, const MovedXOf& movedXOf, const MovedYOf& movedYOf,
               LevelSeams* seams = nullptr) {
  const CairoPath path(cairo_copy_path(context));
  if (path->status != CAIRO_STATUS_SUCCESS) return;
  EdgeOutline outline(*path);
  const bool moved = outline.isOnePart() && outline.move(movedXOf(outline), movedYOf(outline));
  if (seams)
    seams->addPath(context, outline.edges(), size_t(path->num_data),
                   moved ? LevelSeams::Fate::Moved : LevelSeams::Fate::Left);
  if (!moved) return;
  cairo_new_path(context);
  cairo_append_path(context, path.get());
}

SlantedSeams::Polygon polygon(cairo_t* context) {
  const SurfaceSpace surface(context);
  const CairoPath path(cairo_copy_path(context));
  return path->status == CAIRO_STATUS_SUCCESS ? SlantedSeams::polygonOf(*path) : SlantedSeams::Polygon();
}

void putBetweenPixels(cairo_t* context, Asked& asked) {
  if (asked.angle != 0) {
    const SurfaceSpace picture(context, asked.angle);
    if (const CairoPath path(cairo_copy_path(context)); path->status == CAIRO_STATUS_SUCCESS)
      asked.level.addPath(context, EdgeOutline(*path).edges(), size_t(path->num_data),
                          LevelSeams::Fate::Slanted);
  }
  const SurfaceSpace surface(context);
  const auto within = [](const Span& picture) {
    return [&picture](const EdgeOutline&) {
      return [&picture](double place) { return betweenPixels(place, picture); };
    };
  };
  moveEdges(context, within(asked.x), within(asked.y), asked.angle == 0 ? &asked.level : nullptr);
}

/// What becomes of the two outermost edges of an area that ends where its clip does. They only go outwards.
class Ends {
 public:
  Ends(const Span& area, const Span& clip)
      : area_(area),
        clip_(clip),
        reachesLeast_(area.least > clip.least && area.least <= clip.least + kNear),
        reachesMost_(area.most < clip.most && area.most >= clip.most - kNear) {}

  [[nodiscard]] bool anyReaches() const { return reachesLeast_ || reachesMost_; }

  /// A thin line at the end of its clip stays one: an edge beside which one stays stays, too.
  [[nodiscard]] Ends besides(const std::vector<double>& edges) const {
    Ends ends = *this;
    for (const double edge : edges) {
      if ((*this)(edge) != edge || edge <= clip_.least || edge >= clip_.most) continue;
      ends.reachesLeast_ = ends.reachesLeast_ && edge - area_.least > kThin;
      ends.reachesMost_ = ends.reachesMost_ && area_.most - edge > kThin;
    }
    return ends;
  }

  double operator()(double place) const {
    if (reachesLeast_ && place - area_.least <= EdgeOutline::kSameLine) return clip_.least;
    if (reachesMost_ && area_.most - place <= EdgeOutline::kSameLine) return clip_.most;
    return place;
  }

 private:
  /// How far an edge of a clip is moved at most, and a little.
  static constexpr double kNear = 0.55, kThin = 2 * kNear;

  Span area_, clip_;
  bool reachesLeast_, reachesMost_;
};

// What ends where its clip does is moved with it.
void reachClip(cairo_t* context) {
  const SurfaceSpace surface(context);
  Span x, y, clipX, clipY;
  cairo_path_extents(context, &x.least, &y.least, &x.most, &y.most);
  cairo_clip_extents(context, &clipX.least, &clipY.least, &clipX.most, &clipY.most);
  const Ends endsX(x, clipX), endsY(y, clipY);
  if (!endsX.anyReaches() && !endsY.anyReaches()) return;
  moveEdges(
      context, [&](const EdgeOutline& outline) { return endsX.besides(outline.uprights()); },
      [&](const EdgeOutline& outline) { return endsY.besides(outline.levels()); });
}

Asked* askedOf(cairo_t* context) {
  return static_cast<Asked*>(cairo_get_user_data(context, &kAsked));
}

bool paintsImage(cairo_t* context) {
  return cairo_pattern_get_type(cairo_get_source(context)) == CAIRO_PATTERN_TYPE_SURFACE;
}

/// Whether `tile` is what the clip leaves: it may have been taken back since. The image's edges are a clip,
/// too.
bool isClip(const SlantedSeams::Polygon& tile, const Span& x, const Span& y) {
  if (tile.empty()) return false;
  const auto [left, right] =
      std::minmax_element(tile.begin(), tile.end(), [](auto a, auto b) { return a.x < b.x; });
  const auto [top, bottom] =
      std::minmax_element(tile.begin(), tile.end(), [](auto a, auto b) { return a.y < b.y; });
  return left->x <= x.least + 1 && right->x >= x.most - 1 && top->y <= y.least + 1 && bottom->y >= y.most - 1;
}

/// An image is a tile; so is a clip that is filled.
void keepTile(cairo_t* context, Asked& asked) {
  if (paintsImage(context)) asked.slanted.addTile(polygon(context));
  const SurfaceSpace surface(context);
  Span x, y, clipX, clipY;
  cairo_path_extents(context, &x.least, &y.least, &x.most, &y.most);
  cairo_clip_extents(context, &clipX.least, &clipY.least, &clipX.most, &clipY.most);
  const bool fills = x.least <= clipX.least + 1 && x.most >= clipX.most - 1 && y.least <= clipY.least + 1 &&
                     y.most >= clipY.most - 1;
  if (fills && isClip(asked.clip, clipX, clipY)) asked.slanted.addTile(asked.clip);
}

/// Radians; 0 where level stays level or becomes upright.
double slant(cairo_t* context) {
  cairo_matrix_t m;
  cairo_get_matrix(context, &m);
  const double least = 1e-6 * std::hypot(m.xx, m.yx);
  return std::abs(m.xx) <= least || std::abs(m.yx) <= least ? 0 : std::atan2(m.yx, m.xx);
}

void askFor(cairo_t* context, std::unique_ptr<Asked> asked) {
  const auto release = [](void* data) { delete static_cast<Asked*>(data); };
  if (cairo_set_user_data(context, &kAsked, asked.get(), release) == CAIRO_STATUS_SUCCESS)
    (void)asked.release();
}

/// Runs `draw` without smooth edges where they are not wanted, and leaves no path, as cairo does. Where time
/// is over the path is empty: an area without pixels, and a clip that lets nothing through.
template <typename Draw>
void drawWithEdges(cairo_t* context, const Asked* asked, const Draw& draw) {
  const cairo_antialias_t before = cairo_get_antialias(context);
  if (asked && asked->hard) cairo_set_antialias(context, CAIRO_ANTIALIAS_NONE);
  if (asked && asked->until.hasExpired()) cairo_new_path(context);
  draw(context);
  cairo_set_antialias(context, before);
  cairo_new_path(context);
}

}  // namespace

void askForPixelEdges(cairo_t* context, double width, double height) {
  auto asked = std::make_unique<Asked>();
  asked->angle = slant(context);
  if (asked->angle == 0) {
    double x0 = 0, y0 = 0, x1 = width, y1 = height;
    cairo_user_to_device(context, &x0, &y0);
    cairo_user_to_device(context, &x1, &y1);
    asked->x = {std::min(x0, x1), std::max(x0, x1)};
    asked->y = {std::min(y0, y1), std::max(y0, y1)};
  }
  askFor(context, std::move(asked));
}

void askForHardEdges(cairo_t* context, QDeadlineTimer until) {
  auto asked = std::make_unique<Asked>();
  asked->hard = true;
  asked->until = until;
  askFor(context, std::move(asked));
}

bool arePixelEdgesAskedFor(cairo_t* context) {
  return askedOf(context) != nullptr;
}

bool areHardEdgesAskedFor(cairo_t* context) {
  const Asked* asked = askedOf(context);
  return asked && asked->hard;
}

bool hasSeams(cairo_t* context) {
  const Asked* asked = askedOf(context);
  return asked && (asked->level.areThere() || asked->slanted.areThere());
}

void clipBetweenPixels(cairo_t* context) {
  Asked* asked = askedOf(context);
  if (asked && !asked->hard) {
    putBetweenPixels(context, *asked);
    asked->clip = polygon(context);
  }
  drawWithEdges(context, asked, cairo_clip_preserve);
}

void fillBetweenPixels(cairo_t* context) {
  Asked* asked = askedOf(context);
  if (asked && !asked->hard) {
    keepTile(context, *asked);
    if (paintsImage(context))
      putBetweenPixels(context, *asked);
    else
      reachClip(context);
  }
  drawWithEdges(context, asked, cairo_fill_preserve);
}

}  // namespace norvex::engine
