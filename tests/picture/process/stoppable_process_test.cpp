// Stopping what a window waits for.

#include <future>

#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"
#include "picture/process/stoppable_process.h"
#include "protocol/program_stop.h"

using namespace norvex;

namespace {

RenderRequest small() {
  RenderRequest request;
  request.pixelSize = {4, 4};
  return request;
}

}  // namespace

class StoppableProcessTest : public QObject {
  Q_OBJECT
 private slots:
  void everyCallIsForwarded() {
    MemoryPictureService service;
    StoppableService stoppable(service, CancelToken());
    const auto process = stoppable.open("bytes", PictureKind::Pdf);
    QVERIFY(process->facts() && process->pdf({}) && process->compose({}) && process->svg({}) &&
            process->examine({}));
    QVERIFY(process->render(small()) && process->setPdfAttributes("pdf", {}));
    process->retire();
    for (PictureCall call : {PictureCall::Facts, PictureCall::Pdf, PictureCall::Compose, PictureCall::Svg,
                             PictureCall::Render, PictureCall::Examine, PictureCall::Attributes})
      QCOMPARE(service.lastProcess()->calls(call), 1);
    QCOMPARE(service.lastProcess()->retirements(), 1);
    QCOMPARE(service.openedKinds(), QList<PictureKind>{PictureKind::Pdf});
  }

  void whatTheDrawingFoundOutIsTold() {
    MemoryPicture picture;
    picture.drawingRemarks = {"the font A is missing, B stands in for it"};
    MemoryPictureService service(picture);
    StoppableService stoppable(service, CancelToken());
    const auto process = stoppable.open("bytes", PictureKind::Pdf);
    QCOMPARE(process->drawingRemarks(), QStringList());
    QVERIFY(process->render(small()));
    QCOMPARE(process->drawingRemarks(), picture.drawingRemarks);
  }

  void everyCallOfTheServiceIsForwarded() {
    MemoryPictureService service;
    StoppableService stoppable(service, CancelToken());
    stoppable.openOnlyFor(PictureUse::Drawing);
    QCOMPARE(service.use(), PictureUse::Drawing);
    QVERIFY(!stoppable.decodePreview("tiff"));
    QCOMPARE(service.previewCount(), 1);
    QCOMPARE(stoppable.composePages("pdf", {}).error().message,
             service.composePages("pdf", {}).error().message);
  }

  void stopEndsRenderingsAndRefusesLaterOnes() {
    MemoryPictureService service;
    StoppableService stoppable(service, CancelToken());
    const auto process =
        std::dynamic_pointer_cast<StoppableProcess>(stoppable.open("bytes", PictureKind::Pdf));
    QVERIFY(process);
    service.lastProcess()->hold(PictureCall::Render);
    auto first = std::async(std::launch::async, [&] { return process->render(small()); });
    QVERIFY(service.lastProcess()->waitUntilHeld(PictureCall::Render));
    process->stop();
    QCOMPARE(first.get().error().kind, ErrorKind::Cancelled);
    QCOMPARE(process->render(small()).error().kind, ErrorKind::TimedOut);
    QVERIFY(process->facts());
    service.lastProcess()->release(PictureCall::Render);
    process->resume();
    QVERIFY(process->render(small()));
  }

  void whatAProgramHadDrawnIsShownWhenItWasStopped() {
    MemoryPicture picture;
    picture.paint = [](const RenderRequest& request) {
      QImage image(request.pixelSize, QImage::Format_ARGB32_Premultiplied);
      image.fill(request.page == begunPage ? Qt::red : Qt::blue);
      return image;
    };
    MemoryPictureService service(picture);
    StoppableService stoppable(service, CancelToken());
    const auto process =
        std::dynamic_pointer_cast<StoppableProcess>(stoppable.open("bytes", PictureKind::Eps));
    QCOMPARE(process->render(small())->pixelColor(0, 0), QColor(Qt::blue));
    process->stop();
    QVERIFY(process->isStopped() && !process->hasShownBegun());
    QCOMPARE(process->render(small())->pixelColor(0, 0), QColor(Qt::red));
    QVERIFY(process->hasShownBegun());
    RenderRequest remembered = small();
    remembered.purpose = RenderPurpose::Preview;
    QVERIFY(!process->render(remembered));  // what is begun is no picture of the file
    process->resume();
    QVERIFY(!process->hasShownBegun());
    QCOMPARE(process->render(small())->pixelColor(0, 0), QColor(Qt::blue));
  }

