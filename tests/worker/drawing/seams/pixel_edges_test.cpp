#include "worker/drawing/seams/pixel_edges.h"

#include <QMarginsF>
#include <QRectF>

#include <algorithm>
#include <functional>
#include <utility>

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"

using namespace norvex;
using namespace norvex::engine;

Q_DECLARE_METATYPE(cairo_matrix_t)

namespace {

/// A transparent surface of 40 × 40 pixels, with edges between pixels if they are asked for.
struct Sheet {
  explicit Sheet(bool asked = true)
      : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 40, 40)),
        context(cairo_create(surface.get())) {
    if (asked) askForPixelEdges(context.get());
  }

  [[nodiscard]] int coverage(int x, int y) const {
    cairo_surface_flush(surface.get());
    const uchar* row = cairo_image_surface_get_data(surface.get()) +
                       qsizetype(y) * cairo_image_surface_get_stride(surface.get());
    return alpha(reinterpret_cast<const Argb32*>(row)[x]);
  }

  /// The least of all pixels from (5, 5) to (34, 34).
  [[nodiscard]] int leastInside() const {
    int least = 255;
    for (int y = 5; y < 35; ++y)
      for (int x = 5; x < 35; ++x) least = std::min(least, coverage(x, y));
    return least;
  }

  /// Paints the path as a tile does: through a clip.
  void tile(const std::function<void(cairo_t*)>& path) const {
    cairo_save(context.get());
    path(context.get());
    clipBetweenPixels(context.get());
    cairo_set_source_rgb(context.get(), 1, 0, 0);
    cairo_paint(context.get());
    cairo_restore(context.get());
  }

  void fill(const std::function<void(cairo_t*)>& path) const {
    path(context.get());
    cairo_set_source_rgb(context.get(), 0, 0, 0);
    fillBetweenPixels(context.get());
  }

  CairoSurface surface;
  CairoContext context;
};

/// All pixels, one after the other.
QList<int> coverages(const Sheet& sheet) {
  QList<int> all;
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 40; ++x) all << sheet.coverage(x, y);
  return all;
}

void addPaths() {
  QTest::addColumn<std::function<void(cairo_t*)>>("path");
  const auto row = [](const char* name, const std::function<void(cairo_t*)>& path) {
    QTest::newRow(name) << path;
  };
  row("bars of half a pixel", [](cairo_t* c) {
    for (int i = 0; i < 29; ++i) cairo_rectangle(c, 3 + i * 1.17, 4, 0.5, 30);
  });
  row("bars across", [](cairo_t* c) {
    for (int i = 0; i < 29; ++i) cairo_rectangle(c, 4, 3 + i * 1.17, 30, 0.5);
  });
  row("letters", [](cairo_t* c) {
    cairo_set_font_size(c, 7);
    cairo_move_to(c, 1.3, 15.2);
    cairo_text_path(c, "HEIL tilt");
  });
  row("a comb", [](cairo_t* c) {
    cairo_move_to(c, 2, 5);
    for (int i = 0; i < 9; ++i) {
      const double x = 4.1 + i * 3.3;
      for (const auto& [dx, y] : {std::pair(0.0, 5), std::pair(0.0, 30), std::pair(0.3, 30), {0.3, 5}})
        cairo_line_to(c, x + dx, y);
    }
    cairo_line_to(c, 38, 2);
    cairo_line_to(c, 2, 2);
    cairo_close_path(c);
  });
  row("half of a lens", [](cairo_t* c) {
    cairo_move_to(c, 10.4, 5);
    cairo_line_to(c, 10.4, 30);
    cairo_curve_to(c, 10.05, 24, 10.05, 11, 10.4, 5);
  });
}

