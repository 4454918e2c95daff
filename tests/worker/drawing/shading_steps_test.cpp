#include "worker/drawing/shading_steps.h"

#include <cmath>

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"

using namespace norvex::engine;

namespace {

struct Steps {
  double x = 0, y = 0;
};

/// Of a gradient whose own units are placed by this matrix.
Steps stepsOf(cairo_matrix_t placed) {
  cairo_matrix_invert(&placed);
  Steps steps;
  shadingSteps(placed, &steps.x, &steps.y);
  return steps;
}

bool isClose(double one, double other) {
  return std::abs(one - other) < 1e-9 * other;
}

}  // namespace

class ShadingStepsTest : public QObject {
  Q_OBJECT
 private slots:
  void aCellOfAnUprightGradientIsThreePixels() {
    const Steps steps = stepsOf({100, 0, 0, 50, 7, 9});
    QVERIFY(isClose(steps.x, 0.03));
    QVERIFY(isClose(steps.y, 0.06));
  }

  void itIsTheSameAtEveryAngleAndInAMirror() {
    for (const double mirror : {1.0, -1.0})
      for (int degrees = 0; degrees < 360; degrees += 15) {
        cairo_matrix_t placed;
        cairo_matrix_init_rotate(&placed, degrees * M_PI / 180);
        cairo_matrix_scale(&placed, 100, 50 * mirror);
        const Steps steps = stepsOf(placed);
        QVERIFY2(isClose(steps.x, 0.03) && isClose(steps.y, 0.06), qPrintable(QString::number(degrees)));
      }
  }

  void cellsAreAsLargeAsTheyAreDrawn() {
    const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 4, 4));
    const CairoContext context(cairo_create(surface.get()));
    const ShadedContext shaded(context.get());
    cairo_scale(context.get(), 200, -400);
    {
      const CairoContext inner(cairo_create(surface.get()));
      const ShadedContext group(inner.get());
      QVERIFY(isClose(stepsOf({1, 0, 0, 1, 0, 0}).x, 3));
    }
    const Steps steps = stepsOf({1, 0, 0, 1, 0, 0});
    QVERIFY(isClose(steps.x, 0.015));
    QVERIFY(isClose(steps.y, 0.0075));
  }

  void whatHasNoExtentIsOneCell() {
    Steps steps;
    shadingSteps({0, 0, 0, 0, 0, 0}, &steps.x, &steps.y);
    QVERIFY(steps.x > 1e300);
    QVERIFY(steps.y > 1e300);
    const Steps huge = stepsOf({1e300, 0, 0, 1, 0, 0});
    QVERIFY(huge.x > 0);
  }
};

NORVEX_TEST(ShadingStepsTest)
#include "shading_steps_test.moc"
