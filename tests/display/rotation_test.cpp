// Rotation: normalisation, the view's new frame and bounds, and what becomes of the selection.
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "display/norvex_view.h"
#include "display/picture_geometry.h"
#include "display/view_fixture.h"
#include "kit/test_main.h"
#include "picture/image_rep.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;
using norvex::kit::ViewFixture;

namespace {

bool near(double a, double b, double slack = 1e-9) {
  return std::abs(a - b) <= slack;
}

/// Keeps the transform that it is drawn with.
class TransformRep final : public NSImageRep {
 public:
  explicit TransformRep(const QSizeF& size)
      : NSImageRep(PictureKind::Eps, QByteArray(),
                   std::make_shared<MemoryPictureProcess>(QByteArray(), MemoryPicture())),
        size_(size) {}
  [[nodiscard]] QSizeF size() const override { return size_; }
  void draw(QPainter& painter) override { used = painter.transform(); }

  QTransform used;

 private:
  QSizeF size_;
};

/// The representable number `steps` after `value`, or before it where steps is negative.
double neighbour(double value, int steps) {
  for (; steps > 0; --steps) value = std::nextafter(value, 10.0);
  for (; steps < 0; ++steps) value = std::nextafter(value, -10.0);
  return value;
}

QSizeF extentOfTurnedCorners(const QSizeF& size, double angle) {
  const QTransform turn = pictureToView(size, angle);
  double left = 0, right = 0, low = 0, high = 0;
  for (const QPointF& corner : {QPointF(0, 0), QPointF(size.width(), 0), QPointF(0, size.height()),
                                QPointF(size.width(), size.height())}) {
    const QPointF p = turn.map(corner);
    left = std::min(left, p.x()), right = std::max(right, p.x());
    low = std::min(low, p.y()), high = std::max(high, p.y());
  }
  return {right - left, high - low};
}

}  // namespace

class RotationTest : public QObject {
  Q_OBJECT
 private slots:
  void aQuarterTurnSwapsWidthAndHeight() {
    ViewFixture f;
    f.view.setRotate(M_PI / 2, false);
    QCOMPARE(f.view.rotate(), M_PI / 2);
    QVERIFY(near(f.view.frame().width(), 100) && near(f.view.frame().height(), 200));
    QVERIFY(near(f.view.bounds().x(), -50) && near(f.view.bounds().y(), -100));
    QCOMPARE(f.view.bounds().size(), f.view.frame().size());
    QCOMPARE(std::trunc(M_PI / 2 * 0.6366197723675814), 1.0);
  }

  void theOtherSenseIsTheRestOfAWholeTurn() {
    ViewFixture f;
    f.view.setRotate(M_PI / 2, true);
    QCOMPARE(f.view.rotate(), 2 * M_PI - M_PI / 2);
    f.view.setFlippedCoordinate(true);
    f.view.setRotate(M_PI / 2, true);  // the same sense as the view's
    QCOMPARE(f.view.rotate(), M_PI / 2);
  }

  void anglesAreNormalised_data() {
    QTest::addColumn<double>("angle");
    QTest::addColumn<double>("stored");
    QTest::newRow("minus a quarter") << -M_PI / 2 << 1.5 * M_PI;
    QTest::newRow("two turns and a half") << 5 * M_PI << M_PI;
    QTest::newRow("a whole turn stays") << 2 * M_PI << 2 * M_PI;
    QTest::newRow("two whole turns") << 4 * M_PI << 2 * M_PI;
    QTest::newRow("minus three turns and a quarter") << -6.5 * M_PI << 1.5 * M_PI;
    QTest::newRow("a thousand turns and a bit") << 2000 * M_PI + 0.25 << 0.25;
  }
  void anglesAreNormalised() {
    QFETCH(double, angle);
    QFETCH(double, stored);
    ViewFixture f;
    f.view.setRotate(angle, false);
    QVERIFY2(near(f.view.rotate(), stored), qPrintable(QString::number(f.view.rotate(), 'g', 17)));
  }

  void aWholeTurnIsKeptAsItIs() {
    ViewFixture f;
    f.view.setRotate(6.283185307179586, false);
    QCOMPARE(f.view.rotate(), 6.283185307179586);
    QVERIFY(near(f.view.frame().width(), 200) && near(f.view.frame().height(), 100));
  }

  void theSameAngleAgainDoesNothing() {
    ViewFixture f;
    f.view.selectBounds();
    f.view.setRotate(1, false);
    f.host.calls.clear();
    f.view.setRotate(1, false);
    QVERIFY(f.host.calls.isEmpty());
  }

