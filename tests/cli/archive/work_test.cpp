// What bounds a run: the window between reading, working and telling, and the places of those that work.
#include <QScopeGuard>
#include <QThread>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

#include "cli/archive/work_places.h"
#include "cli/archive/work_window.h"
#include "kit/process_watch.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace std::chrono_literals;

namespace {

FileResult resultOf(qint64 number, qsizetype bytes = 0) {
  FileResult result;
  result.number = number;
  result.text = QByteArray(bytes, 'x');
  return result;
}

FileTask task(qint64 number) {
  return {number, {QByteArray::number(number), {}}, {}, false};
}

QList<qint64> toldOf(WorkWindow& window, int count) {
  QList<qint64> told;
  while (told.size() < count) {
    const auto result = window.next(20s);
    if (!result) break;
    told << result->number;
  }
  return told;
}

}  // namespace

class WorkTest : public QObject {
  Q_OBJECT
 private slots:
  void resultsComeOutInTheOrderOfTheirNames() {
    WorkWindow window(true, {});
    for (int i = 1; i <= 3; ++i) QVERIFY(window.put(task(i)));
    window.close();
    for (int i = 1; i <= 3; ++i) QCOMPARE(window.take()->number, i);
    QVERIFY(!window.take());
    window.done(resultOf(3));
    window.done(resultOf(2));
    QVERIFY(!window.next(0ms));  // the first is not done
    window.done(resultOf(1));
    QCOMPARE(toldOf(window, 3), QList<qint64>({1, 2, 3}));
    QVERIFY(window.isOver());
  }

  void withoutOrderTheyComeAsTheyAreDone() {
    WorkWindow window(false, {});
    for (int i = 1; i <= 2; ++i) QVERIFY(window.put(task(i)));
    (void)window.take(), (void)window.take();
    window.done(resultOf(2));
    QCOMPARE(window.next(0ms)->number, 2);
  }

  void whoReadsNamesWaitsForWhoTells_data() {
    QTest::addColumn<int>("tasks");
    QTest::addColumn<qint64>("numbers");
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("waiting tasks") << 2 << qint64(100) << qint64(1 << 20);
    QTest::newRow("open numbers") << 100 << qint64(2) << qint64(1 << 20);
    QTest::newRow("bytes of results") << 100 << qint64(100) << qint64(1500);
  }
  void whoReadsNamesWaitsForWhoTells() {
    QFETCH(int, tasks);
    QFETCH(qint64, numbers);
    QFETCH(qint64, bytes);
    WorkWindow window(true, {tasks, numbers, bytes});
    if (bytes < 2000) {
      QVERIFY(window.putResult(resultOf(1, 1000)));
    } else {
      QVERIFY(window.put(task(1)));
    }
    std::atomic<int> entered = 1;
    std::jthread reader([&] {
      for (int i = 2; i <= 4; ++i)
        if (window.put(task(i))) ++entered;
    });
    const auto stop = qScopeGuard([&] { window.stop(); });  // or a failure would wait for the reader
    QVERIFY(kit::eventually([&] { return entered >= (bytes < 2000 ? 1 : 2); }));
    QThread::msleep(20);
    if (bytes < 2000)
      QVERIFY(entered < 4);
    else
      QCOMPARE(entered.load(), 2);
    const int before = entered;  // it goes on as soon as something is told
    if (const auto first = bytes < 2000 ? std::nullopt : window.take()) window.done(resultOf(1));
    QCOMPARE(toldOf(window, 1), QList<qint64>{1});
    if (tasks == 2) (void)window.take();
    QVERIFY(kit::eventually([&] { return entered > before; }));
  }

  void aStoppedRunTellsWhatIsDoneAndDropsWhatWaits() {
    WorkWindow window(true, {});
    for (int i = 1; i <= 3; ++i) QVERIFY(window.put(task(i)));
    (void)window.take(), (void)window.take();
    window.stop();
    QVERIFY(!window.put(task(4)));
    QVERIFY(!window.take());
    window.done(resultOf(2));
    QVERIFY(!window.isOver());
    window.done(resultOf(1));
    QCOMPARE(toldOf(window, 2).size(), 2);
    QVERIFY(window.isOver());
  }

  void noMoreWorkThanThereArePlaces() {
    WorkPlaces places({1, 0, 1h});
    std::optional<WorkPlaces::Turn> first(places.take(0));
    std::atomic<bool> entered = false;
    std::jthread second([&] {
      const auto turn = places.take(0);
      entered = true;
    });
    QThread::msleep(20);
    QVERIFY(!entered);
    first.reset();
    QVERIFY(kit::eventually([&] { return entered.load(); }));
  }

  void whatTakesLongGivesItsPlaceUpAndKeepsItsMemory() {
    WorkPlaces places({1, 100, 1ms});
    std::optional<WorkPlaces::Turn> slow(places.take(60));
    QThread::msleep(5);
    { const auto quick = places.take(40); }  // or the test hangs
    std::atomic<bool> entered = false;
    std::jthread large([&] {
      const auto turn = places.take(41);
      entered = true;
    });
    QThread::msleep(20);
    QVERIFY(!entered);  // 60 and 41 are more than there is
    slow.reset();
    QVERIFY(kit::eventually([&] { return entered.load(); }));
  }

  void whatNeedsMoreThanThereIsHasAllOfIt() {
    WorkPlaces places({4, 100, 1h});
    const auto turn = places.take(5000);  // or the test hangs
  }

  void whoeverIsTriedAloneIsAlone() {
    WorkPlaces places({4, 0, 1h});
    std::optional<WorkPlaces::Turn> other(places.take(0));
    std::atomic<int> order = 0;
    int aloneAt = 0, afterAt = 0;
    std::jthread alone([&] {
      const auto turn = places.takeAlone();
      QThread::msleep(10);
      aloneAt = ++order;
    });
    QThread::msleep(20);
    std::jthread after([&] {
      const auto turn = places.take(0);
      afterAt = ++order;
    });
    QThread::msleep(20);
    QCOMPARE(order.load(), 0);
    other.reset();
    alone.join();
    after.join();
    QCOMPARE(aloneAt, 1);
    QCOMPARE(afterAt, 2);
  }
};

NORVEX_TEST(WorkTest)
#include "work_test.moc"