/// Four tiles around (x, y), two of them no rectangles: they end in the others' corner.
void fourTiles(const Sheet& sheet, double x, double y) {
  sheet.tile([&](cairo_t* c) { cairo_rectangle(c, 0, 0, x, y); });
  sheet.tile([&](cairo_t* c) { cairo_rectangle(c, x, y, 40 - x, 40 - y); });
  sheet.tile([&](cairo_t* c) {
    cairo_move_to(c, x, 0);
    cairo_line_to(c, 40, 0);
    cairo_curve_to(c, 42, 5, 42, y - 5, 40, y);
    cairo_line_to(c, x, y);
    cairo_close_path(c);
  });
  sheet.tile([&](cairo_t* c) {
    cairo_move_to(c, 0, y);
    cairo_line_to(c, x, y);
    cairo_line_to(c, x, 40);
    cairo_line_to(c, 0, 40);
    cairo_line_to(c, 0, y);
  });
}

}  // namespace

class PixelEdgesTest : public QObject {
  Q_OBJECT
 private slots:
  void tilesThatMeetInsideAPixelShowNoSeam() {
    for (int step = 0; step < 64; ++step) {
      const Sheet sheet;
      const double x = 15 + step / 64.0, y = 22 + (63 - step) / 51.0;
      fourTiles(sheet, x, y);
      QVERIFY2(sheet.leastInside() == 255, qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
    }
  }

  void withoutItTheyDo() {
    const Sheet sheet(false);
    fourTiles(sheet, 15.5, 22.5);
    QVERIFY(sheet.leastInside() < 200);
  }

  void edgesThatAreTheSameButForTheirLastDigitStayTogether() {
    for (const double place : {15.0, 15.25, 15.5, 15.75}) {
      const Sheet sheet;
      sheet.tile([&](cairo_t* c) { cairo_rectangle(c, 0, 0, place - 0.004, 40); });
      sheet.tile([&](cairo_t* c) { cairo_rectangle(c, place + 0.004, 0, 40 - place, 40); });
      QCOMPARE(sheet.leastInside(), 255);
    }
  }

  void thePicturesOwnEdgesGoOutwards_data() {
    QTest::addColumn<cairo_matrix_t>("matrix");
    QTest::newRow("upright") << cairo_matrix_t{1, 0, 0, 1, 0, 0};
    QTest::newRow("y up") << cairo_matrix_t{1, 0, 0, -1, 0, 10.4};
    QTest::newRow("turned by a right angle") << cairo_matrix_t{0, 1, 1, 0, 0, 0};
  }
  void thePicturesOwnEdgesGoOutwards() {
    QFETCH(cairo_matrix_t, matrix);
    for (const bool known : {true, false}) {
      Sheet sheet(false);
      cairo_set_matrix(sheet.context.get(), &matrix);
      askForPixelEdges(sheet.context.get(), known ? 10.4 : 0, known ? 10.4 : 0);
      cairo_rectangle(sheet.context.get(), 0, 0, 10.4, 10.4);
      cairo_clip(sheet.context.get());
      sheet.tile([](cairo_t* c) { cairo_rectangle(c, 0, 0, 10.4, 10.4); });
      QCOMPARE(sheet.coverage(5, 9), 255);
      QVERIFY(known ? std::abs(sheet.coverage(5, 10) - 102) < 3 : sheet.coverage(5, 10) == 0);
      QVERIFY(known ? std::abs(sheet.coverage(10, 5) - 102) < 3 : sheet.coverage(10, 5) == 0);
      QCOMPARE(sheet.coverage(11, 5), 0);
      QCOMPARE(sheet.coverage(5, 11), 0);
    }
  }
  void slantedAndCurvedEdgesStaySmooth() {
    const auto both = [](const Sheet& sheet) {
      sheet.tile([](cairo_t* c) {
        cairo_move_to(c, 5, 5);
        cairo_line_to(c, 30, 12.3);
        cairo_line_to(c, 11.7, 33);
        cairo_close_path(c);
      });
      sheet.tile([](cairo_t* c) { cairo_arc(c, 28.4, 28.6, 6.2, 0, 6.28); });
    };
    const Sheet asked, plain(false);
    both(asked);
    both(plain);
    for (int y = 0; y < 40; ++y)
      for (int x = 0; x < 40; ++x) QCOMPARE(asked.coverage(x, y), plain.coverage(x, y));
  }

  void aStripOfLessThanAPixelIsNotLost() {
    const Sheet sheet;
    sheet.tile([](cairo_t* c) { cairo_rectangle(c, 10.1, 5, 0.3, 30); });
    QVERIFY(sheet.coverage(10, 20) > 50);
  }

  void aClipWithThinPartsIsWhatItWouldBe_data() { addPaths(); }
  void aClipWithThinPartsIsWhatItWouldBe() {
    QFETCH(std::function<void(cairo_t*)>, path);
    const Sheet asked, plain(false);
    asked.tile(path);
    plain.tile(path);
    QVERIFY(coverages(plain).count(0) < 1600);
    QCOMPARE(coverages(asked), coverages(plain));
  }

  void aThinLineAtTheEndOfTheClipIsWhatItWouldBe_data() {
    QTest::addColumn<std::function<void(cairo_t*)>>("path");
    const auto row = [](const char* name, const std::function<void(cairo_t*)>& path) {
      QTest::newRow(name) << path;
    };
    row("beside another area", [](cairo_t* c) {
      cairo_rectangle(c, 0.1, 5, 0.4, 30);
      cairo_rectangle(c, 20, 5, 10, 30);
    });
    row("alone", [](cairo_t* c) { cairo_rectangle(c, 0.1, 5, 0.4, 30); });
    row("alone, at the bottom", [](cairo_t* c) { cairo_rectangle(c, 5, 39.5, 30, 0.4); });
    row("half a pixel away", [](cairo_t* c) { cairo_rectangle(c, 0.5, 5, 0.4, 30); });
    row("from outside", [](cairo_t* c) { cairo_rectangle(c, -5, 5, 5.4, 30); });
    row("a part of an area", [](cairo_t* c) {
      cairo_move_to(c, 0.1, 5);
      for (const auto& [x, y] : {std::pair(0.5, 5.0), std::pair(0.5, 30.0), {20.0, 30.0}, {20.0, 35.0}})
        cairo_line_to(c, x, y);
      cairo_line_to(c, 0.1, 35);
      cairo_close_path(c);
    });
  }
  void aThinLineAtTheEndOfTheClipIsWhatItWouldBe() {
    QFETCH(std::function<void(cairo_t*)>, path);
    const Sheet asked, plain(false);
    asked.fill(path);
    plain.fill(path);
    QVERIFY(coverages(plain).count(0) < 1600);
    QCOMPARE(coverages(asked), coverages(plain));
  }

  void anAreaThatFillsAThinClipFillsItAsItIsMoved() {
    for (const auto& [least, most] : {std::pair(10.1, 10.6), std::pair(10.0, 10.6), {10.4, 11.0}}) {
      const Sheet sheet;
      const auto area = [x = least, width = most - least](cairo_t* c) {
        cairo_rectangle(c, x, 0, width, 40);
      };
      area(sheet.context.get());
      clipBetweenPixels(sheet.context.get());
      sheet.fill(area);
      QCOMPARE(sheet.coverage(10, 20), 255);
    }
  }

  void anAreaThatEndsWithItsClipGoesAlongWithIt() {
    const Sheet sheet;
    cairo_t* context = sheet.context.get();
    const auto tile = [&](double x, double width) {
      cairo_save(context);
      cairo_rectangle(context, x, 0, width, 40);
      clipBetweenPixels(context);
      cairo_rectangle(context, x - 0.1, 0, width + 0.2, 40);
      fillBetweenPixels(context);
      cairo_restore(context);
    };
    tile(0, 15.37);
    tile(15.37, 24.63);
    QCOMPARE(sheet.leastInside(), 255);
  }

  void imagesMeetWithoutASeamAndAreasKeepTheirEdges() {
    const Sheet sheet;
    cairo_t* context = sheet.context.get();
    const CairoSurface red(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 8, 8));
    const auto image = [&](double x, double width) {
      cairo_set_source_surface(context, red.get(), 0, 0);
      cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
      cairo_rectangle(context, x, 0, width, 40);
      fillBetweenPixels(context);
    };
    image(0, 15.5);
    image(15.5, 24.5);
    QCOMPARE(sheet.leastInside(), 255);
    const Sheet area;
    cairo_rectangle(area.context.get(), 0, 0, 15.5, 40);
    fillBetweenPixels(area.context.get());
    QCOMPARE(area.coverage(14, 10), 255);
    QVERIFY(area.coverage(15, 10) > 100 && area.coverage(15, 10) < 155);
  }

