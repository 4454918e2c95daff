#include "worker/drawing/fine_image.h"

#include <cmath>
#include <functional>

#include "kit/test_main.h"
#include "worker/drawing/seams/pixel_edges.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

RenderRequest sheet(QSize size) {
  RenderRequest request;
  request.pixelSize = size;
  request.pictureToDevice = {1, 0, 0, -1, 0, double(size.height())};
  return request;
}

/// Paints a part as a tile is painted, in red.
void tile(cairo_t* context, const std::function<void()>& path) {
  cairo_save(context);
  path();
  clipBetweenPixels(context);
  cairo_set_source_rgb(context, 1, 0, 0);
  cairo_paint(context);
  cairo_restore(context);
}

/// A sheet of 40 points, from a half-plane with a hole in it, the hole, and the other half-plane.
Result<void> halves(cairo_t* context) {
  askForHardEdges(context);
  cairo_translate(context, 20.3, 19.6);
  cairo_rotate(context, 0.4);
  cairo_set_fill_rule(context, CAIRO_FILL_RULE_EVEN_ODD);
  tile(context, [&] {
    cairo_rectangle(context, -40, -40, 40, 80);
    cairo_new_sub_path(context);
    cairo_arc(context, -10, 0, 6, 0, 2 * M_PI);
  });
  tile(context, [&] { cairo_arc(context, -10, 0, 6, 0, 2 * M_PI); });
  tile(context, [&] { cairo_rectangle(context, 0, -40, 40, 80); });
  return {};
}

bool isAll(const Bitmap& image, Argb32 colour) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.row(y)[x] != colour) return false;
  return !image.isEmpty();
}

class FineImageTest : public QObject {
  Q_OBJECT
 private slots:
  void whatMeetsLeavesNothingOfWhatLiesBeneath() {
    const Result<Bitmap> image = paintFine(sheet({40, 40}), {}, halves);
    QVERIFY(image.ok());
    QVERIFY(isAll(*image, 0xFFFF0000));
  }

  void withSmoothEdgesThereWereSeams() {
    // That the comparison above can fail at all.
    const Result<Bitmap> image = paintImage(sheet({40, 40}), {}, [](cairo_t* context) -> Result<void> {
      cairo_set_source_rgb(context, 1, 0, 0);
      cairo_rotate(context, 0.4);
      cairo_rectangle(context, -80, -80, 100, 160);
      cairo_fill(context);
      cairo_rectangle(context, 20, -80, 100, 160);
      cairo_fill(context);
      return {};
    });
    QVERIFY(image.ok());
    QVERIFY(!isAll(*image, 0xFFFF0000));
  }

  void aPixelHasTheMeanOfItsParts() {
    const auto paint = [](cairo_t* context) -> Result<void> {
      askForHardEdges(context);
      tile(context, [&] { cairo_rectangle(context, 0, 0, 1.5, 0.75); });
      return {};
    };
    const Result<Bitmap> image = paintFine(sheet({3, 2}), {}, paint);
    QVERIFY(image.ok());
    // The origin is at the lower-left corner; red at three quarters of 255, premultiplied.
    QCOMPARE(image->row(1)[0], 0xBFBF0000u);
    QCOMPARE(image->row(1)[1], 0x60600000u);  // three eighths
    QCOMPARE(image->row(1)[2], 0u);
    QCOMPARE(image->row(0)[0], 0u);
  }

  /// Few pixels are granted for each: many bands make the same picture.
  void bandsMeet() {
    const auto paint = [](cairo_t* context) -> Result<void> {
      askForHardEdges(context);
      tile(context, [&] { cairo_arc(context, 30, 25, 21.3, 0, 2 * M_PI); });
      return {};
    };
    int calls = 0;
    const auto counted = [&](cairo_t* context) {
      ++calls;
      return paint(context);
    };
    const Result<Bitmap> whole = paintFine(sheet({60, 50}), {}, counted);
    QCOMPARE(calls, 1);
    PictureLimits few;
    few.megapixels = 0.006;
    const Result<Bitmap> bands = paintFine(sheet({60, 50}), few, counted);
    QVERIFY(whole.ok() && bands.ok());
    QCOMPARE(calls, 1 + 9);  // of six rows of 240 by 4 pixels
    for (int y = 0; y < 50; ++y)
      for (int x = 0; x < 60; ++x) QCOMPARE(bands->row(y)[x], whole->row(y)[x]);
  }

  void whatIsTooMuchIsNotDrawn() {
    PictureLimits few;
    few.megapixels = 0.0005;
    int calls = 0;
    const auto paint = [&](cairo_t*) -> Result<void> {
      ++calls;
      return {};
    };
    const Result<Bitmap> image = paintFine(sheet({60, 50}), few, paint);
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::Limit);
    QCOMPARE(calls, 0);
  }

  void whereFourTimesIsTooMuchItIsTwice() {
    PictureLimits few;
    few.megapixels = 0.002;
    double scale = 0;
    const auto paint = [&](cairo_t* context) -> Result<void> {
      cairo_matrix_t matrix;
      cairo_get_matrix(context, &matrix);
      scale = matrix.xx;
      return {};
    };
    QVERIFY(paintFine(sheet({60, 50}), few, paint).ok());
    QCOMPARE(scale, 2.0);
    QVERIFY(paintFine(sheet({60, 50}), {}, paint).ok());
    QCOMPARE(scale, 4.0);
  }

  /// The band that time ends in is not whole, and those behind it are not begun.
  void whatIsNotReadyInTimeIsGivenUp() {
    PictureLimits few;
    few.megapixels = 0.006;  // nine bands
    int calls = 0;
    const auto paint = [&](cairo_t*) -> Result<void> {
      ++calls;
      return {};
    };
    const Result<Bitmap> image = paintFine(sheet({60, 50}), few, paint, QDeadlineTimer(0));
    QVERIFY(!image.ok());
    QCOMPARE(image.error().kind, ErrorKind::Limit);
    QCOMPARE(calls, 1);
  }

  void whatCannotBeDrawnIsTold() {
    const auto paint = [](cairo_t*) -> Result<void> {
      return Error{ErrorKind::NotParsable, QStringLiteral("broken")};
    };
    const Result<Bitmap> image = paintFine(sheet({4, 4}), {}, paint);
    QVERIFY(!image.ok());
    QCOMPARE(image.error().message, QStringLiteral("broken"));
    QVERIFY(!paintFine(sheet({0, 0}), {}, paint).ok());
  }
};

}  // namespace

NORVEX_TEST(FineImageTest)
#include "fine_image_test.moc"
