#include "worker/drawing/thin_lines.h"

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/seams/pixel_edges.h"

using namespace norvex::engine;

namespace {

/// A context with two pixels a unit.
struct Drawing {
  Drawing()
      : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 4, 4)), context(cairo_create(surface.get())) {
    cairo_scale(context.get(), 2, -2);
  }
  /// The width that is set for a line of `width` that is widened to `asked`.
  [[nodiscard]] double set(double width, double asked) const {
    noteLineWidth(context.get(), width);
    return lineWidthToSet(context.get(), asked);
  }

  CairoSurface surface;
  CairoContext context;
};

constexpr double kPixel = 0.5;

}  // namespace

class ThinLinesTest : public QObject {
  Q_OBJECT
 private slots:
  void aLineThatWasWidenedToAPixelKeepsItsWidth() {
    const Drawing drawing;
    askForPixelEdges(drawing.context.get());
    QCOMPARE(drawing.set(0.3, kPixel), 0.3);
    QCOMPARE(drawing.set(0.01, kPixel), kThinnestLine * kPixel);
    QCOMPARE(drawing.set(0, kPixel), kPixel);
  }
  void aPixelIsAsLongAsItsShorterSide() {
    const Drawing drawing;
    askForPixelEdges(drawing.context.get());
    cairo_scale(drawing.context.get(), 1, 2);
    QCOMPARE(drawing.set(0.1, kPixel / 2), 0.1);
    QCOMPARE(drawing.set(0.1, kPixel), kPixel);
  }
  void othersAreAsTheyWouldBe() {
    const Drawing drawing;
    QCOMPARE(drawing.set(0.3, kPixel), kPixel);  // nobody asked
    askForPixelEdges(drawing.context.get());
    QCOMPARE(drawing.set(0.7, 0.7), 0.7);
    QCOMPARE(drawing.set(0.3, 0.9), 0.9);  // widened to something else
    askForHardEdges(drawing.context.get());
    QCOMPARE(drawing.set(0.3, kPixel), kPixel);
  }
  void aWidthIsNotedForTheNextLineOfItsContextAlone() {
    const Drawing drawing, other;
    askForPixelEdges(drawing.context.get());
    askForPixelEdges(other.context.get());
    QCOMPARE(drawing.set(0.3, kPixel), 0.3);
    QCOMPARE(lineWidthToSet(drawing.context.get(), kPixel), kPixel);
    noteLineWidth(other.context.get(), 0.3);
    QCOMPARE(lineWidthToSet(drawing.context.get(), kPixel), kPixel);
  }
};

NORVEX_TEST(ThinLinesTest)
#include "thin_lines_test.moc"