  void slantedTilesThatMeetAreNoticed_data() {
    QTest::addColumn<double>("degrees");
    QTest::addColumn<double>("gap");
    QTest::addColumn<double>("painted");  // how far from its tile's middle
    QTest::addColumn<bool>("seams");
    QTest::newRow("turned tiles") << 30.0 << 0.0 << 20.0 << true;
    QTest::newRow("turned by little") << 1.5 << 0.0 << 20.0 << true;
    QTest::newRow("level tiles") << 0.0 << 0.0 << 20.0 << false;
    QTest::newRow("turned tiles with room between them") << 30.0 << 0.5 << 20.0 << false;
    QTest::newRow("cells of a table, with something in each") << 30.0 << 0.0 << 2.0 << false;
  }
  void slantedTilesThatMeetAreNoticed() {
    QFETCH(double, degrees);
    QFETCH(double, gap);
    QFETCH(double, painted);
    QFETCH(bool, seams);
    const Sheet sheet;
    cairo_t* context = sheet.context.get();
    cairo_translate(context, 20, 20);
    cairo_rotate(context, degrees * 3.14159265358979 / 180);
    const auto tile = [&](double x, double y) {
      cairo_save(context);
      cairo_rectangle(context, x, y, 9.3, 7.7);
      clipBetweenPixels(context);
      cairo_rectangle(context, x + 4.6 - painted, y + 3.8 - painted, 2 * painted, 2 * painted);
      fillBetweenPixels(context);
      cairo_restore(context);
    };
    tile(-9.3 - gap, 0);
    tile(0, 2.2);  // as bricks
    tile(-9.3 - gap, -7.7 - gap);
    QCOMPARE(hasSeams(context), seams);
    QVERIFY(!hasSeams(Sheet(false).context.get()));
  }