  void aProgramThatHadDrawnNothingIsStopped() {
    MemoryPictureService service;
    StoppableService stoppable(service, CancelToken());
    const auto process =
        std::dynamic_pointer_cast<StoppableProcess>(stoppable.open("bytes", PictureKind::Eps));
    process->stop();
    const auto nothing = process->render(small());
    QVERIFY(!process->hasShownBegun());
    QVERIFY(!nothing && StoppableProcess::meansStopped(nothing.error()));
  }

  void processesThatDieInARowAreStartedAtGrowingIntervals() {
    std::chrono::steady_clock::time_point now;
    const auto inside = std::make_shared<MemoryPictureProcess>("bytes", MemoryPicture());
    StoppableProcess process(inside, CancelToken(), [&] { return now; });
    const Error death{ErrorKind::Died, "the picture process ended without an answer"};
    inside->fail(PictureCall::Render, death);
    for (int i = 0; i < 10; ++i) {
      const auto result = process.render(small());
      QCOMPARE(result.error().kind, ErrorKind::Died);
      QCOMPARE(result.error().message, death.message);
    }
    QCOMPARE(inside->calls(PictureCall::Render), StoppableProcess::deathsWithoutPause);

    // Each pause is twice the one before it, and none is longer than the longest.
    std::chrono::seconds pause = StoppableProcess::firstPause;
    for (int times = 0; times < 10; ++times) {
      const int before = inside->calls(PictureCall::Render);
      now += pause - std::chrono::milliseconds(1);
      QVERIFY(!process.render(small()));
      QCOMPARE(inside->calls(PictureCall::Render), before);
      now += std::chrono::milliseconds(1);
      QVERIFY(!process.render(small()));
      QCOMPARE(inside->calls(PictureCall::Render), before + 1);
      pause = std::min(2 * pause, StoppableProcess::longestPause);
    }
  }

  void whoAsksForItGetsAnotherProcessAtOnce() {
    std::chrono::steady_clock::time_point now;
    const auto inside = std::make_shared<MemoryPictureProcess>("bytes", MemoryPicture());
    StoppableProcess process(inside, CancelToken(), [&] { return now; });
    inside->fail(PictureCall::Render, {ErrorKind::Died, "it died"}, StoppableProcess::deathsWithoutPause);
    for (int i = 0; i < 5; ++i) QVERIFY(!process.render(small()));
    process.resume();
    QVERIFY(process.render(small()));
    QVERIFY(process.render(small()));
  }

  void otherFailuresAreNoDeaths() {
    std::chrono::steady_clock::time_point now;
    const auto inside = std::make_shared<MemoryPictureProcess>("bytes", MemoryPicture());
    StoppableProcess process(inside, CancelToken(), [&] { return now; });
    inside->fail(PictureCall::Render, {ErrorKind::Unsupported, "it cannot be drawn"});
    for (int i = 0; i < 5; ++i) QVERIFY(!process.render(small()));
    QCOMPARE(inside->calls(PictureCall::Render), 5);
  }

  void theLoadingsTokenEndsTheWaitForFacts() {
    MemoryPictureService service;
    service.setPrepare([](MemoryPictureProcess& made) { made.hold(PictureCall::Facts); });
    const CancelToken loading;
    StoppableService stoppable(service, loading);
    const auto process = stoppable.open("bytes", PictureKind::Pdf);
    auto facts = std::async(std::launch::async, [&] { return process->facts(); });
    QVERIFY(service.lastProcess()->waitUntilHeld(PictureCall::Facts));
    loading.cancel();
    QCOMPARE(facts.get().error().kind, ErrorKind::Cancelled);
  }
};

NORVEX_TEST(StoppableProcessTest)
#include "stoppable_process_test.moc"
