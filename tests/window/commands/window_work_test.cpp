// What a window has under way: what its card says, what Cancel stops, what is told.
#include "window/commands/window_work.h"

#include <QSignalSpy>

#include "kit/test_main.h"

using namespace norvex;

class WindowWorkTest : public QObject {
  Q_OBJECT
 private slots:
  void whatWasBegunLastIsWhatIsTold() {
    WindowWork work;
    QVERIFY(!work.isUnderWay() && work.text().isEmpty());
    const int first = work.begin(WindowWork::Kind::Reading, "Reading…", {});
    const int second = work.begin(WindowWork::Kind::Writing, "Writing…", {});
    QVERIFY(first != second);
    QCOMPARE(work.text(), QString("Writing…"));
    QVERIFY(work.isUnderWay(WindowWork::Kind::Reading) && work.isUnderWay(WindowWork::Kind::Writing));
    QVERIFY(!work.isUnderWay(WindowWork::Kind::Copying));
    work.end(second);
    QCOMPARE(work.text(), QString("Reading…"));
    QVERIFY(!work.isUnderWay(WindowWork::Kind::Writing));
    work.end(first);
    QVERIFY(!work.isUnderWay());
  }

  void everyBeginningAndEndIsToldAndNothingElse() {
    WindowWork work;
    QSignalSpy changed(&work, &WindowWork::changed), failed(&work, &WindowWork::failed);
    const int number = work.begin(WindowWork::Kind::Reading, "Reading…", {});
    QCOMPARE(changed.size(), 1);
    work.end(number + 1);
    QCOMPARE(changed.size(), 1);
    work.end(number);
    work.end(number);
    QCOMPARE(changed.size(), 2);
    QVERIFY(failed.isEmpty());
  }

  void aFailureIsToldWhileItIsStillUnderWay() {
    WindowWork work;
    const int number = work.begin(WindowWork::Kind::Writing, "Writing…", {});
    bool was = false;
    connect(&work, &WindowWork::failed, this, [&] { was = work.isUnderWay(); });
    work.fail(number);
    QVERIFY(was && !work.isUnderWay());
  }

  void cancelStopsTheNewestOfItsKindAndLeavesItToEnd() {
    WindowWork work;
    QVERIFY(!work.cancelNewest() && !work.cancelNewest(WindowWork::Kind::Reading));
    const CancelToken reading, writing, later;
    work.begin(WindowWork::Kind::Reading, "1", reading);
    work.begin(WindowWork::Kind::Writing, "2", writing);
    work.begin(WindowWork::Kind::Writing, "3", later);
    QVERIFY(work.cancelNewest());
    QVERIFY(later.cancelled() && !writing.cancelled() && !reading.cancelled());
    QVERIFY(work.cancelNewest(WindowWork::Kind::Reading));
    QVERIFY(reading.cancelled() && !writing.cancelled());
    QVERIFY(!work.cancelNewest(WindowWork::Kind::Copying));
    QCOMPARE(work.text(), QString("3"));
    work.cancelAll();
    QVERIFY(writing.cancelled());
  }

  void whatGoesWithItsWindowIsCancelled() {
    const CancelToken cancel;
    {
      WindowWork work;
      work.begin(WindowWork::Kind::Examining, "1", cancel);
      QVERIFY(!cancel.cancelled());
    }
    QVERIFY(cancel.cancelled());
  }
};

NORVEX_TEST(WindowWorkTest)
#include "window_work_test.moc"
