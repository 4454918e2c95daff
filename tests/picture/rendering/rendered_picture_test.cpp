// RenderedPicture: frames from what is there, sharp ones later, nothing asked twice.
#include "picture/rendering/rendered_picture.h"

#include <QPainter>
#include <QSignalSpy>

#include <atomic>
#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"
#include "picture/process/null_picture_service.h"
#include "rendered_picture_fixture.h"

using namespace norvex;

class RenderedPictureTest : public QObject {
  Q_OBJECT
 private slots:
  void theFirstFrameIsEmptyAndTheNextOneSharp() {
    const Fixture f(kSmall);
    const QTransform t = placed(kSmall, 1.5, 0, {150, 100});
    QCOMPARE(f.drawAndRequest(t), emptyFrame());
    QVERIFY(!f.picture->isSharpFor(t, kVisible));
    QVERIFY(f.picture->isBusy());
    QVERIFY(f.becomesSharp(t));
    QCOMPARE(f.draw(t), f.reference(t));
    QVERIFY(!f.picture->isBusy());
  }

  void askingForTheSameViewAgainRendersNothing() {
    const Fixture f(kSmall);
    const QTransform t = placed(kSmall, 1.5, 30, {150, 100});
    for (int i = 0; i < 5; ++i) f.picture->request(t, kVisible);
    QVERIFY(f.becomesSharp(t));
    for (int i = 0; i < 5; ++i) f.drawAndRequest(t);
    QVERIFY(f.becomesIdle());
    QCOMPARE(f.renders(), 1);
  }

  void aSmallPictureIsOneBitmapThatScrollsWithoutRendering() {
    const Fixture f(kSmall);
    QVERIFY(f.becomesSharp(placed(kSmall, 4, 0, {150, 100})));
    for (int x = -200; x <= 500; x += 50) {
      const QTransform t = placed(kSmall, 4, 0, {double(x), 130});
      QVERIFY(f.picture->isSharpFor(t, kVisible));
      QCOMPARE(f.drawAndRequest(t), f.reference(t));
    }
    QVERIFY(f.becomesIdle());
    QCOMPARE(f.renders(), 1);
    QCOMPARE(f.process->renderRequests().first().pixelSize, QSize(800, 400));
  }

  void scrollingByPartsOfAPixelRendersNothing() {
    const Fixture f(kSmall);
    QVERIFY(f.becomesSharp(placed(kSmall, 1.5, 0, {150.25, 100.75})));
    for (double part = 0; part < 2; part += 0.2)
      QVERIFY(f.picture->isSharpFor(placed(kSmall, 1.5, 0, {150.25 + part, 100.75 - part}), kVisible));
  }

  void zoomingShowsTheOldBitmapScaledUntilTheSharpOneComes() {
    const Fixture f(kSmall);
    QVERIFY(f.becomesSharp(placed(kSmall, 1, 0, {150, 100})));
    f.process->hold(PictureCall::Render);
    const QTransform zoomed = placed(kSmall, 1.3, 0, {150, 100});
    const QImage frame = f.drawAndRequest(zoomed);
    QCOMPARE(blankPixels(frame, zoomed, kSmall), 0);
    QVERIFY(!f.picture->isSharpFor(zoomed, kVisible));
    f.process->release(PictureCall::Render);
    QVERIFY(f.becomesSharp(zoomed));
    QVERIFY(differingPixels(f.draw(zoomed), f.reference(zoomed)) == 0);
  }

  void turningShowsTheOldBitmapTurnedUntilTheSharpOneComes() {
    const Fixture f(kSmall);
    QVERIFY(f.becomesSharp(placed(kSmall, 1.3, 0, {150, 100})));
    f.process->hold(PictureCall::Render);
    for (const double degrees : {1.0, 17.0, 45.0, 90.0, 133.0, 270.0}) {
      const QTransform turned = placed(kSmall, 1.3, degrees, {150, 100});
      const QImage frame = f.drawAndRequest(turned);
      QCOMPARE(blankPixels(frame, turned, kSmall), 0);
      // Position and sense are right, not only the area: most pixels are near what a sharp frame has.
      const double alike = nearPixels(frame, f.reference(turned));
      QVERIFY2(alike > 0.95, qPrintable(QString("%1 at %2").arg(alike).arg(degrees)));
    }
  }

