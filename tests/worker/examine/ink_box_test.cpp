// The ink's box, found in pixels.
#include "worker/examine/ink_box.h"

#include <algorithm>
#include <cmath>

#include "kit/test_main.h"
#include "worker/kit/made_pdf.h"
#include "worker/pdf/pdf_render.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

constexpr double kSharp = 1440, kCoarse = 72;

Result<DrawnInk> inkOf(const QByteArray& contents, QSizeF size = {200, 100}, double dpi = kSharp) {
  const QByteArray box =
      "/MediaBox [0 0 " + QByteArray::number(size.width()) + ' ' + QByteArray::number(size.height()) + ']';
  PdfRenderer renderer(kit::onePage(contents, box));
  return findInk(QRectF(QPointF(0, 0), size), 0, dpi,
                 [&](const RenderRequest& request) { return renderer.render(request, size, {}); });
}

bool isNear(const std::optional<QRectF>& found, const QRectF& wanted) {
  const auto near = [](double a, double b) { return std::abs(a - b) <= 0.1; };
  const bool good = found && near(found->left(), wanted.left()) && near(found->right(), wanted.right()) &&
                    near(found->top(), wanted.top()) && near(found->bottom(), wanted.bottom());
  if (!good && found) qWarning("%f %f %f %f", found->left(), found->top(), found->right(), found->bottom());
  return good;
}

}  // namespace

class InkBoxTest : public QObject {
  Q_OBJECT
 private slots:
  void edgesAreFoundWithinATenthOfAPoint() {
    QVERIFY(isNear(inkOf("10.37 20.61 30.15 40.83 re f")->ink, QRectF(10.37, 20.61, 30.15, 40.83)));
    QVERIFY(isNear(inkOf("4 w 50 50 m 70 50 l S")->ink, QRectF(50, 48, 20, 4)));
    QVERIFY(isNear(inkOf("1 0 0 rg 0 0 200 100 re f")->ink, QRectF(0, 0, 200, 100)));
  }

  void onALargeSheetToo() {
    QVERIFY(isNear(inkOf("1000.3 2000.4 500 700 re f", {2400, 3400})->ink, QRectF(1000.3, 2000.4, 500, 700)));
  }

  void aSpeckFarFromEverythingIsInk() {
    QVERIFY(isNear(inkOf("10 10 20 20 re f 190.2 90.3 0.3 0.3 re f")->ink, QRectF(10, 10, 180.5, 80.6)));
  }

  void aCoarseLookIsNeverTooSmallAndSaysHowGoodItIs() {
    const QRectF wanted(10.37, 20.61, 30.15, 40.83);
    const Result<DrawnInk> drawn = inkOf("10.37 20.61 30.15 40.83 re f", {200, 100}, kCoarse);
    QVERIFY(drawn && drawn->ink && drawn->ink->contains(wanted));
    const double off = drawn->accuracy;
    QVERIFY(off > 0.1 && off <= 0.5);
    QVERIFY(wanted.adjusted(-off, -off, off, off).contains(*drawn->ink));
    QVERIFY(inkOf("10 10 20 20 re f")->accuracy <= 0.1);
  }

  /// As samples of an image run into their neighbours where it is drawn small.
  void whatOnlyCoarsePixelsSpreadIsNoInk() {
    const QRectF true_(30, 40, 20, 10);
    const auto draw = [&](const RenderRequest& request) {
      const double scale = request.pictureToDevice.m11(), spread = scale < 5 ? 1.6 : 0;
      const QRectF wide = true_.adjusted(-spread, -spread, spread, spread);
      const QRect all(QRectF(wide.x() * scale + request.pictureToDevice.dx(),
                             request.pictureToDevice.dy() - wide.bottom() * scale, wide.width() * scale,
                             wide.height() * scale)
                          .toRect());
      const QRect inked = all.intersected(QRect(QPoint(), request.pixelSize));
      Result<Bitmap> bitmap = Bitmap::create(request.pixelSize);
      if (bitmap)
        for (int y = inked.top(); !inked.isEmpty() && y <= inked.bottom(); ++y)
          std::fill_n(bitmap->row(y) + inked.left(), inked.width(), 0xff000000);
      return bitmap;
    };
    const Result<DrawnInk> drawn = findInk(QRectF(0, 0, 90, 90), 0, kSharp, draw);
    QVERIFY(isNear(drawn->ink, true_));
    QVERIFY(drawn->accuracy <= 0.1);
  }

  void aCoarseLookIsOne() {
    int looks = 0;
    const auto draw = [&](const RenderRequest& request) {
      ++looks;
      Result<Bitmap> bitmap = Bitmap::create(request.pixelSize);
      if (bitmap) bitmap->row(bitmap->height() / 2)[bitmap->width() / 2] = 0xff000000;
      return bitmap;
    };
    QVERIFY(findInk(QRectF(0, 0, 90, 90), 0, kCoarse, draw)->ink);
    QCOMPARE(looks, 1);
    QVERIFY(findInk(QRectF(0, 0, 90, 90), 0, kSharp, draw)->ink);
    QCOMPARE(looks, 6);
  }

  // It is looked at as finely as the longest image allows.
  void theFarEndOfALongStripIsSeen() {
    constexpr double at = 59'990.5;
    const auto draw = [&](const RenderRequest& request) {
      Result<Bitmap> bitmap = Bitmap::create(request.pixelSize);
      const int column = int(std::floor(at * request.pictureToDevice.m11() + request.pictureToDevice.dx()));
      if (bitmap && column >= 0 && column < bitmap->width()) bitmap->row(0)[column] = 0xff000000;
      return bitmap;
    };
    const Result<DrawnInk> drawn = findInk(QRectF(0, 0, 60'000, 1), 0, kSharp, draw);
    QVERIFY(drawn && drawn->ink);
    QVERIFY(drawn->ink->left() <= at && drawn->ink->right() >= at && drawn->ink->width() <= 1);
  }

  void whiteIsPaintedAndNoInk() {
    const Result<DrawnInk> drawn = inkOf("1 g 5 5 100 60 re f 0 g 20 20 10 10 re f");
    QVERIFY(isNear(drawn->ink, QRectF(20, 20, 10, 10)));
    QVERIFY(drawn->painted && std::abs(drawn->painted->left() - 5) < 1 &&
            std::abs(drawn->painted->right() - 105) < 1);
  }

  void anEmptyPageHasNone() {
    QVERIFY(!inkOf("")->ink);
    QVERIFY(!inkOf("1 g 0 0 50 50 re f")->ink);
  }

  void aDrawingThatFailsIsTold() {
    const Result<DrawnInk> drawn = findInk(QRectF(0, 0, 9, 9), 0, kSharp, [](const RenderRequest&) {
      return Result<Bitmap>(Error{ErrorKind::Limit, "no"});
    });
    QVERIFY(!drawn.ok());
    QCOMPARE(drawn.error().kind, ErrorKind::Limit);
  }
};

NORVEX_TEST(InkBoxTest)
#include "ink_box_test.moc"
