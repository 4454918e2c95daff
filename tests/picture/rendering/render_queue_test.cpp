// RenderQueue: the list of what is wanted is all that counts.
#include "picture/rendering/render_queue.h"

#include <QtTest>

#include <atomic>

#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"

using namespace norvex;

namespace {

RenderJob job(quint64 id) {
  RenderJob result;
  result.id = id;
  result.request.pixelSize = QSize(int(id), 4);
  result.rect = QRect(QPoint(), result.request.pixelSize);
  return result;
}

struct Fixture {
  std::shared_ptr<MemoryPictureProcess> process =
      std::make_shared<MemoryPictureProcess>(QByteArray(), MemoryPicture());
  std::atomic<int> notified = 0;
  std::atomic<qint64> now = 1'000'000;  // from any start
  std::unique_ptr<RenderQueue> queue = std::make_unique<RenderQueue>(
      process, [this] { ++notified; }, [this] { return now.load(); });

  [[nodiscard]] bool waitFor(int count) {
    return QTest::qWaitFor([&] { return notified.load() >= count; }, 20000);
  }
  QList<int> widths() const {
    QList<int> all;
    for (const RenderRequest& request : process->renderRequests()) all << request.pixelSize.width();
    return all;
  }
};

}  // namespace

class RenderQueueTest : public QObject {
  Q_OBJECT
 private slots:
  void jobsAreDoneInTheOrderOfTheList() {
    Fixture f;
    f.process->hold(PictureCall::Render);
    f.queue->setWanted({job(9)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.queue->setWanted({job(9), job(3), job(5), job(1)});
    f.process->release(PictureCall::Render);
    QVERIFY(f.waitFor(4));
    QCOMPARE(f.widths(), QList<int>({9, 3, 5, 1}));
    const auto finished = f.queue->takeFinished();
    QCOMPARE(finished.size(), 4);
    QCOMPARE(finished.last().job.id, 1u);
    QCOMPARE(finished.last().result->size(), QSize(1, 4));
    QVERIFY(f.queue->takeFinished().isEmpty());
  }

  void waitingJobsThatAreNoLongerListedAreNeverBegun() {
    Fixture f;
    f.process->hold(PictureCall::Render);
    f.queue->setWanted({job(1), job(2), job(3)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.queue->setWanted({job(1), job(4)});
    f.process->release(PictureCall::Render);
    QVERIFY(f.waitFor(2));
    QCOMPARE(f.widths(), QList<int>({1, 4}));
    QCOMPARE(f.process->cancelledCalls(), 0);
  }

  void theRunningJobIsCancelledWhenItIsNoLongerListed() {
    Fixture f;
    f.process->hold(PictureCall::Render);
    f.queue->setWanted({job(1)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.queue->setWanted({});
    QVERIFY(f.waitFor(1));  // although the latch holds
    const auto finished = f.queue->takeFinished();
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.first().result.error().kind, ErrorKind::Cancelled);
  }

  void aCancelledJobDoesNotCancelTheNextOne() {
    Fixture f;
    f.process->hold(PictureCall::Render);
    f.queue->setWanted({job(1)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.queue->setWanted({job(2)});
    QVERIFY(f.waitFor(1));
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.process->release(PictureCall::Render);
    QVERIFY(f.waitFor(2));
    QVERIFY(f.queue->takeFinished().last().result.ok());
  }

  void aJobThatHasEndedIsNotBegunAgainWhileItIsListed() {
    Fixture f;
    f.queue->setWanted({job(1)});
    QVERIFY(f.waitFor(1));
    f.queue->setWanted({job(1), job(2)});
    QVERIFY(f.waitFor(2));
    f.queue->setWanted({job(1), job(2), job(3)});
    QVERIFY(f.waitFor(3));
    QCOMPARE(f.widths(), QList<int>({1, 2, 3}));
  }

  void aStaleJobMayRunAsLongAsTheDocumentTookToOpen() {
    Fixture f;
    f.process->hold(PictureCall::Facts);
    f.process->hold(PictureCall::Render);
    f.queue->setWanted({job(1)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Facts));
    f.now += 500;
    f.process->release(PictureCall::Facts);
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.now += 100;
    QCOMPARE(f.queue->setWanted({job(2)}), 400);
    QVERIFY(!f.notified);
    f.now += 400;
    QCOMPARE(f.queue->setWanted({job(2)}), 0);
    QVERIFY(f.waitFor(1));
    QCOMPARE(f.process->cancelledCalls(), 1);
    f.process->release(PictureCall::Render);
    QVERIFY(f.waitFor(2));
    QVERIFY(f.queue->takeFinished().last().result.ok());
  }

  void aJobThatBecomesStaleDuringTheOpeningIsNeverBegunAndTheOpeningGoesOn() {
    Fixture f;
    f.process->hold(PictureCall::Facts);
    f.queue->setWanted({job(1)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Facts));
    QCOMPARE(f.queue->setWanted({job(2)}), 0);
    f.process->release(PictureCall::Facts);
    QVERIFY(f.waitFor(2));
    QCOMPARE(f.widths(), QList<int>({2}));
    QCOMPARE(f.process->cancelledCalls(), 0);
  }

  void aDocumentThatCannotBeOpenedFailsTheJob() {
    Fixture f;
    f.process->fail(PictureCall::Facts, {ErrorKind::Encrypted, QStringLiteral("a password is needed")});
    f.queue->setWanted({job(1)});
    QVERIFY(f.waitFor(1));
    QCOMPARE(f.queue->takeFinished().first().result.error().kind, ErrorKind::Encrypted);
    QCOMPARE(f.process->calls(PictureCall::Render), 0);
  }

  void whileSuspendedNothingIsBegunAndTheListTellsWhatWas() {
    Fixture f;
    f.queue->setWanted({job(1)});
    QVERIFY(f.waitFor(1));
    f.process->hold(PictureCall::Render);
    f.queue->setWanted({job(1), job(2), job(3)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    QCOMPARE(f.queue->suspend(), QSet<quint64>({1, 2}));
    f.process->release(PictureCall::Render);
    QVERIFY(f.waitFor(2));
    QCOMPARE(f.queue->suspend(), QSet<quint64>({1, 2}));
    f.queue->setWanted({job(4)});
    QVERIFY(f.waitFor(3));
    QCOMPARE(f.widths(), QList<int>({1, 2, 4}));
  }

  void theEndCancelsTheOpening() {
    Fixture f;
    f.process->hold(PictureCall::Facts);
    f.queue->setWanted({job(1)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Facts));
    f.queue.reset();
    QCOMPARE(f.process->cancelledCalls(), 1);
  }

  void theEndCancelsWhatRuns() {
    Fixture f;
    f.process->hold(PictureCall::Render);
    f.queue->setWanted({job(1), job(2)});
    QVERIFY(f.process->waitUntilHeld(PictureCall::Render));
    f.queue.reset();
    QCOMPARE(f.process->cancelledCalls(), 1);
    QCOMPARE(f.widths(), QList<int>({1}));
    QCOMPARE(f.notified.load(), 0);
  }
};

NORVEX_TEST(RenderQueueTest)
#include "render_queue_test.moc"
