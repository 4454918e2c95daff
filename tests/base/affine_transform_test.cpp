#include "base/affine_transform.h"

#include <QRandomGenerator>
#include <QTransform>
#include <QtMath>

#include "kit/test_main.h"

using namespace norvex;

namespace {

bool near(const QPointF& a, const QPointF& b) {
  return std::abs(a.x() - b.x()) < 1e-6 && std::abs(a.y() - b.y()) < 1e-6;
}

/// Any map that is not too flat: turned, sheared, scaled and moved.
QTransform anyMap(QRandomGenerator& random) {
  const auto number = [&](double from, double to) { return from + random.bounded(to - from); };
  return QTransform().rotate(number(0, 360)).shear(number(-1, 1), 0).scale(number(0.1, 9), -number(0.1, 9)) *
         QTransform::fromTranslate(number(-900, 900), number(-900, 900));
}

}  // namespace

/// It stands for QTransform: whatever one says of an affine map the other says too.
class AffineTransformTest : public QObject {
  Q_OBJECT
 private slots:
  void mapsAsQTransformDoes() {
    QRandomGenerator random(1);
    for (int i = 0; i < 1000; ++i) {
      const QTransform a = anyMap(random), b = anyMap(random);
      const AffineTransform mine = AffineTransform(a) * AffineTransform(b), inverse = mine.inverted();
      const QTransform theirs = a * b;
      const QRectF rect(random.bounded(100.0), random.bounded(100.0), random.bounded(100.0),
                        random.bounded(100.0));
      QVERIFY(near(mine.map(rect.center()), theirs.map(rect.center())));
      QVERIFY(near(inverse.map(mine.map(rect.center())), rect.center()));
      QVERIFY(near(mine.mapRect(rect).topLeft(), theirs.mapRect(rect).topLeft()));
      QVERIFY(near(mine.mapRect(rect).bottomRight(), theirs.mapRect(rect).bottomRight()));
      QCOMPARE(mine.determinant(), theirs.determinant());
    }
  }

  void scalesAreInvertedExactly() {
    const AffineTransform inverse = AffineTransform(3, 0, 0, -7, 12, 14).inverted();
    QCOMPARE(inverse, AffineTransform(1.0 / 3, 0, 0, -1.0 / 7, -4, 2));
    // The way over the determinant is one digit off here.
    QVERIFY(AffineTransform(0.1, 0, 0, 3, 0, 0).inverted().m11() == 1 / 0.1);
  }

  void aMapShearedAlongOneAxisIsInverted() {
    const QPointF point(5, 7);
    for (const AffineTransform& map : {AffineTransform(2, 0, 1, 4, 0, 0), AffineTransform(2, 1, 0, 4, 0, 0)})
      QVERIFY(near(map.inverted().map(map.map(point)), point));
  }

  void whatIsFlatHasNoInverse() {
    for (const AffineTransform& flat :
         {AffineTransform(0, 0, 0, 1, 5, 5), AffineTransform(1, 2, 2, 4, 0, 0)}) {
      QVERIFY(!flat.isInvertible());
      QVERIFY(flat.inverted().isIdentity());
    }
    QVERIFY(AffineTransform(0, 1, -1, 0, 0, 0).isInvertible());
  }

  void noPerspective() {
    QVERIFY(AffineTransform(QTransform(1, 2, 3, 4, 5, 6)).isFinite());
    QVERIFY(!AffineTransform(QTransform(1, 0, 0.1, 0, 1, 0, 0, 0, 1)).isFinite());
    QVERIFY(!AffineTransform(qInf(), 0, 0, 1, 0, 0).isFinite());
  }
};

NORVEX_TEST(AffineTransformTest)
#include "affine_transform_test.moc"
