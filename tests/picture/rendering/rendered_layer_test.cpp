// RenderedLayer: which pixels a scaled or turned bitmap fills.
#include "picture/rendering/rendered_layer.h"

#include <QRandomGenerator>

#include "kit/test_main.h"

using namespace norvex;

namespace {

const QRect kVisible(-50, -30, 400, 300);
const QRectF kRect(0, 0, 260, 140);

QTransform randomTransform(QRandomGenerator& random) {
  QTransform t;
  t.translate(random.bounded(300.0), random.bounded(200.0));
  t.rotate(random.bounded(360.0));
  t.scale(0.3 + random.bounded(3.0), -0.3 - random.bounded(3.0));
  t.translate(-kRect.width() / 2, -kRect.height() / 2);
  return t;
}

bool isInside(const QTransform& back, const QPointF& point, double beyond = 0) {
  return kRect.adjusted(-beyond, -beyond, beyond, beyond).contains(back.map(point));
}

}  // namespace

class RenderedLayerTest : public QObject {
  Q_OBJECT

 private slots:
  void aMappedRectangleIsThePixelsWhoseMiddlesLieInside() {
    QRandomGenerator random(1);
    for (int round = 0; round < 30; ++round) {
      const QTransform t = randomTransform(random), back = t.inverted();
      const QRegion region = mappedRect(t, kRect, kVisible);
      for (int y = kVisible.top(); y <= kVisible.bottom(); y += 3) {
        for (int x = kVisible.left(); x <= kVisible.right(); x += 3) {
          const QPointF middle(x + 0.5, y + 0.5);
          if (isInside(back, middle) != isInside(back, middle, 1e-6)) continue;  // on the very edge
          QVERIFY2(region.contains(QPoint(x, y)) == isInside(back, middle),
                   qPrintable(QString("%1 %2").arg(x).arg(y)));
        }
      }
    }
  }

  void aCornerInTheMiddleOfARowCountsOnce() {
    // Turned by 45 degrees: its corners are at (20.5, 0.5), (30.5, 10.5), (20.5, 20.5) and (10.5, 10.5).
    const QTransform t(1, 1, -1, 1, 20.5, 0.5);
    const QRegion region = mappedRect(t, QRectF(0, 0, 10, 10), QRect(0, 0, 40, 40));
    for (const QPoint inside :
         {QPoint(20, 5), QPoint(12, 10), QPoint(20, 10), QPoint(28, 10), QPoint(20, 15)})
      QVERIFY2(region.contains(inside), qPrintable(QString::number(inside.y())));
    for (const QPoint beside : {QPoint(2, 10), QPoint(38, 10), QPoint(5, 0), QPoint(35, 20), QPoint(20, 30)})
      QVERIFY(!region.contains(beside));
  }

  void theDistanceIsWhatACornerMovesAtMost_data() {
    QTest::addColumn<QTransform>("view");
    QTest::addColumn<double>("distance");
    QTest::newRow("moved") << QTransform(1, 0, 0, 1, 500, 500) << 0.0;
    QTest::newRow("wider") << QTransform(1.5, 0, 0, 1, 0, 0) << 100.0;
    QTest::newRow("higher") << QTransform(1, 0, 0, 1.5, 0, 0) << 50.0;
    QTest::newRow("slanted") << QTransform(1, 0, 0.5, 1, 0, 0) << 50.0;
    QTest::newRow("slanted the other way") << QTransform(1, 0.5, 0, 1, 0, 0) << 100.0;
    QTest::newRow("both ways together") << QTransform(1.5, 0, 0.5, 1.25, 0, 0) << 150.0;
  }
  void theDistanceIsWhatACornerMovesAtMost() {
    QFETCH(QTransform, view);
    QTEST(RenderedLayer{QTransform()}.distance(view, {200, 100}), "distance");
  }

  void aTurnedRectangleIsOneRectangleARowAtMost() {
    QRandomGenerator random(3);
    for (int round = 0; round < 50; ++round)
      QVERIFY(mappedRect(randomTransform(random), kRect, kVisible).rectCount() <= kVisible.height());
  }

  void anUprightRectangleIsExact() {
    const QTransform t(2, 0, 0, -2, 10, 290);
    QCOMPARE(mappedRect(t, QRectF(5, 5, 20, 30), QRect(0, 0, 400, 300)), QRegion(20, 220, 40, 60));
  }

  void nothingIsFilledByNothing() {
    const QTransform turned = QTransform().rotate(30);
    QVERIFY(mappedRect(turned, QRectF(), kVisible).isEmpty());
    QVERIFY(mappedRect(turned, kRect, QRegion()).isEmpty());
    QVERIFY(mappedRect(turned, QRectF(5000, 5000, 10, 10), kVisible).isEmpty());
  }

  void aLayerThatIsShrunkKeepsWhatIsLookedAt() {
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    const QRect near(0, 0, 10, 10), far(500, 0, 10, 10), farther(900, 0, 10, 10);
    RenderedLayer layer{QTransform()};
    for (const QRect& rect : {far, near, farther}) layer.add(rect, image);
    const qint64 one = layer.bytes() / 3;
    layer.shrink(2 * one, near);
    QCOMPARE(layer.covered(), QRegion(near) + QRegion(far));
    layer.shrink(0, near);
    QCOMPARE(layer.covered(), QRegion(near));
    layer.shrink(0, farther);  // who looks elsewhere by now needs nothing of it
    QCOMPARE(layer.bytes(), qint64(0));
    QVERIFY(layer.covered().isEmpty());
  }

  void enormousRectanglesFillWhatIsVisible() {
    const QTransform t = QTransform().rotate(30).scale(1e6, 1e6);
    QCOMPARE(mappedRect(t, QRectF(-1e3, -1e3, 2e3, 2e3), kVisible), QRegion(kVisible));
  }
};

NORVEX_TEST(RenderedLayerTest)
#include "rendered_layer_test.moc"
