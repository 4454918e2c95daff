// The pixels of the selection overlay.
#include "display/selection_overlay.h"

#include <QImage>
#include <QPainter>

#include <cmath>

#include "display/view_fixture.h"
#include "kit/test_main.h"

using namespace norvex;
using norvex::kit::ViewFixture;

namespace {

/// Draws `view` on white with `zoom` device pixels a point, of which `ratio` are a point of the screen.
QImage screen(NorvexView& view, double zoom, double ratio = 1) {
  const QRectF bounds = view.bounds();
  QImage image(QSize(int(std::round(bounds.width() * zoom)), int(std::round(bounds.height() * zoom))),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  QPainter painter(&image);
  const double scale = zoom / ratio;  // the painter multiplies with the ratio itself
  painter.setTransform(
      QTransform(scale, 0, 0, -scale, -bounds.x() * scale, (bounds.y() + bounds.height()) * scale));
  view.drawRect(painter, bounds, DrawingDestination::Screen);
  painter.end();
  image.setDevicePixelRatio(1);
  return image;
}

int pixelsOf(const QImage& image, const QColor& color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == color ? 1 : 0;
  return count;
}

const QColor blueOnWhite(64, 64, 255);      // three quarters opaque
const QColor redOnWhite(255, 64, 64);       // three quarters opaque
const QColor redOnWhiteTwice(255, 16, 16);  // painted twice

struct EmptyPicture : ViewFixture {
  explicit EmptyPicture(const QSizeF& size = {200, 100}) : ViewFixture(size) {
    rep->dead = true;
    host.paint = nullptr;
  }
  void select(const QPointF& from, const QPointF& to) {
    drag({from});
    drag({to});
  }
};

}  // namespace

class SelectionOverlayTest : public QObject {
  Q_OBJECT
 private slots:
  void theOutlineIsBlueThreeQuartersOpaqueAndOnePixelWide() {
    EmptyPicture f;
    f.select({-50, -20}, {-10, 10});
    const QImage image = screen(f.view, 1);
    QCOMPARE(image.pixelColor(50, 55), blueOnWhite);  // left side: x = -50
    QCOMPARE(image.pixelColor(49, 55), QColor(Qt::white));
    QCOMPARE(image.pixelColor(51, 55), QColor(Qt::white));
    QCOMPARE(image.pixelColor(90, 55), blueOnWhite);
    QCOMPARE(image.pixelColor(70, 40), blueOnWhite);  // upper side: y = 10
    QCOMPARE(image.pixelColor(70, 70), blueOnWhite);
    QCOMPARE(image.pixelColor(50, 40), blueOnWhite);  // a corner is painted once
    QCOMPARE(pixelsOf(image, blueOnWhite), 2 * 41 + 2 * 31 - 4);
    QCOMPARE(pixelsOf(image, Qt::white) + pixelsOf(image, blueOnWhite), 200 * 100);
  }

  void theCrosshairIsRedAndCrossesTheWholeView() {
    EmptyPicture f;
    f.drag({{-40, 20}});
    const QImage image = screen(f.view, 1);
    for (int x : {0, 30, 199}) QCOMPARE(image.pixelColor(x, 30), redOnWhite);
    for (int y : {0, 60, 99}) QCOMPARE(image.pixelColor(60, y), redOnWhiteTwice);
    QCOMPARE(pixelsOf(image, redOnWhite), 199);
    QCOMPARE(pixelsOf(image, redOnWhiteTwice), 100);
    QCOMPARE(pixelsOf(image, Qt::white), 200 * 100 - 299);
  }

  void theLinesStayAxisAlignedAtEveryAngle() {
    for (const double angle : {0.3, 1.0, 2.2, 3.9, 5.5}) {
      EmptyPicture f;
      f.view.setRotate(angle, false);
      f.select({-30, -20}, {20, 30});
      const QImage image = screen(f.view, 1);
      int rows = 0, columns = 0;
      for (int y = 0; y < image.height(); ++y) {
        int blue = 0;
        for (int x = 0; x < image.width(); ++x) blue += image.pixelColor(x, y) == blueOnWhite ? 1 : 0;
        rows += blue > 40 ? 1 : 0;
        QVERIFY(blue == 0 || blue == 2 || blue == 50 || blue == 51 || blue == 52);
      }
      for (int x = 0; x < image.width(); ++x) {
        int blue = 0;
        for (int y = 0; y < image.height(); ++y) blue += image.pixelColor(x, y) == blueOnWhite ? 1 : 0;
        columns += blue > 40 ? 1 : 0;
      }
      QCOMPARE(rows, 2);
      QCOMPARE(columns, 2);
      QCOMPARE(pixelsOf(image, Qt::white) + pixelsOf(image, blueOnWhite), image.width() * image.height());
    }
  }