  void turningOnStaysWholeAndInPlace() {
    const Fixture f(kSmall);
    QVERIFY(f.becomesSharp(placed(kSmall, 1.3, 0, {150, 100})));
    f.process->hold(PictureCall::Render);
    for (const double degrees : {30.0, 46.0, 60.0, 83.0, 90.0, 97.0, 134.0, 180.0, 226.0, 270.0, 314.0}) {
      const QTransform turned = placed(kSmall, 1.3, degrees, {150, 100});
      const QImage sharp = f.reference(turned);
      const QImage shown = f.drawAndRequest(turned);
      QCOMPARE(blankPixels(shown, turned, kSmall), 0);
      const double alike = nearPixels(shown, sharp);
      QVERIFY2(alike > 0.95, qPrintable(QString("%1 at %2").arg(alike).arg(degrees)));
    }
  }

  void theBitmapOfTheNearestAngleStandsIn() {
    MemoryPicture memory;
    memory.paint = [](const RenderRequest& request) {
      QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
      image.fill(std::abs(request.pictureToDevice.m12()) < 0.1 ? Qt::red : Qt::green);
      return image;
    };
    const Fixture f(kSmall, {}, memory);
    QVERIFY(f.becomesSharp(placed(kSmall, 1, 0, {150, 100})));
    QVERIFY(f.becomesSharp(placed(kSmall, 1, 50, {150, 100})));
    f.process->hold(PictureCall::Render);
    QCOMPARE(f.drawAndRequest(placed(kSmall, 1, 8, {150, 100})).pixelColor(150, 100), QColor(Qt::red));
    QCOMPARE(f.drawAndRequest(placed(kSmall, 1, 44, {150, 100})).pixelColor(150, 100), QColor(Qt::green));
    QCOMPARE(f.drawAndRequest(placed(kSmall, 1, 12, {150, 100})).pixelColor(150, 100), QColor(Qt::red));
  }

  void aTranslucentPictureIsNotBlendedTwiceWhileItTurns() {
    const Fixture f(kLarge, {}, translucentPicture());
    QVERIFY(f.becomesSharp(placed(kLarge, 0.06, 0, {150, 100})));
    QVERIFY(f.becomesSharp(placed(kLarge, 4, 0, {150, 100})));
    QVERIFY(f.becomesIdle());
    f.process->hold(PictureCall::Render);
    for (const double degrees : {20.0, 88.0, 200.0}) {
      const QImage frame = f.drawAndRequest(placed(kLarge, 4, degrees, {150, 100}));
      QCOMPARE(qAlpha(frame.pixel(150, 100)), 100);  // the sharp bitmap
      QCOMPARE(qAlpha(frame.pixel(3, 3)), 100);      // the whole picture behind it
      const QImage fitted = f.drawAndRequest(placed(kLarge, 0.06, degrees, {150, 100}));
      int doubled = 0;
      for (int y = 0; y < fitted.height(); ++y)
        for (int x = 0; x < fitted.width(); ++x) doubled += qAlpha(fitted.pixel(x, y)) > 101;
      QCOMPARE(doubled, 0);
    }
  }

  void staleRequestsAreDroppedAndTheRunningOneIsCancelled() {
    const Fixture f(kSmall);
    f.process->hold(PictureCall::Render);
    const QTransform first = placed(kSmall, 1, 0, {150, 100});
    const QTransform second = placed(kSmall, 2, 0, {150, 100});
    const QTransform third = placed(kSmall, 3, 0, {150, 100});
    f.picture->request(first, kVisible);
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.picture->request(second, kVisible);
    f.picture->request(third, kVisible);
    f.process->release(PictureCall::Render);
    QVERIFY(f.becomesSharp(third));
    QVERIFY(f.becomesIdle());
    // The second was begun only if the queue came to it before the third was asked for; never is it finished
    // in vain.
    QCOMPARE(f.renders() - f.process->cancelledCalls(), 1);
    QVERIFY(f.process->cancelledCalls() >= 1);
    QVERIFY(!f.picture->isSharpFor(first, kVisible));
    QVERIFY(!f.picture->isSharpFor(second, kVisible));
    QVERIFY(!f.picture->error());
  }

