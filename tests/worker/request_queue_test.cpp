// The requests that wait for a document's process.
#include "worker/request_queue.h"

#include "kit/forked_check.h"
#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

constexpr int kAnswered = 7;

/// The end of a process that takes no request while so many are posted.
int endAfter(size_t posted, RequestQueue::Reading reading = RequestQueue::Reading::AtWork) {
  return kit::inForkedChild([posted, reading] {
    auto pair = MessageChannel::makePair();
    // The thread uses both ends until the process ends: were one closed before, it would end it its own way.
    auto& ours = *new MessageChannel(std::move(pair->first));
    auto* queue = new RequestQueue(*new MessageChannel(std::move(pair->second)), reading);
    for (size_t i = 0; i < posted; ++i)
      if (!ours.send(encodeMessage(WorkerRequest{quint32(i + 1), PdfRequest()})).ok()) return 1;
    if (posted > limits::maximumWaitingRequests) ::pause();  // the thread ends us
    for (size_t i = 0; i < posted; ++i)
      if (queue->next().request.id != i + 1) return 2;
    return kAnswered;
  });
}

}  // namespace

class RequestQueueTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
#if defined(__SANITIZE_THREAD__)
    // The queues of picture processes that others start are watched: tests/picture/client.
    QSKIP("where threads are watched none may begin in a fork of a program that has some");
#endif
  }

  void requestsAreTakenInTheirOrder() {
    QCOMPARE(endAfter(limits::maximumWaitingRequests), kAnswered);
  }

  void requestsAreTakenInTheirOrderWithoutAThreadThatReadsThem() {
    QCOMPARE(endAfter(3, RequestQueue::Reading::BetweenRequests), kAnswered);
  }

  void withoutAThreadTheProcessEndsWithItsConnection() {
    QCOMPARE(kit::inForkedChild([] {
               auto pair = MessageChannel::makePair();
               pair->first.reset();
               auto* queue = new RequestQueue(*new MessageChannel(std::move(pair->second)),
                                              RequestQueue::Reading::BetweenRequests);
               return int(queue->next().request.id) + kAnswered;
             }),
             0);
  }

  void whoeverPostsWithoutWaitingIsNotServed() {
    const int end = endAfter(limits::maximumWaitingRequests + 1);
    QVERIFY(end != kAnswered && end > 0);
  }
};

NORVEX_TEST(RequestQueueTest)
#include "request_queue_test.moc"