  /// A tile is what fills its clip, and the clip must be the one that is still there.
  void slantedTilesThatAreFilledInPartAreNone_data() {
    QTest::addColumn<QMarginsF>("more");  // painted beyond the tile's edges
    QTest::addColumn<bool>("seams");
    QTest::newRow("all of it") << QMarginsF(1, 1, 1, 1) << true;
    QTest::newRow("as far as it goes") << QMarginsF(0, 0, 0, 0) << true;
    QTest::newRow("but for the left") << QMarginsF(-2, 1, 1, 1) << false;
    QTest::newRow("but for the upper end") << QMarginsF(1, -2, 1, 1) << false;
    QTest::newRow("but for the right") << QMarginsF(1, 1, -2, 1) << false;
    QTest::newRow("but for the lower end") << QMarginsF(1, 1, 1, -2) << false;
  }
  void slantedTilesThatAreFilledInPartAreNone() {
    QFETCH(QMarginsF, more);
    QFETCH(bool, seams);
    const Sheet sheet;
    cairo_t* context = sheet.context.get();
    cairo_translate(context, 20, 20);
    cairo_rotate(context, 0.02);
    for (const double x : {-9.3, 0.0}) {
      cairo_save(context);
      cairo_rectangle(context, x, -4, 9.3, 8);
      clipBetweenPixels(context);
      const QRectF painted = QRectF(x, -4, 9.3, 8).marginsAdded(more);
      cairo_rectangle(context, painted.x(), painted.y(), painted.width(), painted.height());
      fillBetweenPixels(context);
      cairo_restore(context);
    }
    QCOMPARE(hasSeams(context), seams);
  }

