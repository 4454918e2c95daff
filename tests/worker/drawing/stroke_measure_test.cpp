#include "worker/drawing/stroke_measure.h"

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

/// The tolerance for a stroke of `width` on a surface on which `coarse` units were asked for, 0 for nothing.
double toleranceOf(double width, double coarse, double scaleX = 1, double scaleY = 1) {
  const CairoSurface surface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr));
  const CairoContext context(cairo_create(surface.get()));
  if (coarse > 0) askForCoarseStrokes(context.get(), coarse);
  cairo_scale(context.get(), scaleX, scaleY);
  cairo_set_line_width(context.get(), width);
  return strokeTolerance(context.get());
}

class StrokeMeasureTest : public QObject {
  Q_OBJECT
 private slots:
  void whereNothingWasAskedForItIsCairosOwn() { QCOMPARE(toleranceOf(100, 0), 0.1); }

  void thickStrokesAreMeasuredAsCoarselyAsWasAskedFor() {
    QCOMPARE(toleranceOf(100, 0.4), 0.4);
    QCOMPARE(toleranceOf(0.8, 0.4), 0.4);
  }

  void thinStrokesAreMeasuredByHalfTheirWidth() {
    QCOMPARE(toleranceOf(0.5, 0.4), 0.25);
    QCOMPARE(toleranceOf(0.25, 0.4), 0.125);
  }

  void thinnerOnesKeepCairosOwn() {
    QCOMPARE(toleranceOf(0.2, 0.4), 0.1);
    QCOMPARE(toleranceOf(0.01, 0.4), 0.1);
  }

  void theWidthIsThatOnTheSurfaceWhereItIsLeast() {
    QCOMPARE(toleranceOf(0.1, 0.4, 10, 10), 0.4);
    QCOMPARE(toleranceOf(1, 0.4, 10, 0.5), 0.25);
    QCOMPARE(toleranceOf(1, 0.4, 0.5, 10), 0.25);
  }

  void whatIsAskedForIsNeverFinerThanCairosOwn() { QCOMPARE(toleranceOf(100, 0.01), 0.1); }

  void extentsAreMeasuredAsCoarselyAsTheyWereAskedForInTheUnitsOfThePage() {
    const CairoSurface surface(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr));
    const CairoContext context(cairo_create(surface.get()));
    cairo_set_tolerance(context.get(), 1);
    QCOMPARE(extentsTolerance(context.get()), 1.0);
    askForCoarseStrokes(context.get(), 0.4);
    QCOMPARE(extentsTolerance(context.get()), 4.0);
    askForCoarseStrokes(context.get(), 0.05);
    QCOMPARE(extentsTolerance(context.get()), 1.0);
  }
};

}  // namespace

NORVEX_TEST(StrokeMeasureTest)
#include "stroke_measure_test.moc"