  void theLinesAreOnePointWideAtEveryZoom() {
    EmptyPicture f({20, 20});
    f.drag({{0, 0}});
    for (const double zoom : {0.5, 1.0, 1.25, 4.0, 16.0}) {
      const QImage image = screen(f.view, zoom);
      QCOMPARE(pixelsOf(image, redOnWhiteTwice), image.height());
      QCOMPARE(pixelsOf(image, redOnWhite), image.width() - 1);
    }
  }

  void theLinesAreCrispAtFractionalScale_data() {
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("width");
    QTest::newRow("1.25") << 1.25 << 1;
    QTest::newRow("1.5") << 1.5 << 2;
    QTest::newRow("1.75") << 1.75 << 2;
    QTest::newRow("2") << 2.0 << 2;
    QTest::newRow("3") << 3.0 << 3;
  }
  void theLinesAreCrispAtFractionalScale() {
    QFETCH(double, ratio);
    QFETCH(int, width);
    EmptyPicture f({40, 40});
    f.drag({{3.3, -7.7}});
    const QImage cross = screen(f.view, ratio, ratio);
    QCOMPARE(pixelsOf(cross, redOnWhiteTwice), cross.height() * width);
    QCOMPARE(pixelsOf(cross, redOnWhite), (cross.width() - width) * width);
    QCOMPARE(pixelsOf(cross, Qt::white), (cross.width() - width) * (cross.height() - width));
    f.drag({{11.1, 9.9}});
    const QImage outline = screen(f.view, ratio, ratio);
    QVERIFY(pixelsOf(outline, blueOnWhite) > 0);
    QCOMPARE(pixelsOf(outline, Qt::white) + pixelsOf(outline, blueOnWhite),
             outline.width() * outline.height());
  }

  void theOutlineOfTheWholeViewIsSeenOnAllSides() {
    EmptyPicture f;
    f.view.selectBounds();
    const QImage image = screen(f.view, 1);
    QCOMPARE(image.pixelColor(0, 50), blueOnWhite);
    QCOMPARE(image.pixelColor(199, 50), blueOnWhite);
    QCOMPARE(image.pixelColor(100, 0), blueOnWhite);
    QCOMPARE(image.pixelColor(100, 99), blueOnWhite);
    QCOMPARE(pixelsOf(image, blueOnWhite), 2 * 200 + 2 * 98);
  }

  void aStartPointInTheCornerIsSeen() {
    EmptyPicture f;
    f.drag({{500, 500}});
    const QImage image = screen(f.view, 1);
    QCOMPARE(image.pixelColor(199, 50), redOnWhiteTwice);
    QCOMPARE(image.pixelColor(100, 0), redOnWhite);
  }

  void aRectangleThinnerThanItsLineIsStillPaintedOnce() {
    for (const QPointF opposite : {QPointF(0.5, 40), QPointF(40, 0.5)}) {
      EmptyPicture f;
      f.select({0.3, 0.3}, opposite);
      const QImage image = screen(f.view, 1);
      QVERIFY(pixelsOf(image, blueOnWhite) >= 40);
      QCOMPARE(pixelsOf(image, Qt::white) + pixelsOf(image, blueOnWhite), 200 * 100);
    }
  }

  void aTransformThatFlattensEverythingDrawsNothing() {
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const QImage before = image;
    QPainter painter(&image);
    painter.setTransform(QTransform(0, 0, 0, 0, 5, 5));
    drawSelectionOutline(painter, {{0, 0}, {9, 9}}, {1, 1}, {5, 5});
    drawSelectionCrosshair(painter, {{0, 0}, {9, 9}}, {1, 1});
    painter.end();
    QCOMPARE(image, before);
  }

  void pointsFarOutsideTheScreenAreHarmless() {
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    drawSelectionCrosshair(painter, {{-1e300, -1e300}, {1e300, 1e300}}, {5, 5});
    drawSelectionOutline(painter, {{-1e300, -1e300}, {1e300, 1e300}}, {-1e300, -1e300}, {1e300, 1e300});
    painter.end();
    QCOMPARE(image.pixelColor(5, 0), redOnWhiteTwice);
    QCOMPARE(image.pixelColor(0, 5), redOnWhite);
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
  }
};

NORVEX_TEST(SelectionOverlayTest)
#include "selection_overlay_test.moc"
