// NearestPixels: each device pixel has that of the bitmap in which its middle lies.
#include "picture/rendering/nearest_pixels.h"

#include <QPainter>
#include <QRandomGenerator>

#include <cmath>
#include <optional>

#include "kit/test_main.h"

using namespace norvex;

namespace {

constexpr QRgb kUntouched = 0xff010203;
const QRect kDevice(0, 0, 151, 93);

/// Every pixel has its own value.
QImage numbered(const QSize& size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < size.height(); ++y)
    for (int x = 0; x < size.width(); ++x)
      image.setPixel(x, y, qRgb(x % 256, y % 256, x / 256 * 16 + y / 256));
  return image;
}

QImage copied(const QImage& bitmap, const QTransform& toDevice, const QRect& within = kDevice,
              const QPoint& origin = {}) {
  QImage target(kDevice.size(), QImage::Format_ARGB32_Premultiplied);
  target.fill(kUntouched);
  NearestPixels(bitmap, toDevice).copy(within, target, origin);
  return target;
}

/// By the definition, pixel by pixel; nothing where the place lies within `unsure` of an edge between two.
std::optional<QRgb> expected(const QImage& bitmap, const QTransform& back, const QPoint& pixel,
                             double unsure) {
  const QPointF at = back.map(QPointF(pixel) + QPointF(0.5, 0.5));
  for (const double place : {at.x(), at.y()})
    if (std::abs(place - std::round(place)) < unsure) return std::nullopt;
  const QPoint in(int(std::floor(at.x())), int(std::floor(at.y())));
  return bitmap.rect().contains(in) ? bitmap.pixel(in) : kUntouched;
}

}  // namespace

