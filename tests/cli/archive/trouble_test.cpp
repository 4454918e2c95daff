// Runs in which pictures end their processes, change, or cannot be written.
#include <fcntl.h>
#include <sys/stat.h>

#include <atomic>
#include <csignal>

#include "cli/archive/archive_files.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::testdata;

class TroubleTest : public QObject {
  Q_OBJECT
 private slots:
  void aFileThatEndsItsProcessIsTriedOnceMoreAndThenSetAside() {
    Archive archive;
    archive.put("in/a.svg"), archive.put("in/killer.svg", svg("killer"));
    const Error died{ErrorKind::Died, "the picture process ended"};
    std::atomic<int> deaths = 0;
    archive.service.setPrepare([&](MemoryPictureProcess& process) {
      if (process.bytes() != svg("killer")) return;
      ++deaths;
      process.fail(PictureCall::Facts, died);
    });
    QCOMPARE(archive.convertTree({}), 1);
    QCOMPARE(deaths.load(), 2);
    QVERIFY(archive.console.messages.endsWith("norvex: 1 done, 1 set aside\n"));
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>({"a.svg"}));
  }

  void whetherPicturesCanBeReadIsTriedByOneOfTheSameSort_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<PictureKind>("tried");
    QTest::newRow("a.eps") << kEps << PictureKind::Eps;
    QTest::newRow("a.pdf") << emptyPdf({9, 9}) << PictureKind::Svg;
    QTest::newRow("a.svg") << kSvg << PictureKind::Svg;
    QTest::newRow("marked.svg") << "\xEF\xBB\xBF" + kSvg << PictureKind::Svg;
    QTest::newRow("a.svgz") << QByteArray("\x1F\x8B\x08\0\0\0\0\0\0\x03", 10) << PictureKind::Svg;
  }
  void whetherPicturesCanBeReadIsTriedByOneOfTheSameSort() {
    QFETCH(QByteArray, bytes);
    QFETCH(PictureKind, tried);
    Archive archive;
    archive.put(QByteArray("in/") + QTest::currentDataTag(), bytes);
    archive.service.setPrepare([&](MemoryPictureProcess& process) {
      if (process.bytes() != bytes) return;
      for (const PictureCall call : {PictureCall::Facts, PictureCall::Compose, PictureCall::Svg})
        process.fail(call, {ErrorKind::Died, "it ended"});
    });
    QCOMPARE(archive.convertTree({}), 3);
    QVERIFY2(archive.console.messages.endsWith("norvex: 1 set aside\n"),
             qPrintable(archive.console.messages));
    QCOMPARE(archive.service.openedKinds().last(), tried);
  }

  void whereNoPictureCanBeReadNoFileIsSetAside() {
    Archive archive;
    for (int i = 0; i < 100; ++i) archive.put("in/" + QByteArray::number(i) + ".svg");
    archive.service.setPrepare([](MemoryPictureProcess& process) {
      process.fail(PictureCall::Facts, {ErrorKind::Died, "the program that reads pictures is not there"});
    });
    const QStringList state{"--state", archive.path("state"), "--json-lines"};
    QVERIFY(archive.convertTree(state) != 0);
    QVERIFY(archive.told("outcome").count("not-written") >= 32 &&
            !archive.told("outcome").contains("set-aside"));
    QVERIFY2(archive.console.messages.contains("in a row could not be made or written; the run ends"),
             qPrintable(archive.console.messages));
    archive.service.setPrepare({});
    QCOMPARE(archive.convertTree(state), 0);
    QCOMPARE(archive.told("outcome"), QStringList(100, "done"));
  }

  void aFileThatEndsItsProcessOnceIsDone() {
    Archive archive;
    archive.put("in/a.svg");
    std::atomic<int> opened = 0;
    archive.service.setPrepare([&](MemoryPictureProcess& process) {
      if (++opened == 1) process.fail(PictureCall::Facts, {ErrorKind::Died, "it ended"});
    });
    QCOMPARE(archive.convertTree({}), 0);
    QCOMPARE(archive.console.messages, "norvex: 1 done\n");
  }

  void aFileThatChangesWhileItIsWorkedOnIsDoneAgain() {
    Archive archive;
    archive.put("in/a.svg", svg("old"));
    std::atomic<int> opened = 0;
    archive.service.setPrepare([&](MemoryPictureProcess&) {
      if (++opened == 1) archive.put("in/a.svg", svg("newer"));
    });
    QCOMPARE(archive.convertTree({}), 0);
    QCOMPARE(opened.load(), 2);
    QCOMPARE(archive.bytesAt("out/a.svg"), svg("newer"));
  }

  void aFileThatIsReplacedByOneOfTheSameSizeAndTimeIsDoneAgain() {
    Archive archive;
    archive.put("in/a.svg", svg("old"));
    struct stat before {};
    QCOMPARE(::stat(archive.at("in/a.svg").constData(), &before), 0);
    std::atomic<int> opened = 0;
    archive.service.setPrepare([&](MemoryPictureProcess&) {
      if (++opened > 1) return;
      archive.put("in/a.new", svg("new"));
      const timespec times[] = {before.st_atim, before.st_mtim};
      ::utimensat(AT_FDCWD, archive.at("in/a.new").constData(), times, 0);
      ::rename(archive.at("in/a.new").constData(), archive.at("in/a.svg").constData());
    });
    QCOMPARE(archive.convertTree({}), 0);
    QCOMPARE(opened.load(), 2);
    QCOMPARE(archive.bytesAt("out/a.svg"), svg("new"));
  }

  void aFileThatAlwaysChangesLeavesNothing() {
    Archive archive;
    archive.put("in/a.svg", svg("old"));
    std::atomic<int> opened = 0;
    archive.service.setPrepare(
        [&](MemoryPictureProcess&) { archive.put("in/a.svg", svg(QByteArray(++opened, 'x'))); });
    QCOMPARE(archive.convertTree({}), 3);
    QCOMPARE(opened.load(), 3);
    QVERIFY(archive.console.messages.contains("it is being changed by another program"));
    QCOMPARE(archive.filesBelow("out"), QList<QByteArray>());
  }

  void resultsThatCannotBeWrittenEndTheRun() {
    Archive archive;
    for (int i = 0; i < 100; ++i) archive.put("in/" + QByteArray::number(i) + ".svg");
    for (int i = 0; i < 100; ++i) archive.put("out/" + QByteArray::number(i) + ".svg/in the way");
    QCOMPARE(archive.convertTree({"--force"}), 4);
    QVERIFY2(
        archive.console.messages.contains("32 results in a row could not be made or written; the run ends"),
        qPrintable(archive.console.messages));
  }

  void whatIsInTheWayOfItsOwnResultAloneDoesNotEndTheRun() {
    Archive archive;
    for (int i = 10; i < 60; ++i) {
      archive.put("in/" + QByteArray::number(i) + ".svg");
      archive.put("out/" + QByteArray::number(i) + ".svg", "mine");
    }
    archive.put("in/z.svg");
    QCOMPARE(archive.convertTree({}), 1);
    QVERIFY2(archive.console.messages.endsWith("norvex: 1 done, 50 not written\n"),
             qPrintable(archive.console.messages));
    QCOMPARE(archive.bytesAt("out/z.svg"), svg("a picture"));
    QCOMPARE(archive.bytesAt("out/10.svg"), "mine");
  }

  void aFileWhoseTimeWasOverWhileTheProgramStoodStillIsDoneAgain_data() {
    QTest::addColumn<bool>("stood");
    QTest::newRow("stood still") << true;
    QTest::newRow("worked") << false;
  }
  void aFileWhoseTimeWasOverWhileTheProgramStoodStillIsDoneAgain() {
    QFETCH(bool, stood);
    Archive archive;
    archive.put("in/a.svg");
    std::atomic<int> opened = 0;
    archive.service.setPrepare([&](MemoryPictureProcess& process) {
      if (++opened > 1) return;
      if (stood) ::raise(SIGCONT);
      process.fail(PictureCall::Facts, {ErrorKind::TimedOut, "the picture was not ready"});
    });
    QCOMPARE(archive.convertTree({}) == 0, stood);
    QCOMPARE(opened.load(), stood ? 2 : 1);
  }
};

NORVEX_TEST(TroubleTest)
#include "trouble_test.moc"