  void theSameResultFromTheOtherSenseDoesNothingEither() {
    ViewFixture f;
    f.view.selectBounds();
    f.view.setRotate(M_PI, false);
    f.host.calls.clear();
    const int before = f.delegate.reports;
    f.view.setRotate(M_PI, true);  // the rest of a whole turn is as much again
    QVERIFY(f.host.calls.isEmpty());
    QCOMPARE(f.delegate.reports, before);
    QCOMPARE(f.view.rotate(), M_PI);
  }

  void aPictureOfAnotherSizeIsLaidOutAtTheSameAngleToo() {
    ViewFixture f;
    f.drag({{-90, -40}});
    f.drag({{-10, 10}});
    f.view.setFrameSize({50, 60});
    f.view.setImageSize({50, 60});
    f.host.calls.clear();
    f.view.setRotate(0, false);
    QCOMPARE(f.view.frame(), QRectF(0, 0, 50, 60));
    QCOMPARE(f.view.bounds(), QRectF(-25, -30, 50, 60));
    QCOMPARE(f.view.selectRect(), QRectF(-25, -30, 50, 50));
    QCOMPARE(f.host.calls,
             (QStringList{"frameDidChange", "displayRect -25,-30 50x60", "report 0\t0|50\t50|50\t50"}));
    f.view.setImageSize({50, 60});
    f.view.setRotate(0, false);
    QCOMPARE(f.host.calls.size(), 3);
  }

  void theTestForEqualityComesBeforeNormalisation() {
    ViewFixture f;
    f.view.setRotate(0.5, false);
    f.view.selectBounds();
    const int before = f.delegate.reports;
    f.host.calls.clear();
    f.view.setRotate(0.5 + 2 * M_PI, false);
    QVERIFY(near(f.view.rotate(), 0.5));
    QCOMPARE(f.delegate.reports, before + 1);
    QCOMPARE(f.host.calls.first(), QString("frameDidChange"));
    QVERIFY(f.host.calls.at(1).startsWith("displayRect"));
  }

  void aRectangleNearTheEdgeIsCutBack() {
    ViewFixture f;
    f.drag({{30, -20}});
    f.drag({{90, 40}});
    QCOMPARE(f.view.selectRect(), QRectF(30, -20, 60, 60));
    f.host.calls.clear();
    f.view.setRotate(M_PI / 2, false);
    QVERIFY(near(f.view.selectRect().x(), 30) && near(f.view.selectRect().width(), 20));
    QCOMPARE(f.view.selectRect().height(), 60.0);
    QCOMPARE(f.host.calls.size(), 3);
    QCOMPARE(f.host.calls.at(1), QString("displayRect -50,-100 100x200"));  // the whole bounds
    QVERIFY(f.host.calls.at(2).startsWith("report "));
  }

  void aCornerMovedToTheEdgeKeepsTheWidth() {
    ViewFixture f;
    f.drag({{-100, -40}});
    f.drag({{-70, -20}});
    f.view.setRotate(M_PI / 2, false);
    QVERIFY(near(f.view.selectRect().x(), -50) && near(f.view.selectRect().width(), 30));
    QCOMPARE(f.view.selectRect().y(), -40.0);
    QCOMPARE(f.view.selectRect().height(), 20.0);
  }

  void aRectangleThatIsLeftNoWidthReportsThreeEmptyTexts() {
    ViewFixture f;
    f.drag({{60, -20}});
    f.drag({{90, 20}});
    f.host.calls.clear();
    f.view.setRotate(M_PI / 2, false);
    QVERIFY(near(f.view.selectRect().x(), 50));
    QCOMPARE(f.view.selectRect().width(), 0.0);
    QCOMPARE(f.view.selectRect().height(), 40.0);
    QCOMPARE(f.host.calls.last(), QString("report ||"));
  }

  void aStartPointOutsideTheNewBoundsMovesToTheirEdge() {
    ViewFixture f;
    f.drag({{90, -40}});
    f.view.setRotate(M_PI / 2, false);
    QVERIFY(near(f.view.selectRect().x(), 50));
    QCOMPARE(f.view.selectRect().y(), -40.0);
    QCOMPARE(f.view.selectRect().size(), QSizeF(1, 0));
    f.drag({{0, 0}});  // the next drag stretches from there
    QVERIFY(near(f.view.selectRect().width(), 50));
  }

  void withoutASelectionNothingIsDisplayedOrReported() {
    ViewFixture f;
    f.view.setRotate(1, false);
    QCOMPARE(f.host.calls, QStringList{"frameDidChange"});
    QCOMPARE(f.delegate.reports, 0);
  }

