// The part of a page that is asked for because a window shows it.
#include "picture/inks/visible_part.h"

#include <cmath>

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

class VisiblePartTest : public QObject {
  Q_OBJECT
 private slots:
  void itsPixelsAreThoseOfTheWholePage() {
    const auto part = visiblePart({200, 100}, QRectF(10.3, 20.2, 30, 40), 3);
    QVERIFY(part && part->part);
    QCOMPARE(part->dpi, 216.0);
    QCOMPARE(*part->part, QRectF(10, 20, 91 / 3.0, 121 / 3.0));
  }

  void whatLiesBesideThePageIsNotAskedFor() {
    const auto part = visiblePart({200, 100}, QRectF(-500, -500, 1000, 1000), 1);
    QVERIFY(part);
    QCOMPARE(*part->part, QRectF(0, 0, 200, 100));
    QVERIFY(!visiblePart({200, 100}, QRectF(201, 0, 10, 10), 1));
    QVERIFY(!visiblePart({200, 100}, QRectF(0, 0, 10, 10), 0));
  }

  void aPlateHasNoMorePixelsThanItMay() {
    for (const double scale : {100.0, 1000.0, 1e9}) {
      const auto part = visiblePart({2000, 1000}, QRectF(0, 0, 2000, 1000), scale);
      QVERIFY(part);
      const double pixels = part->part->width() * part->part->height() * std::pow(part->dpi / 72, 2);
      QVERIFY(pixels <= limits::maximumPlatePixels);
      QVERIFY(pixels > 0.98 * limits::maximumPlatePixels);
    }
    // Neither where pixels are cut on every side.
    const auto cut = visiblePart({9000, 9000}, QRectF(0.5, 0.5, 4000, 4000), 1);
    QVERIFY(cut && cut->part->width() * cut->part->height() * std::pow(cut->dpi / 72, 2) <=
                       limits::maximumPlatePixels);
    // A small part of it is as sharp as it is wanted.
    QCOMPARE(visiblePart({2000, 1000}, QRectF(0, 0, 10, 10), 100)->dpi, 7200.0);
  }

  void aPointIsReadInThePartThatShowsIt() {
    PageInks inks;
    inks.pixels = QSize(40, 20);
    const QRectF place(100, 50, 20, 10);
    QCOMPARE(pixelAt(inks, place, {100.1, 59.9}), QPoint(0, 0));
    QCOMPARE(pixelAt(inks, place, {119.9, 50.1}), QPoint(39, 19));
    QCOMPARE(pixelAt(inks, place, {110, 54.9}), QPoint(20, 10));
    const QRect pixels(QPoint(0, 0), inks.pixels);
    for (const QPointF& beside :
         {QPointF(99, 55), QPointF(121, 55), QPointF(110, 49), QPointF(110, 61), QPointF(1e9, 0)})
      QVERIFY(!pixels.contains(pixelAt(inks, place, beside)));
  }
};

NORVEX_TEST(VisiblePartTest)
#include "visible_part_test.moc"