class NearestPixelsTest : public QObject {
  Q_OBJECT
 private slots:
  void wholePixelsStayExact_data() {
    QTest::addColumn<QTransform>("transform");
    QTest::newRow("as it is") << QTransform();
    QTest::newRow("moved") << QTransform::fromTranslate(7, 11);
    QTest::newRow("moved beyond the left and the top") << QTransform::fromTranslate(-9, -5);
    QTest::newRow("a quarter to the right") << QTransform(0, 1, -1, 0, 60, 3);
    QTest::newRow("a half") << QTransform(-1, 0, 0, -1, 90, 70);
    QTest::newRow("a quarter to the left") << QTransform(0, -1, 1, 0, 4, 80);
    QTest::newRow("mirrored") << QTransform(1, 0, 0, -1, 2, 50);
    QTest::newRow("twice as large") << QTransform::fromScale(2, 2);
    QTest::newRow("wide") << QTransform(3, 0, 0, 1, -20, 6);
    QTest::newRow("a third") << QTransform(1 / 3.0, 0, 0, 1 / 3.0, 0, 0);
  }
  void wholePixelsStayExact() {
    QFETCH(QTransform, transform);
    const QImage bitmap = numbered({61, 47}), shown = copied(bitmap, transform);
    const QTransform back = transform.inverted();
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x)
        QCOMPARE(shown.pixel(x, y), expected(bitmap, back, {x, y}, 0).value());
  }

  void anyTransformationTakesThePixelUnderTheMiddle() {
    QRandomGenerator random(7);
    for (int round = 0; round < 60; ++round) {
      const QImage bitmap = numbered({1 + random.bounded(90), 1 + random.bounded(300)});
      QTransform t = QTransform::fromTranslate(random.bounded(150.0), random.bounded(90.0));
      t.rotate(random.bounded(360.0)).shear(random.bounded(0.6), 0);
      t.scale(std::exp(random.bounded(5.0) - 2.5), -std::exp(random.bounded(5.0) - 2.5));
      t.translate(-bitmap.width() / 2.0, -bitmap.height() / 2.0);
      const QImage shown = copied(bitmap, t);
      const QTransform back = t.inverted();
      int unlike = 0;
      for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
          unlike += expected(bitmap, back, {x, y}, 0.005).value_or(shown.pixel(x, y)) != shown.pixel(x, y);
      QVERIFY2(unlike == 0, qPrintable(QString("%1 in round %2").arg(unlike).arg(round)));
    }
  }

  void aPainterPaintsTheSame() {
    const QImage bitmap = numbered({120, 80});
    const QTransform t = QTransform().translate(75, 46).rotate(33).scale(1.1, 0.9).translate(-60, -40);
    QImage painted(kDevice.size(), QImage::Format_ARGB32_Premultiplied);
    painted.fill(kUntouched);
    QPainter painter(&painted);
    painter.setTransform(t);
    painter.drawImage(0, 0, bitmap);
    painter.end();
    const QImage shown = copied(bitmap, t);
    int unlike = 0;
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x) unlike += shown.pixel(x, y) != painted.pixel(x, y);
    QVERIFY2(unlike < shown.width() * shown.height() / 50, qPrintable(QString::number(unlike)));
  }

  void onlyWhatIsAskedForIsWritten() {
    const QImage bitmap = numbered({400, 400});
    const QTransform t = QTransform().rotate(20).translate(-50, -100);
    const QRect within(130, 220, 60, 30);
    const QPoint origin(100, 200);
    const QImage shown = copied(bitmap, t, within, origin);
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) {
        const QPoint device = QPoint(x, y) + origin;
        const auto there =
            within.contains(device) ? expected(bitmap, t.inverted(), device, 0.005) : kUntouched;
        if (there) QCOMPARE(shown.pixel(x, y), *there);
      }
    }
    QCOMPARE(copied(bitmap, t, QRect(-500, -500, 5000, 5000), origin),
             copied(bitmap, t, {origin, kDevice.size()}, origin));
  }

  void aBitmapOfOnePixelIsFilled() {
    const QImage shown = copied(numbered({1, 1}), QTransform(1000, 0, 0, 1000, -300, -300));
    QCOMPARE(shown.pixel(0, 0), qRgb(0, 0, 0));
    QCOMPARE(shown.pixel(150, 92), qRgb(0, 0, 0));
  }

  void whatHasNoPlaceFillsNothing_data() {
    QTest::addColumn<QTransform>("transform");
    QTest::newRow("beside it") << QTransform::fromTranslate(5000, 0);
    QTest::newRow("flat") << QTransform(1, 1, 1, 1, 0, 0);
    QTest::newRow("nothing") << QTransform::fromScale(0, 0);
    QTest::newRow("less than a pixel") << QTransform(1e-6, 0, 0, 1e-6, 3.3, 3.3);
    QTest::newRow("no number") << QTransform(qQNaN(), 0, 0, 1, 0, 0);
    QTest::newRow("endless") << QTransform(1, 0, 0, 1, qInf(), 0);
    QTest::newRow("far") << QTransform(1, 0, 0, 1, 1e300, 1e300);
  }
  void whatHasNoPlaceFillsNothing() {
    QFETCH(QTransform, transform);
    QImage untouched(kDevice.size(), QImage::Format_ARGB32_Premultiplied);
    untouched.fill(kUntouched);
    QCOMPARE(copied(numbered({20, 20}), transform), untouched);
  }

  void whatItReadsArePremultipliedBitmapsOf32BitsThatAreNotTooLarge() {
    QVERIFY(NearestPixels::canRead(numbered({3, 3})));
    QVERIFY(!NearestPixels::canRead(QImage(3, 3, QImage::Format_RGB32)));
    QVERIFY(!NearestPixels::canRead(QImage()));
    QVERIFY(NearestPixels::canRead(QImage(32767, 1, QImage::Format_ARGB32_Premultiplied)));
    QVERIFY(!NearestPixels::canRead(QImage(32768, 1, QImage::Format_ARGB32_Premultiplied)));
    QVERIFY(!NearestPixels::canRead(QImage(1, 32768, QImage::Format_ARGB32_Premultiplied)));
  }

  void theLastColumnsAndRowsOfTheLargestBitmapAreFound() {
    const QImage bitmap = [] {
      QImage image(32767, 2, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::red);
      image.setPixel(32766, 1, qRgb(0, 0, 255));
      return image;
    }();
    const QImage shown = copied(bitmap, QTransform::fromTranslate(-32700, 0));
    QCOMPARE(shown.pixel(66, 1), qRgb(0, 0, 255));
    QCOMPARE(shown.pixel(65, 1), qRgb(255, 0, 0));
    QCOMPARE(shown.pixel(67, 1), kUntouched);
  }
};

NORVEX_TEST(NearestPixelsTest)
#include "nearest_pixels_test.moc"
