#include "worker/drawing/told_drawing.h"

#include <malloc.h>

#include <cstring>
#include <functional>
#include <future>
#include <new>
#include <random>

#include "kit/test_main.h"
#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/two_halves.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

// As the program has them stand in for cairo's own.
void save(cairo_t* context) {
  tellSave(context);
  cairo_save(context);
}
void restore(cairo_t* context) {
  tellRestore(context);
  cairo_restore(context);
}
void clip(cairo_t* context) {
  tellClip(context);
  cairo_clip(context);
}
void fill(cairo_t* context) {
  tellFill(context);
  cairo_fill_preserve(context);
}
void stroke(cairo_t* context) {
  tellStroke(context);
  cairo_stroke_preserve(context);
}

/// Areas and strokes of every kind, some within clips and under other matrices.
Result<void> drawMany(cairo_t* context, int count) {
  std::minstd_rand chance(11);
  const auto place = [&] { return double(chance() % 30000) / 100; };
  for (int i = 0; i < count; ++i) {
    save(context);
    if (i % 6 == 0) {
      cairo_rectangle(context, place(), place(), 120.5, 90.25);
      clip(context);
    }
    if (i % 4 == 0) cairo_rotate(context, 0.01 * (i % 90));
    if (i % 10 == 0) cairo_scale(context, 1.2, 0.7);
    const double dashes[] = {3.5, 1 + 0.1 * (i % 30)};
    cairo_set_dash(context, dashes, i % 5 == 0 ? 2 : 0, 0.5);
    cairo_set_line_cap(context, cairo_line_cap_t(i % 3));
    cairo_set_line_join(context, cairo_line_join_t(i % 3));
    cairo_set_miter_limit(context, 2 + i % 5);
    cairo_set_line_width(context, 0.3 + (i % 13) * 0.4);
    cairo_set_fill_rule(context, cairo_fill_rule_t(i % 2));
    cairo_set_antialias(context, i % 7 == 0 ? CAIRO_ANTIALIAS_NONE : CAIRO_ANTIALIAS_DEFAULT);
    cairo_set_tolerance(context, i % 8 == 0 ? 0.5 : 0.1);
    cairo_set_source_rgba(context, (i % 7) / 7.0, (i % 5) / 5.0, (i % 3) / 3.0, i % 2 == 0 ? 1 : 0.6);
    cairo_new_path(context);
    cairo_move_to(context, place(), place());
    cairo_curve_to(context, place(), place(), place(), place(), place(), place());
    cairo_line_to(context, place(), place());
    if (i % 3 == 0) cairo_close_path(context);
    if (i % 3 != 1) fill(context);
    if (i % 3 != 2) stroke(context);
    restore(context);
  }
  return {};
}

RenderRequest requestOf(QSize size) {
  RenderRequest request;
  request.pixelSize = size;
  request.pictureToDevice = AffineTransform(1.07, 0, 0, -1.07, 3.2, size.height() + 0.3);
  return request;
}

bool areSame(const Bitmap& a, const Bitmap& b) {
  return a.size() == b.size() && std::memcmp(a.row(0), b.row(0), size_t(a.byteCount())) == 0;
}

/// Whether `paint` can be told.
bool isTold(const PaintPicture& paint) {
  ToldDrawing told;
  const auto tell = [&](cairo_t* context) {
    const ToldDrawing::Teller teller(told, context);
    return paint(context);
  };
  if (!paintImage(requestOf({40, 40}), {}, tell)) return false;
  told.end();
  bool isWhole = false;
  const auto draw = [&](cairo_t* context) -> Result<void> {
    isWhole = told.draw(context);
    return {};
  };
  return paintImage(requestOf({40, 40}), {}, draw) && isWhole;
}

/// What paints a square after `change` was done to the context.
PaintPicture square(const std::function<void(cairo_t*)>& change) {
  return [change](cairo_t* context) -> Result<void> {
    cairo_rectangle(context, 5, 5, 20, 20);
    fill(context);
    change(context);
    fill(context);
    return {};
  };
}

class ToldDrawingTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsToldIsDrawnAgainPixelByPixel() {
    ToldDrawing told;
    const RenderRequest request = requestOf({320, 300});
    std::future<Result<Bitmap>> other = std::async(std::launch::async, [&] {
      return paintImage(request, {}, [&](cairo_t* context) -> Result<void> {
        if (told.draw(context)) return {};
        return Error{ErrorKind::Unsupported, QStringLiteral("it was not told")};
      });
    });
    const Result<Bitmap> image = paintImage(request, {}, [&](cairo_t* context) {
      const ToldDrawing::Teller teller(told, context);
      return drawMany(context, 3000);
    });
    told.end();
    const Result<Bitmap> again = other.get();
    QVERIFY(image && again);
    QVERIFY(areSame(*image, *again));
  }

  void halvesThatAreToldAreThoseThatAreDrawn() {
    const PaintPicture paint = [](cairo_t* context) { return drawMany(context, 400); };
    bool isDrawnAgain = false;
    const PaintPicture again = [&](cairo_t* context) {
      isDrawnAgain = true;
      return paint(context);
    };
    for (int height = 64; height < 300; height += 39) {
      const RenderRequest request = requestOf({290, height});
      const Result<Bitmap> drawn = paintHalves(request, {}, paint, {}, 0.4);
      const Result<Bitmap> told = paintHalvesByTelling(request, {}, paint, again, 0.4);
      QVERIFY(drawn && told);
      QVERIFY2(areSame(*drawn, *told), qPrintable(QString::number(height)));
      QVERIFY(!isDrawnAgain);
    }
  }

  void whatCannotBeToldIsDrawnAgain() {
    // In the midst of it, so that some of it has been drawn already.
    const PaintPicture paint = [](cairo_t* context) -> Result<void> {
      (void)drawMany(context, 2000);
      tellOther(context);
      cairo_set_source_rgba(context, 0, 0, 1, 0.5);
      cairo_paint(context);
      return {};
    };
    const RenderRequest request = requestOf({290, 200});
    const Result<Bitmap> drawn = paintHalves(request, {}, paint, {}, 0.4);
    const Result<Bitmap> told = paintHalvesByTelling(request, {}, paint, paint, 0.4);
    QVERIFY(drawn && told);
    QVERIFY(areSame(*drawn, *told));
  }

  void onlyWhatIsPaintedInAColourOnTheImageCanBeTold() {
    QVERIFY(isTold(square([](cairo_t* context) { cairo_set_source_rgba(context, 1, 0, 0, 0.5); })));
    QVERIFY(!isTold(square([](cairo_t* context) {
      cairo_pattern_t* gradient = cairo_pattern_create_linear(0, 0, 9, 9);
      cairo_set_source(context, gradient);
      cairo_pattern_destroy(gradient);
    })));
    QVERIFY(!isTold(square([](cairo_t* context) { cairo_set_operator(context, CAIRO_OPERATOR_MULTIPLY); })));
    QVERIFY(!isTold([](cairo_t* context) -> Result<void> {
      cairo_push_group(context);
      cairo_rectangle(context, 5, 5, 20, 20);
      fill(context);
      cairo_pop_group_to_source(context);
      return {};
    }));
    // Where nobody stands in for cairo's functions nothing is told.
    QVERIFY(!isTold([](cairo_t* context) -> Result<void> {
      cairo_paint(context);
      return {};
    }));
  }

  void otherContextsAreNotTold() {
    QVERIFY(isTold([](cairo_t* context) -> Result<void> {
      cairo_rectangle(context, 5, 5, 20, 20);
      fill(context);
      const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 9, 9));
      const CairoContext other(cairo_create(surface.get()));
      tellOther(other.get());
      return {};
    }));
  }

  /// Twenty thousand shapes: megabytes, if somebody may still draw them.
  void whatNobodyDrawsIsNotKept() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers keep memory in their own way");
#endif
    const auto keptBy = [](ToldDrawing& told) {
      const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1));
      const CairoContext context(cairo_create(surface.get()));
      const size_t before = ::mallinfo2().uordblks;
      {
        const ToldDrawing::Teller teller(told, context.get());
        (void)drawMany(context.get(), 20'000);
      }
      const size_t after = ::mallinfo2().uordblks;
      return after > before ? (after - before) >> 10 : 0;
    };
    ToldDrawing wanted, abandoned, abandonedLate;
    QVERIFY(keptBy(wanted) > 4096);
    abandoned.abandon();
    QVERIFY(keptBy(abandoned) < 256);
    abandoned.end();
    const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1));
    const CairoContext context(cairo_create(surface.get()));
    QVERIFY(!abandoned.draw(context.get()));
    (void)keptBy(abandonedLate);
    const size_t before = ::mallinfo2().uordblks;
    abandonedLate.abandon();
    QVERIFY(::mallinfo2().uordblks + (4 << 20) < before);
  }

  void aDrawingThatFailsIsWaitedForByNobody() {
    const PaintPicture fails = [](cairo_t* context) -> Result<void> {
      (void)drawMany(context, 50);
      return Error{ErrorKind::Unsupported, QStringLiteral("it cannot be drawn")};
    };
    const PaintPicture nothing = [](cairo_t*) -> Result<void> { return {}; };
    const Result<Bitmap> image = paintHalvesByTelling(requestOf({290, 200}), {}, fails, nothing, 0.4);
    QVERIFY(!image);
    QCOMPARE(image.error().message, QStringLiteral("it cannot be drawn"));
    // Both fail before anything is painted.
    QVERIFY(!paintHalvesByTelling(requestOf({290, 0}), {}, nothing, nothing, 0.4));
    // What is told to a thread that has ended is not waited for either.
    const PaintPicture exhausts = [](cairo_t*) -> Result<void> { throw std::bad_alloc(); };
    QVERIFY_THROWS_EXCEPTION(std::bad_alloc,
                             (void)paintHalvesByTelling(requestOf({290, 200}), {}, nothing, exhausts, 0.4));
  }
};

}  // namespace

NORVEX_TEST(ToldDrawingTest)
#include "told_drawing_test.moc"