  void aClipThatWasTakenBackIsNoTile_data() {
    QTest::addColumn<QRectF>("first");
    QTest::addColumn<QRectF>("second");
    QTest::newRow("in the middle") << QRectF(-9, -4, 9, 8) << QRectF(0, -4, 9, 8);
    QTest::newRow("at the left") << QRectF(-25, -8, 9, 8) << QRectF(-25, 0, 9, 8);
    QTest::newRow("at the right") << QRectF(16, -8, 9, 8) << QRectF(16, 0, 9, 8);
    QTest::newRow("at the upper end") << QRectF(-9, -25, 9, 9) << QRectF(0, -25, 9, 9);
    QTest::newRow("at the lower end") << QRectF(-9, 16, 9, 9) << QRectF(0, 16, 9, 9);
    QTest::newRow("from left to right") << QRectF(-25, -8, 50, 8) << QRectF(-25, 0, 50, 8);
    QTest::newRow("from above to below") << QRectF(-8, -25, 8, 50) << QRectF(0, -25, 8, 50);
  }
  void aClipThatWasTakenBackIsNoTile() {
    QFETCH(QRectF, first);
    QFETCH(QRectF, second);
    const Sheet sheet;
    cairo_t* context = sheet.context.get();
    cairo_translate(context, 20, 20);
    cairo_rotate(context, 0.02);
    for (const QRectF& clip : {first, second}) {
      cairo_save(context);
      cairo_rectangle(context, clip.x(), clip.y(), clip.width(), clip.height());
      clipBetweenPixels(context);
      cairo_new_path(context);
      cairo_restore(context);
      cairo_rectangle(context, -30, -30, 60, 60);
      fillBetweenPixels(context);
    }
    QVERIFY(!hasSeams(context));
  }

