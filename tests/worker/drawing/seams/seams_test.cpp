// Where the tiles of a drawing meet: along the axes, and aslant.
#include <cmath>

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/seams/level_seams.h"
#include "worker/drawing/seams/slanted_seams.h"

using namespace norvex::engine;

namespace {

struct Drawing {
  CairoSurface surface{cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 32, 32)};
  CairoContext context{cairo_create(surface.get())};
};

/// Two rectangles that meet at x = `place`, so far along each other.
bool meetAt(double place, double along, double gap = 0) {
  const Drawing drawing;
  LevelSeams seams;
  const auto add = [&](double from, double to, double edge) {
    cairo_new_path(drawing.context.get());
    cairo_rectangle(drawing.context.get(), from, 2, to - from, along);
    seams.addPath(drawing.context.get(), {{true, edge, 2, 2 + along}}, 5, LevelSeams::Fate::Left);
  };
  add(2, place, place);
  add(place + gap, 30, place + gap);
  return seams.areThere();
}

SlantedSeams::Polygon polygon(const std::vector<SlantedSeams::Point>& corners) {
  const Drawing drawing;
  for (const auto& corner : corners) cairo_line_to(drawing.context.get(), corner.x, corner.y);
  cairo_close_path(drawing.context.get());
  cairo_path_t* const path = cairo_copy_path(drawing.context.get());
  const SlantedSeams::Polygon found = SlantedSeams::polygonOf(*path);
  cairo_path_destroy(path);
  return found;
}

}  // namespace

class SeamsTest : public QObject {
  Q_OBJECT
 private slots:
  void areasMeetWithinAPixel() {
    QVERIFY(meetAt(10.5, 20));
    QVERIFY(!meetAt(10, 20));  // between two pixels nothing is seen of it
    QVERIFY(!meetAt(10.5, 20, 0.1));
  }

  // The steps of a letter and of a flattened curve.
  void nothingMeetsAlongThreePixels() {
    QVERIFY(meetAt(10.5, 3.5));
    QVERIFY(!meetAt(10.5, 3));
  }

  void aTriangleIsATile() {
    QCOMPARE(polygon({{0, 0}, {10, 0}, {0, 10}}).size(), size_t(3));
    QCOMPARE(polygon({{0, 0}, {10, 0}}).size(), size_t(0));
  }

  // Whichever way around each of them was drawn.
  void tilesMeetAslant() {
    for (const bool turned : {false, true}) {
      SlantedSeams seams;
      seams.addTile(polygon({{0, 0}, {10, 0}, {0, 10}}));
      QVERIFY(!seams.areThere());
      seams.addTile(turned ? polygon({{0, 10}, {10, 10}, {10, 0}}) : polygon({{10, 0}, {10, 10}, {0, 10}}));
      QVERIFY(seams.areThere());
    }
    SlantedSeams apart;
    apart.addTile(polygon({{0, 0}, {10, 0}, {0, 10}}));
    apart.addTile(polygon({{12, 0}, {12, 12}, {0, 12}}));
    QVERIFY(!apart.areThere());
  }

  // The last bits of places that were computed in two ways.
  void tilesThatNearlyTouchMeetAslant() {
    const auto meet = [](double gap) {
      const double aside = gap * std::sqrt(2);
      SlantedSeams seams;
      seams.addTile(polygon({{0, 0}, {10, 0}, {0, 10}}));
      seams.addTile(polygon({{10 + aside, 0}, {10, 10}, {0, 10 + aside}}));
      return seams.areThere();
    };
    QVERIFY(meet(0.05));
    QVERIFY(!meet(0.15));
  }
};

NORVEX_TEST(SeamsTest)
#include "seams_test.moc"