  void theVisiblePartIsRenderedFirstThenTheOverviewThenTheMargin() {
    const Fixture f(kLarge);
    const QTransform t = placed(kLarge, 4, 0, {150, 100});
    f.picture->request(t, kVisible);
    QVERIFY(f.becomesSharp(t));
    QVERIFY(QTest::qWaitFor([&] { return f.renders() >= 3; }, 20000));
    QVERIFY(f.becomesIdle());
    const QList<RenderRequest> requests = f.process->renderRequests();
    const QRect firstPart =
        requests[0].pictureToDevice.inverted().mapRect(QRectF(QPointF(), requests[0].pixelSize)).toRect();
    const QRect visiblePart = t.inverted().mapRect(QRectF(kVisible)).toRect();
    QVERIFY(firstPart.contains(visiblePart));
    QVERIFY(requests[0].pixelSize.width() <= kFrame.width() + 2 * 256);
    // the overview: the whole page in about a megapixel
    const QSize overview = requests[1].pixelSize;
    QVERIFY(std::abs(overview.width() * overview.height() - 1'000'000) < 10'000);
    QVERIFY(requests.size() > 2);
    // whatever was rendered is far less than the 192 megapixels of the whole picture
    qint64 pixels = 0;
    for (const RenderRequest& request : requests)
      pixels += qint64(request.pixelSize.width()) * request.pixelSize.height();
    QVERIFY(pixels < 4'000'000);
  }

  void aStripHasAnOverviewUpToFourTimesTheSideOfABitmap() {
    const auto longest = [](const QSizeF& size) {
      const Fixture f(size);
      const QTransform t = placed(size, 4, 0, {150, 100});
      const bool rendered =
          f.becomesSharp(t) && QTest::qWaitFor([&] { return f.renders() >= 2; }, 20000) && f.becomesIdle();
      int side = rendered ? 0 : -1;
      for (const RenderRequest& request : f.process->renderRequests())
        side = std::max({side, request.pixelSize.width(), request.pixelSize.height()});
      return side;
    };
    for (const bool high : {false, true}) {
      const QSizeF strip(10000, 40), longer(11000, 40);
      QCOMPARE(longest(high ? strip.transposed() : strip), 15812);  // a megapixel
      const int parts = longest(high ? longer.transposed() : longer);
      QVERIFY2(parts > 0 && parts <= 4096, qPrintable(QString::number(parts)));
    }
  }

  void aPictureOfTheBoundItselfIsOneBitmap() {
    RenderedPictureOptions options;
    options.wholePixels = 200 * 100;
    options.tile = 16;
    const Fixture f(kSmall, options);
    QVERIFY(f.becomesSharp(placed(kSmall, 1, 0, {150, 0})));  // one half is out of sight
    QVERIFY(f.becomesIdle());
    QCOMPARE(f.renders(), 1);
    QCOMPARE(f.process->renderRequests().first().pixelSize, QSize(200, 100));
  }

  void anOverviewThatCannotBeDrawnIsAskedForOnce() {
    std::atomic<int> overviews = 0;
    MemoryPicture memory;
    memory.paint = [&](const RenderRequest& request) {
      if (request.pictureToDevice.m11() >= 1) return testPattern(request, kLarge);
      ++overviews;
      return QImage();
    };
    const Fixture f(kLarge, {}, memory);
    for (const double x : {150.0, -1850.0, -3850.0}) {
      QVERIFY(f.becomesSharp(placed(kLarge, 4, 0, {x, 100})));
      QTRY_COMPARE(overviews.load(), 1);
      QVERIFY(f.becomesIdle());
    }
    QVERIFY(!f.picture->error());
    QCOMPARE(overviews.load(), 1);
  }

  void theLastEightScalesAreSharpAtOnce() {
    const Fixture f(kSmall);
    const auto scaled = [](int step) { return placed(kSmall, 1 + 0.1 * step, 0, {150, 100}); };
    for (int step = 0; step < 8; ++step) QVERIFY(f.becomesSharp(scaled(step)));
    for (int step = 0; step < 8; ++step) QVERIFY(f.picture->isSharpFor(scaled(step), kVisible));
    QVERIFY(f.becomesSharp(scaled(8)));
    QVERIFY(!f.picture->isSharpFor(scaled(0), kVisible));
    QVERIFY(f.picture->isSharpFor(scaled(1), kVisible));
  }

  void anOverviewMayBeFourTimesAsLongAsABitmap() {
    const QSizeF strip(16384, 64);
    RenderedPictureOptions options;
    options.wholePixels = 1;
    options.overviewPixels = 16384 * 64;
    const Fixture f(strip, options);
    QVERIFY(f.becomesSharp(placed(strip, 4, 0, {150, 100})));
    QTRY_VERIFY(f.renders() >= 2);
    QCOMPARE(f.process->renderRequests().at(1).pixelSize, QSize(16384, 64));
  }

  void theMarginComesWhereTheCacheHoldsFourTimesItsPixels() {
    RenderedPictureOptions options;
    options.cacheBytes = 1024 * 768 * 4 + 1;  // the tiles that the margin touches
    const Fixture f(kLarge, options);
    const QTransform t = placed(kLarge, 4, 0, {150, 100});
    QVERIFY(f.becomesSharp(t));
    QVERIFY(QTest::qWaitFor([&] { return f.renders() >= 3; }, 20000));
  }

  /// Nobody looks at it: what is seen is sharp, and stays without a word.
  void aMarginThatCannotBeDrawnIsNoFailure() {
    std::atomic<int> drawn = 0;
    MemoryPicture memory;
    memory.paint = [&](const RenderRequest& request) {
      return ++drawn <= 2 ? testPattern(request, kLarge) : QImage();  // what is seen, and the overview
    };
    const Fixture f(kLarge, {}, memory);
    QSignalSpy failed(f.picture.get(), &RenderedPicture::failed);
    const QTransform t = placed(kLarge, 4, 0, {150, 100});
    QVERIFY(f.becomesSharp(t));
    QVERIFY(QTest::qWaitFor([&] { return f.renders() >= 3; }, 20000));
    QVERIFY(f.becomesIdle());
    QVERIFY(!f.picture->error());
    QCOMPARE(failed.size(), 0);
    QCOMPARE(f.draw(t), f.reference(t));
  }

  void withTheMarginAShortScrollIsSharpAtOnce() {
    const Fixture f(kLarge);
    const QTransform t = placed(kLarge, 4, 0, {150, 100});
    QVERIFY(f.becomesSharp(t));
    const QTransform scrolled = placed(kLarge, 4, 0, {150 - 200, 100 + 180});
    QVERIFY(QTest::qWaitFor([&] { return f.picture->isSharpFor(scrolled, kVisible); }, 20000));
    QCOMPARE(f.draw(scrolled), f.reference(scrolled));
  }

  void nothingIsEverBlankOnceTheOverviewIsThere() {
    const Fixture f(kLarge);
    QVERIFY(f.becomesSharp(placed(kLarge, 4, 0, {150, 100})));
    QVERIFY(QTest::qWaitFor([&] { return f.renders() >= 3; }, 20000));
    QVERIFY(f.becomesIdle());
    f.process->hold(PictureCall::Render);
    for (const QTransform& t : {placed(kLarge, 4, 0, {5000, 4000}), placed(kLarge, 9, 33, {-7000, 100}),
                                placed(kLarge, 0.05, 80, {150, 100}), placed(kLarge, 4, 0, {-100, 50})})
      QCOMPARE(blankPixels(f.drawAndRequest(t), t, kLarge), 0);
  }

  void manySmallStepsEndAsOneRendering() {
    const Fixture f(kLarge);
    QVERIFY(f.becomesSharp(placed(kLarge, 4, 0, {150, 100})));
    QVERIFY(QTest::qWaitFor([&] { return f.renders() >= 2; }, 20000));  // the overview too
    f.process->hold(PictureCall::Render);
    for (int x = 0; x <= 3000; x += 10) f.drawAndRequest(placed(kLarge, 4, 0, {150.0 - x, 100}));
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    const int begun = f.renders();
    f.process->release(PictureCall::Render);
    QVERIFY(f.becomesSharp(placed(kLarge, 4, 0, {150.0 - 3000, 100})));
    QVERIFY2(f.renders() - begun <= 2, qPrintable(QString::number(f.renders() - begun)));
  }

  void scrollingOnRendersOnlyWhatIsMissing() {
    const Fixture f(kLarge);
    qint64 pixels = 0;
    for (int x = 0; x < 2000; x += 100) {
      const QTransform t = placed(kLarge, 4, 0, {150.0 - x, 100});
      QVERIFY(f.becomesSharp(t));
      QCOMPARE(f.draw(t), f.reference(t));
    }
    QVERIFY(f.becomesIdle());
    for (const RenderRequest& request : f.process->renderRequests())
      pixels += qint64(request.pixelSize.width()) * request.pixelSize.height();
    QVERIFY(pixels < 1'000'000 + qint64(2000 + 4 * 512) * (200 + 4 * 512));
  }

  void translucentPicturesAreNotBlendedTwiceWhereBitmapsMeet() {
    const Fixture f(kLarge, {}, translucentPicture());
    for (const int x : {0, 130, 300, 470, 700}) {
      const QTransform t = placed(kLarge, 4, 0, {150.0 - x, 100.0 + x / 2});
      QVERIFY(f.becomesSharp(t));
      const QImage frame = f.draw(t);
      QImage expected = emptyFrame();
      expected.fill(QColor(0, 0, 255, 100));
      QCOMPARE(frame, expected);
    }
  }

  void theCacheStaysWithinItsBound() {
    RenderedPictureOptions options;
    options.cacheBytes = 16 << 20;
    const Fixture f(kLarge, options);
    for (int x = 0; x < 6000; x += 400) {
      QVERIFY(f.becomesSharp(placed(kLarge, 4, 0, {150.0 - x, 100.0 + x / 2})));
      QVERIFY(f.picture->cacheBytes() <= options.cacheBytes);
    }
    for (int step = 1; step < 12; ++step) {
      QVERIFY(f.becomesSharp(placed(kLarge, 4 + 0.5 * step, 0, {150, 100})));
      QVERIFY(f.picture->cacheBytes() <= options.cacheBytes);
    }
  }

  void aDeadProcessShowsAsAnErrorAndIsNotAskedAgain() {
    const Fixture f(kSmall);
    f.process->fail(PictureCall::Render, kDied);
    QSignalSpy failed(f.picture.get(), &RenderedPicture::failed);
    const QTransform t = placed(kSmall, 1, 0, {150, 100});
    f.picture->request(t, kVisible);
    QVERIFY(QTest::qWaitFor([&] { return failed.size() == 1; }, 20000));
    QVERIFY(f.picture->error());
    QCOMPARE(f.picture->error()->kind, ErrorKind::Died);
    QCOMPARE(f.picture->error()->message, QStringLiteral("the picture process ended"));
    for (int i = 0; i < 10; ++i) f.drawAndRequest(t);
    QVERIFY(f.becomesIdle());
    QCOMPARE(f.renders(), 1);
    QCOMPARE(failed.size(), 1);
    QVERIFY(!f.picture->isBusy());
  }

  void retryAsksAgainAndClearsTheError() {
    const Fixture f(kSmall);
    f.process->fail(PictureCall::Render, {ErrorKind::TimedOut, QStringLiteral("not done in time")}, 1);
    const QTransform t = placed(kSmall, 1, 0, {150, 100});
    f.picture->request(t, kVisible);
    QVERIFY(QTest::qWaitFor([&] { return f.picture->error().has_value(); }, 20000));
    f.picture->retry();
    QVERIFY(!f.picture->error());
    QVERIFY(f.becomesSharp(t));
    QCOMPARE(f.draw(t), f.reference(t));
    QCOMPARE(f.renders(), 2);
  }

  void anotherScaleIsTriedAfterAFailureAndTheLastGoodPictureStays() {
    const Fixture f(kSmall);
    const QTransform good = placed(kSmall, 1, 0, {150, 100});
    QVERIFY(f.becomesSharp(good));
    f.process->fail(PictureCall::Render, {ErrorKind::Limit, QStringLiteral("too many pixels")}, 1);
    const QTransform bad = placed(kSmall, 1.4, 0, {150, 100});
    f.picture->request(bad, kVisible);
    QVERIFY(QTest::qWaitFor([&] { return f.picture->error().has_value(); }, 20000));
    QCOMPARE(blankPixels(f.draw(bad), bad, kSmall), 0);
    const QTransform other = placed(kSmall, 1.2, 0, {150, 100});
    QVERIFY(f.becomesSharp(other));
    QVERIFY(!f.picture->error());
    // back at the scale that failed: the error is told again, nothing is asked
    const int renders = f.renders();
    f.picture->request(bad, kVisible);
    QVERIFY(f.picture->error());
    QVERIFY(f.becomesIdle());
    QCOMPARE(f.renders(), renders);
  }

  void afterThreeFailuresInARowNothingIsAskedUntilRetry() {
    const Fixture f(kSmall);
    f.process->fail(PictureCall::Render, kDied);
    QSignalSpy failed(f.picture.get(), &RenderedPicture::failed);
    for (int step = 1; step <= 8; ++step) {
      f.picture->request(placed(kSmall, step, 0, {150, 100}), kVisible);
      QVERIFY(f.becomesIdle());
    }
    QCOMPARE(f.renders(), 3);
    QCOMPARE(failed.size(), 3);
    f.process->succeed(PictureCall::Render);
    f.picture->retry();
    QVERIFY(QTest::qWaitFor(
        [&] {
          return f.picture->isSharpFor(placed(kSmall, 8, 0, {150, 100}), kVisible);
        },
        20000));
  }

  void anAnswerOfAnotherSizeIsAProtocolError() {
    MemoryPicture memory;
    memory.paint = [](const RenderRequest&) { return QImage(3, 3, QImage::Format_ARGB32_Premultiplied); };
    const Fixture f(kSmall, {}, memory);
    f.picture->request(placed(kSmall, 1, 0, {150, 100}), kVisible);
    QVERIFY(QTest::qWaitFor([&] { return f.picture->error().has_value(); }, 20000));
    QCOMPARE(f.picture->error()->kind, ErrorKind::Protocol);
    QCOMPARE(f.picture->error()->message, "the picture process answered with another size");
  }

  void withoutAPictureProcessTheErrorIsShownAndNothingHangs() {
    NullPictureService service;
    RenderedPicture picture(service.open({}, PictureKind::Pdf), 0, kSmall);
    picture.request(placed(kSmall, 1, 0, {150, 100}), kVisible);
    QVERIFY(QTest::qWaitFor([&] { return picture.error().has_value(); }, 20000));
    QCOMPARE(picture.error()->kind, ErrorKind::Died);
  }

  void closingWhileRenderingDoesNotWaitForTheRendering() {
    auto f = std::make_unique<Fixture>(kSmall);
    f->process->hold(PictureCall::Render);
    f->picture->request(placed(kSmall, 1, 0, {150, 100}), kVisible);
    QVERIFY(f->process->waitUntilHeld(PictureCall::Render));
    const auto process = f->process;
    f.reset();  // returns although nobody releases the latch
    QCOMPARE(process->cancelledCalls(), 1);
  }

  void viewsWithoutSenseAreIgnored() {
    const Fixture f(kSmall);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QTransform& t : {QTransform(0, 0, 0, 0, 0, 0), QTransform(nan, 0, 0, 1, 0, 0),
                                QTransform(1, 1, 1, 1, 0, 0), QTransform(1, 0, 0, 1, 1e300, 0)})
      QCOMPARE(f.drawAndRequest(t), emptyFrame());
    f.picture->request(placed(kSmall, 1, 0, {150, 100}), QRect());
    f.picture->request(placed(kSmall, 1, 0, {-5000, 100}), kVisible);
    QVERIFY(f.becomesIdle());
    QCOMPARE(f.renders(), 0);
  }