  void turnedImagesThatMeetAreNoticed() {
    for (const double gap : {0.0, 1.0}) {
      const Sheet sheet;
      cairo_t* context = sheet.context.get();
      const CairoSurface red(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 8, 8));
      cairo_rotate(context, 0.3);
      for (const double x : {9.5, 17.5 + gap}) {
        cairo_set_source_surface(context, red.get(), x, 0);
        cairo_rectangle(context, x, 0, 8, 8);
        fillBetweenPixels(context);
      }
      QCOMPARE(hasSeams(context), gap == 0);
    }
  }

  /// A clip of two parts is left where it is: what is cut out of it is painted by another one.
  void tilesOfManyPartsThatMeetAnotherAreNoticed_data() {
    QTest::addColumn<QRectF>("other");
    QTest::addColumn<bool>("seams");
    QTest::newRow("fills what is cut out") << QRectF(10.3, 12.6, 9.4, 8.2) << true;
    QTest::newRow("goes on beyond the tile") << QRectF(32.4, 0, 7, 40) << true;
    QTest::newRow("leaves room") << QRectF(11, 13.5, 7.5, 6) << false;
    QTest::newRow("lies above the tile, its edge on the same line") << QRectF(4.4, 12.6, 5.9, 8.2) << false;
    QTest::newRow("meets for less than a step of a letter") << QRectF(32.4, 0, 7, 2.5) << false;
    QTest::newRow("nothing") << QRectF() << false;
  }
  void tilesOfManyPartsThatMeetAnotherAreNoticed() {
    QFETCH(QRectF, other);
    QFETCH(bool, seams);
    for (const double degrees : {0.0, 25.0, 90.0, 181.0}) {
      const Sheet sheet(false);
      cairo_t* context = sheet.context.get();
      cairo_translate(context, 20, 20);
      cairo_rotate(context, degrees * 3.14159265358979 / 180);
      cairo_translate(context, -20, -20);
      askForPixelEdges(context);
      const auto cutOut = [](cairo_t* path) {
        cairo_rectangle(path, 4.4, 0, 28, 40);
        cairo_rectangle(path, 10.3, 12.6, 9.4, 8.2);
      };
      cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
      sheet.tile(cutOut);
      sheet.tile(cutOut);  // again, as a picture of several layers has it: no seam
      if (!other.isEmpty())
        sheet.tile([&](cairo_t* path) {
          cairo_rectangle(path, other.x(), other.y(), other.width(), other.height());
        });
      QCOMPARE(hasSeams(context), seams);
    }
  }

  /// Whether a tile lies in the hole of the one that it was cut out of costs a walk along the path for each
  /// edge: a path of very many parts is not looked at to its end.
  void onlyTheFirstPartsOfALongPathAreLookedAt_data() {
    QTest::addColumn<QPoint>("hole");
    QTest::addColumn<bool>("seams");
    QTest::newRow("first") << QPoint(0, 0) << true;
    QTest::newRow("last") << QPoint(99, 99) << false;
  }
  void onlyTheFirstPartsOfALongPathAreLookedAt() {
    QFETCH(QPoint, hole);
    QFETCH(bool, seams);
    const Sheet sheet;
    sheet.tile([](cairo_t* path) {
      for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x) cairo_rectangle(path, 6.3 * x + 0.4, 6.3 * y + 0.4, 5, 5);
    });
    sheet.tile(
        [&](cairo_t* path) { cairo_rectangle(path, 6.3 * hole.x() + 5.4, 6.3 * hole.y() + 0.4, 1.3, 5); });
    QCOMPARE(hasSeams(sheet.context.get()), seams);
  }

  void edgesOnPixelsAreNoSeam() {
    const Sheet sheet;
    cairo_set_fill_rule(sheet.context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    sheet.tile([](cairo_t* context) {
      cairo_rectangle(context, 4, 0, 28, 40);
      cairo_rectangle(context, 10, 12, 9, 8);
    });
    sheet.tile([](cairo_t* context) { cairo_rectangle(context, 10, 12, 9, 8); });
    QVERIFY(!hasSeams(sheet.context.get()));
  }

  void hardEdgesCoverAPixelOrNot() {
    const Sheet sheet(false);
    askForHardEdges(sheet.context.get());
    cairo_translate(sheet.context.get(), 20, 20);
    cairo_rotate(sheet.context.get(), 0.3);
    sheet.tile([](cairo_t* context) { cairo_rectangle(context, -9, -9, 12.3, 30); });
    sheet.tile([](cairo_t* context) { cairo_rectangle(context, 3.3, -9, 9, 30); });
    sheet.fill([](cairo_t* context) { cairo_arc(context, 0, -14, 5, 0, 6.3); });
    int covered = 0;
    for (const int coverage : coverages(sheet)) {
      QVERIFY(coverage == 0 || coverage == 255);
      covered += coverage == 255;
    }
    QVERIFY(covered > 500);
    QVERIFY(!hasSeams(sheet.context.get()));
    QCOMPARE(cairo_get_antialias(sheet.context.get()), CAIRO_ANTIALIAS_DEFAULT);
  }

  void nothingIsDrawnWhereTimeIsOver() {
    for (const bool clips : {true, false}) {
      const Sheet sheet(false);
      askForHardEdges(sheet.context.get(), QDeadlineTimer(0));
      const auto area = [](cairo_t* context) { cairo_rectangle(context, 4, 4, 20, 20); };
      clips ? sheet.tile(area) : sheet.fill(area);
      const QList<int> all = coverages(sheet);
      QCOMPARE(all.count(0), all.size());
    }
  }

  void thePathIsGoneAndTheMatrixIsNot() {
    const Sheet sheet;
    cairo_t* context = sheet.context.get();
    cairo_scale(context, 0.5, -0.25);
    cairo_rectangle(context, 1, 1, 5, -9);
    clipBetweenPixels(context);
    QVERIFY(!cairo_has_current_point(context));
    cairo_matrix_t matrix;
    cairo_get_matrix(context, &matrix);
    QCOMPARE(matrix.xx, 0.5);
    QCOMPARE(matrix.yy, -0.25);
  }
};

NORVEX_TEST(PixelEdgesTest)
#include "pixel_edges_test.moc"
