#include "cli/work_in_order.h"

#include <QThread>

#include <atomic>
#include <future>
#include <memory>

#include "kit/test_main.h"

using namespace norvex;

namespace {

QString sentence(const Error& error) {
  return error.message;
}

}  // namespace

class WorkInOrderTest : public QObject {
  Q_OBJECT
 private slots:
  void resultsAreTakenInTheOrderOfTheThingsWhateverIsReadyFirst() {
    std::promise<void> last;
    WorkInOrder<QString> work(
        3, 3,
        [&](qsizetype index) {
          if (index == 0) last.get_future().wait();
          if (index == 2) last.set_value();
          return QStringLiteral("thing %1").arg(index);
        },
        sentence);
    QCOMPARE(work.take(0), "thing 0");
    QCOMPARE(work.take(1), "thing 1");
    QCOMPARE(work.take(2), "thing 2");
  }

  void noMoreThingsAreMadeAtATimeThanWasAskedFor() {
    std::atomic<int> now = 0, most = 0;
    {
      const WorkInOrder<int> work(
          40, 2,
          [&](qsizetype) {
            const int together = ++now;
            int before = most;
            while (together > before && !most.compare_exchange_weak(before, together)) continue;
            QThread::yieldCurrentThread();
            return now--;
          },
          [](const Error&) { return 0; });
    }
    QVERIFY2(most <= 2, QByteArray::number(most.load()).constData());
  }

  void manyThingsAreMadeAtATime() {
    std::promise<void> first, second;
    WorkInOrder<int> work(
        2, 2,
        [&](qsizetype index) {  // each waits for the other
          (index == 0 ? first : second).set_value();
          (index == 0 ? second : first).get_future().wait();
          return int(index);
        },
        [](const Error&) { return -1; });
    QCOMPARE(work.take(0), 0);
    QCOMPARE(work.take(1), 1);
  }

  void aSingleThingIsMadeAtOnceByWhoAsks() {
    QThread* maker = nullptr;
    WorkInOrder<int> work(
        1, 4,
        [&](qsizetype) {
          maker = QThread::currentThread();
          return 7;
        },
        [](const Error&) { return 0; });
    QCOMPARE(maker, QThread::currentThread());
    QCOMPARE(work.take(0), 7);
  }

  void ofNothingNothingIsMade() {
    bool made = false;
    {
      const WorkInOrder<int> work(
          0, 4, [&](qsizetype) { return made = true, 1; }, [](const Error&) { return 0; });
    }
    QVERIFY(!made);
  }

  void memoryThatRunsOutIsToldOfItsThingAlone_data() {
    QTest::addColumn<int>("count");
    QTest::newRow("one") << 1;
    QTest::newRow("several") << 3;
  }
  void memoryThatRunsOutIsToldOfItsThingAlone() {
    QFETCH(int, count);
    WorkInOrder<QString> work(
        count, 2,
        [](qsizetype index) {
          if (index == 0) throw std::bad_alloc();
          return QStringLiteral("made");
        },
        sentence);
    QCOMPARE(work.take(0), outOfMemory().message);
    for (int i = 1; i < count; ++i) QCOMPARE(work.take(i), "made");
  }

  void whatIsTakenIsKeptNoLonger() {
    std::weak_ptr<int> known;
    WorkInOrder<std::shared_ptr<int>> work(
        2, 1, [](qsizetype index) { return std::make_shared<int>(int(index)); },
        [](const Error&) { return nullptr; });
    known = work.take(0);
    QVERIFY(known.expired());
  }

  void itsEndWaitsForAllThatWasBegun() {
    std::atomic<int> done = 0;
    {
      const WorkInOrder<int> work(
          8, 3,
          [&](qsizetype) {
            QThread::yieldCurrentThread();
            return ++done;
          },
          [](const Error&) { return 0; });
    }
    QCOMPARE(done.load(), 8);
  }
};

NORVEX_TEST(WorkInOrderTest)
#include "work_in_order_test.moc"