  void aHugeViewIsRenderedAroundItsMiddleOnly() {
    MemoryPicture memory;
    memory.paint = [](const RenderRequest& request) {
      QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::white);
      return image;
    };
    RenderedPictureOptions options;
    options.visiblePixels = 4'000'000;
    const Fixture f({1e6, 1e6}, options, memory);
    f.picture->request(placed(f.size, 1, 0, {0, 0}), QRect(-400000, -400000, 800000, 800000));
    QVERIFY(f.becomesIdle());
    qint64 pixels = 0;
    for (const RenderRequest& request : f.process->renderRequests())
      pixels += qint64(request.pixelSize.width()) * request.pixelSize.height();
    QVERIFY(pixels > 0);
    QVERIFY(pixels < 12'000'000);
  }

  void theResultHasTrueDevicePixelsOnAScaledPainter() {
    const Fixture f(kSmall);
    const QTransform t = placed(kSmall, 1.25, 0, {150, 100});
    QVERIFY(f.becomesSharp(t));
    QImage frame = emptyFrame();
    frame.setDevicePixelRatio(1.25);
    QPainter painter(&frame);
    painter.translate(17, 5);
    painter.rotate(10);
    f.picture->draw(painter, t, kVisible);
    QVERIFY(!painter.transform().isIdentity());  // as it was
    painter.end();
    frame.setDevicePixelRatio(1);
    QCOMPARE(frame, f.reference(t));
  }

  void thePaintersClipIsRespected() {
    const Fixture f(kSmall);
    const QTransform t = placed(kSmall, 1.5, 0, {150, 100});
    QVERIFY(f.becomesSharp(t));
    for (const QTransform& shown : {t, placed(kSmall, 1.7, 20, {150, 100})}) {
      QImage frame = emptyFrame();
      QPainter painter(&frame);
      painter.setClipRect(100, 50, 60, 40);
      f.picture->draw(painter, shown, kVisible);
      painter.end();
      QVERIFY(qAlpha(frame.pixel(130, 70)) == 255);
      QCOMPARE(qAlpha(frame.pixel(99, 70)), 0);
      QCOMPARE(qAlpha(frame.pixel(130, 91)), 0);
    }
  }
};

NORVEX_TEST(RenderedPictureTest)
#include "rendered_picture_test.moc"
