// RenderedPicture: what is seen before the first bitmap, and while a view moves.
#include <QSignalSpy>

#include "kit/test_main.h"
#include "picture/process/null_picture_service.h"
#include "picture/rendering/rendered_picture.h"
#include "rendered_picture_fixture.h"

using namespace norvex;

class MovingPictureTest : public QObject {
  Q_OBJECT
 private slots:
  void aMovementWithLongFramesIsPaintedByNearestPixelsUntilItRests() {
    const Fixture f(kSmall);
    const QTransform upright = placed(kSmall, 1.5, 0, {150, 100}),
                     turned = placed(kSmall, 1.5, 40, {150, 100});
    const QTransform between = placed(kSmall, 1.5, 25, {150, 100});
    for (const QTransform& each : {upright, turned}) QVERIFY(f.becomesSharp(each));
    QVERIFY(f.becomesIdle());
    const QImage smooth = f.draw(between);
    QSignalSpy rested(f.picture.get(), &RenderedPicture::rendered);
    f.picture->request(upright, kVisible);
    f.clock->step = 7;
    QCOMPARE(f.draw(between), smooth);  // nothing has taken long before it
    const QImage hurried = f.draw(between);
    QVERIFY(hurried != smooth);
    QCOMPARE(blankPixels(hurried, between, kSmall), 0);
    QVERIFY(rested.wait(20000));
    for (int still = 0; still < 3; ++still) QCOMPARE(f.draw(between), smooth);
  }

  void aLargeFrameOfAMovementIsPaintedByNearestPixelsAtOnce() {
    constexpr QSizeF kPage(900, 900);
    for (const int side : {600, 900}) {
      const Fixture f(kPage);
      const QRect visible(0, 0, side, side);
      const QPointF middle(side / 2.0, side / 2.0);
      const auto drawn = [&](const QTransform& t) {
        QImage frame(visible.size(), QImage::Format_ARGB32_Premultiplied);
        frame.fill(Qt::transparent);
        QPainter painter(&frame);
        f.picture->draw(painter, t, visible);
        return frame;
      };
      const QTransform upright = placed(kPage, 1, 0, middle), turned = placed(kPage, 1, 10, middle);
      QVERIFY(f.becomesSharp(upright));
      QVERIFY(f.becomesIdle());
      QSignalSpy rested(f.picture.get(), &RenderedPicture::rendered);
      f.picture->request(placed(kPage, 1, 0, middle + QPointF(1, 0)), visible);
      const QImage moving = drawn(turned);
      QVERIFY(side == 600 || rested.wait(20000));
      const QImage resting = drawn(turned);
      QCOMPARE(moving == resting, side == 600);
      QCOMPARE(blankPixels(moving, turned, kPage), 0);
    }
  }

  void aMovementWhoseFramesAreShortStaysSmooth() {
    const Fixture f(kSmall);
    const QTransform upright = placed(kSmall, 1.5, 0, {150, 100}),
                     turned = placed(kSmall, 1.5, 40, {150, 100});
    QVERIFY(f.becomesSharp(upright));
    QVERIFY(f.becomesIdle());
    const QImage smooth = f.draw(turned);
    f.picture->request(placed(kSmall, 1.5, 0, {151, 100}), kVisible);
    f.clock->step = 6;
    for (int frame = 0; frame < 3; ++frame) QCOMPARE(f.draw(turned), smooth);
  }

  void aFirstImageIsSeenUntilThereIsABitmap() {
    const Fixture f(kSmall);
    const QTransform t = placed(kSmall, 1.5, 20, {150, 100});
    QImage preview(31, 17, QImage::Format_RGB32);
    preview.fill(Qt::magenta);
    f.picture->showFirst(preview);
    const QImage before = f.draw(t);
    QCOMPARE(blankPixels(before, t, kSmall), 0);
    QCOMPARE(before.pixelColor(150, 100), QColor(Qt::magenta));
    QVERIFY(!f.picture->isSharpFor(t, kVisible));
    QVERIFY(f.becomesSharp(t));
    QCOMPARE(f.draw(t), f.reference(t));
    const QImage turned = f.draw(placed(kSmall, 1.5, 60, {150, 100}));
    for (int x = 0; x < kFrame.width(); ++x) QVERIFY(turned.pixelColor(x, 100) != QColor(Qt::magenta));
  }

  void aFirstImageStaysAroundTheTilesThatAreDrawn() {
    constexpr QSizeF kPage(1200, 800);
    RenderedPictureOptions options;
    options.wholePixels = 1;
    MemoryPicture memory;
    memory.paint = [](const RenderRequest& request) {
      // The picture as a whole, which is asked for in coarser pixels, is not to be had.
      const bool isView = qFuzzyCompare(request.pictureToDevice.m11(), 2);
      return isView ? testPattern(request, QSizeF(1200, 800)) : QImage();
    };
    const Fixture f(kPage, options, memory);
    QImage preview(120, 80, QImage::Format_RGB32);
    preview.fill(Qt::magenta);
    f.picture->showFirst(preview);
    const QTransform t = placed(kPage, 2, 0, {150, 100});
    QVERIFY(f.becomesSharp(t));
    QTRY_VERIFY(f.renders() >= 2);  // the whole was asked for
    QVERIFY(f.becomesIdle());
    QCOMPARE(f.draw(t), f.reference(t));
    const QImage corner = f.draw(placed(kPage, 2, 0, {1200, 800}));
    QCOMPARE(corner.pixelColor(10, 10), QColor(Qt::magenta));
  }

  void aFirstImageGoesWhenThePictureCannotBeDrawn() {
    NullPictureService service;
    RenderedPicture picture(service.open({}, PictureKind::Eps), 0, kSmall);
    const QTransform t = placed(kSmall, 1.5, 0, {150, 100});
    QImage preview(30, 20, QImage::Format_RGB32);
    preview.fill(Qt::magenta);
    picture.showFirst(preview);
    picture.showFirst(QImage());  // is none
    const auto drawn = [&] {
      QImage frame = emptyFrame();
      QPainter painter(&frame);
      picture.draw(painter, t, kVisible);
      return frame;
    };
    QCOMPARE(drawn().pixelColor(150, 100), QColor(Qt::magenta));
    picture.request(t, kVisible);
    QVERIFY(QTest::qWaitFor([&] { return picture.error().has_value(); }, 20000));
    QCOMPARE(drawn(), emptyFrame());
  }
};

NORVEX_TEST(MovingPictureTest)
#include "moving_picture_test.moc"
