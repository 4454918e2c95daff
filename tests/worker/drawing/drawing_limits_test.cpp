// Drawings that reach a limit: they are told, or drawn without what makes them finer.
#include <algorithm>

#include "kit/test_main.h"
#include "protocol/limits.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/fine_image.h"
#include "worker/drawing/seams/level_seams.h"
#include "worker/drawing/seams/slanted_seams.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// Tiles of ten pixels that are painted one after the other, and what is found of the seams between them.
class Tiles {
 public:
  /// Its left edge alone is of interest. `elements`: that the path says it has.
  void addLeftEdge(double x, size_t elements = 5) { add(x, {true, x, 0, 10}, elements); }
  void addRightEdge(double x, size_t elements = 5) { add(x - 10, {true, x, 0, 10}, elements); }
  [[nodiscard]] bool meet() const { return seams_.areThere(); }

 private:
  void add(double left, const LevelSeams::Edge& edge, size_t elements) {
    cairo_new_path(context_.get());
    cairo_rectangle(context_.get(), left, 0, 10, 10);
    seams_.addPath(context_.get(), {edge}, elements, LevelSeams::Fate::Left);
  }

  CairoSurface surface_{cairo_image_surface_create(CAIRO_FORMAT_A8, 1, 1)};
  CairoContext context_{cairo_create(surface_.get())};
  LevelSeams seams_;
};

SlantedSeams::Polygon diamond(double x, double y) {
  return {{x, y - 5}, {x + 5, y}, {x, y + 5}, {x - 5, y}};
}

RenderRequest sheet(QSize size) {
  RenderRequest request;
  request.pixelSize = size;
  request.pictureToDevice = {1, 0, 0, -1, 0, double(size.height())};
  return request;
}

}  // namespace

class DrawingLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void seamsAreLookedForAmongTheFirstTiles() {
    for (const bool isFull : {false, true}) {
      Tiles tiles;
      const size_t before = limits::maximumSeamEdges - (isFull ? 1 : 2);
      for (size_t i = 0; i < before; ++i) tiles.addLeftEdge(double(i + 1) * 20 + 0.5);
      tiles.addLeftEdge(0.5);
      QVERIFY(!tiles.meet());
      tiles.addRightEdge(0.5);
      QCOMPARE(tiles.meet(), !isFull);
    }
  }

  void slantedSeamsAreLookedForAmongTheFirstTiles() {
    for (const bool isFull : {false, true}) {
      SlantedSeams seams;
      const size_t before = limits::maximumSlantedEdges / 4 - (isFull ? 1 : 2);
      for (size_t i = 0; i < before; ++i) seams.addTile(diamond(double(i + 1) * 20, 0));
      seams.addTile(diamond(0, 0));
      QVERIFY(!seams.areThere());
      seams.addTile(diamond(5, 5));
      QCOMPARE(seams.areThere(), !isFull);
    }
  }

  /// A path is passed over that would take as long as many others, and those behind it are not.
  void longPathsAreNotLookedAtForEverySideOfTheirs() {
    Tiles tiles;
    tiles.addLeftEdge(0.5);
    tiles.addRightEdge(0.5, limits::maximumSeamLooks);
    QVERIFY(!tiles.meet());
    Tiles others;
    others.addRightEdge(100.5, limits::maximumSeamLooks / 8);
    others.addLeftEdge(0.5);
    others.addRightEdge(0.5);
    QVERIFY(others.meet());
  }

  void aHugePictureIsNotDrawnFiner() {
    int calls = 0;
    const auto paint = [&](cairo_t*) -> Result<void> {
      ++calls;
      return {};
    };
    constexpr int width = 10'000, finer = 2;
    const int rows = int(limits::maximumFinePixels / (width * finer * finer));
    const QSize size(width, rows * int(limits::maximumFineBands) + 1);
    const Result<Bitmap> image = paintFine(sheet(size), {}, paint);
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::Limit);
    QVERIFY2(image.error().message.contains("too large to be drawn without seams"),
             qPrintable(image.error().message));
    QCOMPARE(calls, 0);
  }

  void thePageIsWalkedThroughForSoManyBands() {
    PictureLimits few;
    few.megapixels = 0.00025;  // a row of 60 pixels, twice as fine
    const auto bandsOf = [&](int height) {
      int calls = 0;
      const Result<Bitmap> image = paintFine(sheet({60, height}), few, [&](cairo_t*) -> Result<void> {
        ++calls;
        return {};
      });
      return image ? calls : 0;
    };
    QCOMPARE(bandsOf(int(limits::maximumFineBands)), int(limits::maximumFineBands));
    QCOMPARE(bandsOf(int(limits::maximumFineBands) + 1), 0);
  }

  void aSideOfAnImageHasAnEnd() {
    const auto painted = [](int width) {
      RenderRequest request;
      request.pixelSize = {width, 1};
      return paintImage(request, {}, [](cairo_t*) -> Result<void> { return {}; });
    };
    QVERIFY(painted(limits::maximumSide));
    const Result<Bitmap> wide = painted(limits::maximumSide + 1);
    QVERIFY(!wide);
    QCOMPARE(wide.error().kind, ErrorKind::Limit);
    QCOMPARE(wide.error().message,
             QStringLiteral("the image would have a side of more than %1 pixels").arg(limits::maximumSide));
  }
};

NORVEX_TEST(DrawingLimitsTest)
#include "drawing_limits_test.moc"
