#include "worker/drawing/two_halves.h"

#include <cstring>
#include <new>
#include <random>
#include <thread>
#include <utility>

#include "kit/test_main.h"
#include "worker/drawing/seams/pixel_edges.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

RenderRequest requestOf(QSize size) {
  RenderRequest request;
  request.pixelSize = size;
  request.pictureToDevice = AffineTransform(1.37, 0, 0, -1.37, 3.2, size.height() + 0.3);
  return request;
}

/// Long curves, slanted areas and letters, all over the image and over every row of it. Two times of five a
/// curve runs back over itself where `foldsBack`.
Result<void> draw(cairo_t* context, bool foldsBack) {
  std::minstd_rand chance(7);
  const auto place = [&] { return double(chance() % 21000) / 100; };
  for (int i = 0; i < 400; ++i) {
    cairo_set_source_rgba(context, (i % 7) / 7.0, (i % 5) / 5.0, (i % 3) / 3.0, i % 2 == 0 ? 1 : 0.6);
    cairo_set_line_width(context, 0.2 + (i % 11) * 0.3);
    const double x = place(), y = place(), far = place();
    cairo_move_to(context, x, y);
    if (foldsBack && i % 5 < 2)
      cairo_curve_to(context, x + far, y + far, x - far, y - far, x + 9, y + 9);
    else
      cairo_curve_to(context, place(), place(), place(), place(), place(), place());
    if (i % 9 == 0) {
      cairo_line_to(context, place(), place());
      cairo_fill(context);
    } else {
      cairo_stroke(context);
    }
    if (i % 40 != 0) continue;
    cairo_move_to(context, place(), place());
    cairo_show_text(context, "Halves");
  }
  return {};
}

Result<void> drawLines(cairo_t* context) {
  return draw(context, false);
}
Result<void> drawFolded(cairo_t* context) {
  return draw(context, true);
}

Result<void> drawNothing(cairo_t*) {
  return {};
}

bool areSame(const Bitmap& a, const Bitmap& b) {
  return a.size() == b.size() && std::memcmp(a.row(0), b.row(0), size_t(a.byteCount())) == 0;
}

class TwoHalvesTest : public QObject {
  Q_OBJECT
 private slots:
  void thePixelsAreThoseOfOneDrawing() {
    // Each height puts the seam elsewhere in the drawing.
    for (int height = 64; height < 300; height += 13) {
      const RenderRequest request = requestOf({290, height});
      const Result<Bitmap> whole = paintImage(request, {}, drawLines);
      const Result<Bitmap> halves = paintHalves(request, {}, drawLines, drawLines);
      QVERIFY(whole && halves);
      QVERIFY2(areSame(*whole, *halves), qPrintable(QString::number(height)));
    }
  }

  void anAreaThatEndsBesideTheSeamIsNotPutToIt() {
    const auto area = [](cairo_t* context) -> Result<void> {
      askForPixelEdges(context);
      cairo_identity_matrix(context);
      cairo_rectangle(context, 0, 0, 70, 49.6);  // the seam is at 50
      fillBetweenPixels(context);
      return {};
    };
    const RenderRequest request = requestOf({70, 100});
    const Result<Bitmap> whole = paintImage(request, {}, area), halves = paintHalves(request, {}, area, area);
    QVERIFY(whole && halves);
    QVERIFY(areSame(*whole, *halves));
    QVERIFY(alpha(whole->row(49)[5]) < 255);
  }

  void onOneThreadAndOnTwoThePixelsAreTheSame() {
    for (int height = 64; height < 300; height += 39) {
      const RenderRequest request = requestOf({290, height});
      const Result<Bitmap> one = paintHalves(request, {}, drawFolded);
      const Result<Bitmap> two = paintHalves(request, {}, drawFolded, drawFolded);
      QVERIFY(one && two);
      QVERIFY2(areSame(*one, *two), qPrintable(QString::number(height)));
    }
  }

  void eachHalfIsDrawnByItsOwnFunctionOnAThreadOfItsOwn() {
    std::thread::id upper, lower;
    const auto painted = [](std::thread::id& thread, double red) {
      return [&thread, red](cairo_t* context) -> Result<void> {
        thread = std::this_thread::get_id();
        cairo_set_source_rgb(context, red, 0, 0);
        cairo_paint(context);
        return {};
      };
    };
    const Result<Bitmap> image = paintHalves(requestOf({70, 101}), {}, painted(upper, 1), painted(lower, 0));
    QVERIFY(image);
    QCOMPARE(upper, std::this_thread::get_id());
    QVERIFY(lower != upper);
    for (int y = 0; y < image->height(); ++y)
      QCOMPARE(image->row(y)[y % 70], y < 50 ? Argb32(0xFFFF0000) : Argb32(0xFF000000));
  }

  void eachHalfIsDrawnALittleBeyondTheSeamAlone() {
    std::pair<double, double> upper, lower;
    const auto rows = [](std::pair<double, double>& drawn) {
      return [&drawn](cairo_t* context) -> Result<void> {
        double left = 0, right = 0;
        cairo_identity_matrix(context);
        cairo_clip_extents(context, &left, &drawn.first, &right, &drawn.second);
        return {};
      };
    };
    QVERIFY(paintHalves(requestOf({70, 100}), {}, rows(upper), rows(lower)));
    QCOMPARE(upper, std::pair(0.0, 54.0));
    QCOMPARE(lower, std::pair(46.0, 100.0));
  }

  void theFailureOfEitherHalfIsThatOfTheDrawing() {
    const auto fails = [](cairo_t*) -> Result<void> {
      return Error{ErrorKind::Unsupported, QStringLiteral("this half cannot be drawn")};
    };
    for (const auto& image : {paintHalves(requestOf({70, 100}), {}, drawNothing, fails),
                              paintHalves(requestOf({70, 100}), {}, fails, drawNothing)}) {
      QVERIFY(!image);
      QCOMPARE(image.error().message, QStringLiteral("this half cannot be drawn"));
    }
  }

  void memoryThatIsUsedUpInTheOtherThreadIsToldInThisOne() {
    const auto exhausts = [](cairo_t*) -> Result<void> { throw std::bad_alloc(); };
    QVERIFY_THROWS_EXCEPTION(std::bad_alloc,
                             (void)paintHalves(requestOf({70, 100}), {}, drawNothing, exhausts));
  }

  void tinyImagesAndThoseThatAreLargeForTheirMemoryAreDrawnWhole() {
    PictureLimits limits;
    limits.memoryMiB = 64;
    QVERIFY(canPaintHalves(requestOf({1000, 1000}), limits));
    QVERIFY(!canPaintHalves(requestOf({1000, 40}), limits));
    QVERIFY(!canPaintHalves(requestOf({2000, 2000}), limits));
    QVERIFY(!canPaintHalves(requestOf({100, 32768}), PictureLimits()));
  }
};

}  // namespace

NORVEX_TEST(TwoHalvesTest)
#include "two_halves_test.moc"