  void theSelectionIsNotTurnedWithThePicture() {
    ViewFixture f;
    f.drag({{-10, -10}});
    f.drag({{10, 15}});
    f.view.setRotate(0.7, false);
    QCOMPARE(f.view.selectRect(), QRectF(-10, -10, 20, 25));
    const QPointF corner = viewToPicture({-10, -10}, {200, 100}, 0.7);
    QCOMPARE(f.delegate.last.at(0), QString::asprintf("%g\t%g", corner.x(), corner.y()));
  }

  void anglesThatAreNotFiniteEndAtOnce() {
    for (const double angle :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()}) {
      ViewFixture f;
      f.host.paint = nullptr;
      f.view.selectBounds();
      f.view.setRotate(angle, false);
      QVERIFY(!std::isfinite(f.view.rotate()));
      f.view.setRotate(0, false);  // and the view recovers
      QCOMPARE(f.view.bounds(), QRectF(-100, -50, 200, 100));
    }
  }

  void hugeAnglesEndToo() {
    for (const double angle : {1e6, -1e9, 1e300, -1e300}) {
      const double stored = normalizedAngle(angle);
      QVERIFY(stored >= 0 && stored <= twoPi);
      QVERIFY(near(std::sin(std::fmod(angle, twoPi)), std::sin(stored)));
    }
  }

  void theBoundingSizeIsTheExtentOfTheTurnedCorners() {
    QRandomGenerator random(7);
    for (int i = 0; i < 20000; ++i) {
      const QSizeF size(random.bounded(2000.0), random.bounded(2000.0));
      // Right angles and their neighbours, where the quadrant changes, are tried as often as any other angle.
      const double angle =
          i % 2 ? random.bounded(twoPi)
                : std::clamp(neighbour(random.bounded(5) * twoPi / 4, random.bounded(7) - 3), 0.0, twoPi);
      const QSizeF expected = extentOfTurnedCorners(size, angle), computed = rotatedBoundingSize(size, angle);
      QVERIFY2(
          near(computed.width(), expected.width()) && near(computed.height(), expected.height()),
          qPrintable(QString("%1 x %2 at %3").arg(size.width()).arg(size.height()).arg(angle, 0, 'g', 17)));
    }
  }

  void viewToPictureUndoesTheDrawingTransform() {
    QRandomGenerator random(8);
    for (int i = 0; i < 20000; ++i) {
      const QSizeF size(random.bounded(2000.0), random.bounded(2000.0));
      const double angle = random.bounded(twoPi);
      const QPointF point(random.bounded(4000.0) - 2000, random.bounded(4000.0) - 2000);
      const QPointF back = viewToPicture(pictureToView(size, angle).map(point), size, angle);
      QVERIFY(near(back.x(), point.x()) && near(back.y(), point.y()));
    }
  }

  void theDrawingTransformUndoesViewToPicture() {
    QRandomGenerator random(10);
    for (int i = 0; i < 20000; ++i) {
      const QSizeF size(random.bounded(2000.0), random.bounded(2000.0));
      const double angle = random.bounded(twoPi);
      const QPointF point(random.bounded(4000.0) - 2000, random.bounded(4000.0) - 2000);
      const QPointF back = pictureToView(size, angle).map(viewToPicture(point, size, angle));
      QVERIFY(near(back.x(), point.x()) && near(back.y(), point.y()));
    }
  }

  void theViewDrawsWithTheInverseOfItsMapping() {
    QRandomGenerator random(11);
    for (int i = 0; i < 500; ++i) {
      const QSizeF size(1 + random.bounded(2000.0), 1 + random.bounded(2000.0));
      const auto rep = std::make_shared<TransformRep>(size);
      NorvexView view;
      view.setImageRep(rep);
      view.setImageSize(size);
      view.setRotate(random.bounded(100.0) - 50, random.bounded(2) == 1);
      QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
      QPainter painter(&image);
      view.drawRect(painter, view.bounds(), DrawingDestination::Printer);
      const QPointF point(random.bounded(4000.0) - 2000, random.bounded(4000.0) - 2000);
      const QPointF back = viewToPicture(rep->used.map(point), size, view.rotate());
      QVERIFY(near(back.x(), point.x()) && near(back.y(), point.y()));
    }
  }

  void theCentreOfThePictureIsTheOriginOfTheView() {
    QRandomGenerator random(9);
    for (int i = 0; i < 100; ++i) {
      const QSizeF size(random.bounded(2000.0), random.bounded(2000.0));
      const QPointF centre = viewToPicture({0, 0}, size, random.bounded(twoPi));
      QCOMPARE(centre, QPointF(size.width() / 2, size.height() / 2));
    }
  }
};

NORVEX_TEST(RotationTest)
#include "rotation_test.moc"
