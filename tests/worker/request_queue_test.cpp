// The requests that wait for a document's process.
#include "worker/request_queue.h"

#include <unistd.h>

#include "kit/test_main.h"
#include "kit/test_programs.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

constexpr int kAnswered = 7;

/// A program that posts so many requests to itself and then takes them, reading them at work or between
/// requests.
int takePosted(const QStringList& arguments) {
  const size_t posted = arguments.at(0).toULong();
  const auto reading = RequestQueue::Reading(arguments.at(1).toInt());
  auto pair = MessageChannel::makePair();
  // The thread uses both ends until the process ends: were one closed before, it would end it its own way.
  auto& ours = *new MessageChannel(std::move(pair->first));
  auto* queue = new RequestQueue(*new MessageChannel(std::move(pair->second)), reading);
  for (size_t i = 0; i < posted; ++i)
    if (!ours.send(encodeMessage(WorkerRequest{quint32(i + 1), PdfRequest()})).ok()) return 1;
  if (posted > limits::maximumWaitingRequests) ::pause();  // the thread ends us
  for (size_t i = 0; i < posted; ++i)
    if (queue->next().request.id != i + 1) return 2;
  ::_exit(kAnswered);  // the thread still waits for requests
}
const bool taking = kit::registerProgram("take-posted", takePosted);

/// A program that asks for a request where nobody is left to post one.
int takeFromNobody(const QStringList&) {
  auto pair = MessageChannel::makePair();
  pair->first.reset();
  auto* queue =
      new RequestQueue(*new MessageChannel(std::move(pair->second)), RequestQueue::Reading::BetweenRequests);
  return int(queue->next().request.id) + kAnswered;
}
const bool asking = kit::registerProgram("take-from-nobody", takeFromNobody);

/// How a program ends that takes no request while so many are posted; -1 by a signal.
int endAfter(size_t posted, RequestQueue::Reading reading = RequestQueue::Reading::AtWork) {
  const auto ran = kit::runProgram("take-posted", {QString::number(posted), QString::number(int(reading))});
  return ran.crashed ? -1 : ran.exitCode;
}

}  // namespace

class RequestQueueTest : public QObject {
  Q_OBJECT
 private slots:
  void requestsAreTakenInTheirOrder() { QCOMPARE(endAfter(limits::maximumWaitingRequests), kAnswered); }

  void requestsAreTakenInTheirOrderWithoutAThreadThatReadsThem() {
    QCOMPARE(endAfter(3, RequestQueue::Reading::BetweenRequests), kAnswered);
  }

  void withoutAThreadTheProcessEndsWithItsConnection() {
    const auto ran = kit::runProgram("take-from-nobody", {});
    QVERIFY(!ran.crashed);
    QCOMPARE(ran.exitCode, 0);
  }

  void whoeverPostsWithoutWaitingIsNotServed() {
    const int end = endAfter(limits::maximumWaitingRequests + 1);
    QVERIFY(end != kAnswered && end > 0);
  }
};

NORVEX_TEST(RequestQueueTest)
#include "request_queue_test.moc"
