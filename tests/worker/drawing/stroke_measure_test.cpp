#include "worker/drawing/stroke_measure.h"

#include <cairo-pdf.h>

#include <functional>
#include <memory>

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

/// A page of 1,000 units, written as a PDF that nobody keeps, on which coarse strokes were asked for; lines
/// are 4 units wide.
class PdfPage {
 public:
  PdfPage()
      : surface_(cairo_pdf_surface_create_for_stream(nullptr, nullptr, 1000, 1000)),
        context_(cairo_create(surface_.get())) {
    askForCoarseStrokes(context_.get(), 0.4);
    cairo_set_line_width(context_.get(), 4);
  }
  operator cairo_t*() const { return context_.get(); }

  void clipTo(const std::function<void(cairo_t*)>& shape) const {
    cairo_new_path(context_.get());
    shape(context_.get());
    noteClip(context_.get());
    cairo_clip(context_.get());
  }
  /// The tolerance for a curve between these.
  [[nodiscard]] double ofCurve(double x0, double x1, double y = 500) const {
    cairo_new_path(context_.get());
    cairo_move_to(context_.get(), x0, y);
    cairo_curve_to(context_.get(), x0, y + 50, x1, y + 50, x1, y);
    return strokeTolerance(context_.get());
  }

 private:
  CairoSurface surface_;
  CairoContext context_;
};

constexpr double kInside = 6, kElsewhere = 0.4;  // one and a half times the width; what was asked for

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

  void aStrokeWithinItsClipIsHardlyMeasured() {
    const PdfPage page;
    QCOMPARE(page.ofCurve(100, 900), kInside);
    page.clipTo([](cairo_t* context) { cairo_rectangle(context, 50, 50, 900.5, 900.5); });
    QCOMPARE(page.ofCurve(100, 900), kInside);
  }

  void oneThatReachesTheEdgeIsMeasured() {
    const PdfPage page;
    cairo_set_line_join(page, CAIRO_LINE_JOIN_ROUND);
    QCOMPARE(page.ofCurve(2, 900), kElsewhere);
    QCOMPARE(page.ofCurve(10, 900), kInside);
    QCOMPARE(page.ofCurve(100, 999), kElsewhere);
    QCOMPARE(page.ofCurve(100, 900, 980), kElsewhere);  // by where its handles are
    page.clipTo([](cairo_t* context) { cairo_rectangle(context, 200, 200, 300, 600); });
    QCOMPARE(page.ofCurve(100, 400), kElsewhere);
    QCOMPARE(page.ofCurve(250, 400), kInside);
  }

  void cornersReachAsFarAsTheirLimit() {
    const PdfPage page;
    cairo_set_line_join(page, CAIRO_LINE_JOIN_MITER);
    cairo_set_miter_limit(page, 40);
    QCOMPARE(page.ofCurve(100, 900), kElsewhere);
    QCOMPARE(page.ofCurve(200, 800), kInside);
  }

  void withinAShapeItIsMeasuredUntilTheShapeIsGone() {
    const PdfPage page;
    cairo_save(page);
    page.clipTo([](cairo_t* context) { cairo_arc(context, 500, 500, 499, 0, 6.28); });
    QCOMPARE(page.ofCurve(400, 600), kElsewhere);
    cairo_restore(page);
    QCOMPARE(page.ofCurve(400, 600), kInside);
    cairo_rotate(page, 0.1);
    page.clipTo([](cairo_t* context) { cairo_rectangle(context, -2000, -2000, 5000, 5000); });
    cairo_identity_matrix(page);
    QCOMPARE(page.ofCurve(400, 600), kElsewhere);
  }

  void fourSlantedSidesAreAShape() {
    for (const double slant : {0., 50.}) {
      const PdfPage page;
      page.clipTo([slant](cairo_t* context) {
        cairo_move_to(context, 0, 0);
        cairo_line_to(context, 0, 1000);
        cairo_line_to(context, 1000, 1000 - slant);
        cairo_line_to(context, 1000, 0);
        cairo_close_path(context);
      });
      QCOMPARE(page.ofCurve(400, 600), slant > 0 ? kElsewhere : kInside);
    }
  }

  void twoRectanglesAreAShape() {
    const PdfPage page;
    page.clipTo([](cairo_t* context) {
      cairo_rectangle(context, 0, 0, 450, 1000);
      cairo_rectangle(context, 550, 0, 450, 1000);
    });
    QCOMPARE(page.ofCurve(400, 600), kElsewhere);
  }

  void whatIsPaintedOtherwiseIsMeasured() {
    const PdfPage page;
    const std::unique_ptr<cairo_pattern_t, decltype(&cairo_pattern_destroy)> gradient(
        cairo_pattern_create_linear(0, 0, 100, 0), &cairo_pattern_destroy);
    cairo_save(page);
    cairo_set_source(page, gradient.get());
    QCOMPARE(page.ofCurve(400, 600), kElsewhere);
    cairo_restore(page);
    const double dash = 10;
    cairo_set_dash(page, &dash, 1, 0);
    QCOMPARE(page.ofCurve(400, 600), kElsewhere);
    cairo_set_dash(page, nullptr, 0, 0);
    cairo_set_operator(page, CAIRO_OPERATOR_MULTIPLY);
    QCOMPARE(page.ofCurve(400, 600), kElsewhere);
    cairo_set_operator(page, CAIRO_OPERATOR_OVER);
    QCOMPARE(page.ofCurve(400, 600), kInside);
    cairo_push_group(page);
    QCOMPARE(page.ofCurve(400, 600), kElsewhere);
    cairo_pop_group_to_source(page);
  }

  void whatCouldVanishIsMeasured() {
    const PdfPage page;
    QCOMPARE(page.ofCurve(500, 500), kElsewhere);  // it ends where it begins
    QCOMPARE(page.ofCurve(500, 502), kInside);
  }

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
