// The requests that wait for a document's process.
#include "worker/request_queue.h"

#include <unistd.h>

#include "kit/test_main.h"
#include "kit/test_programs.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

constexpr int kNotUnderstood = 2, kAnswered = 7;

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

/// A program to which something is sent that is no request: bytes, a reply, or nothing and the end.
int takeRubbish(const QStringList& arguments) {
  auto pair = MessageChannel::makePair();
  auto& ours = *new MessageChannel(std::move(pair->first));
  const QByteArray sent =
      arguments.at(0) == u"reply" ? encodeReply({1, ForkReply{1}}) : QByteArray("rubbish");
  if (!ours.send(sent).ok()) return 1;
  auto* queue =
      new RequestQueue(*new MessageChannel(std::move(pair->second)), RequestQueue::Reading::BetweenRequests);
  return int(queue->next().request.id) + kAnswered;
}
const bool takingRubbish = kit::registerProgram("take-rubbish", takeRubbish);

/// A program that takes the first of three requests when the second and, where it is told, the first are
/// called off; tells by bits which of them are.
int takeCancelled(const QStringList&) {
  auto pair = MessageChannel::makePair();
  auto& ours = *new MessageChannel(std::move(pair->first));
  auto* queue = new RequestQueue(*new MessageChannel(std::move(pair->second)), RequestQueue::Reading::AtWork);
  for (const quint32 id : {1u, 2u, 3u})
    if (!ours.send(encodeMessage(WorkerRequest{id, PdfRequest()})).ok()) return 100;
  const ArrivedRequest first = queue->next();
  if (first.cancel.cancelled()) return 101;
  for (const quint32 id : {2u, 1u, 9u})
    if (!ours.send(encodeMessage(CancelRequest{id})).ok()) return 102;
  // What runs is called off behind what waits, and the thread reads in order.
  while (!first.cancel.cancelled()) ::usleep(1000);
  const ArrivedRequest second = queue->next(), third = queue->next();
  ::_exit((second.cancel.cancelled() ? 2 : 0) + (third.cancel.cancelled() ? 4 : 0) + 8);
}
const bool takingCancelled = kit::registerProgram("take-cancelled", takeCancelled);

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
    QCOMPARE(endAfter(limits::maximumWaitingRequests + 1), kNotUnderstood);
  }

  void whatIsNoRequestIsTheEnd() {
    QCOMPARE(kit::runProgram("take-rubbish", {"bytes"}).exitCode, kNotUnderstood);
    QCOMPARE(kit::runProgram("take-rubbish", {"reply"}).exitCode, kNotUnderstood);
  }

  void whatRunsAndWhatWaitsIsCalledOffByItsNumber() {
    QCOMPARE(kit::runProgram("take-cancelled", {}).exitCode, 8 + 2);
  }
};

NORVEX_TEST(RequestQueueTest)
#include "request_queue_test.moc"
