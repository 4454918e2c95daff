// The built program over archives: killed, unplugged, out of space; in the same memory for any number of
// files.
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>

#include "kit/process_watch.h"
#include "kit/program.h"
#include "kit/resident_memory.h"
#include "kit/test_main.h"
#include "system/archive_tree.h"
#include "system/small_disk.h"

using namespace norvex;
using namespace norvex::kit;
using namespace norvex::archives;

namespace {

/// Waits until a run of --json-lines has told that it did a file; false if it ends before.
bool waitForResult(QProcess& run) {
  QByteArray lines;
  while (!lines.contains("\"outcome\":\"done\"")) {
    if (!run.waitForReadyRead(60'000)) return false;
    lines += run.readAllStandardOutput();
  }
  return true;
}

}  // namespace

class ArchiveSystemTest : public QObject {
  Q_OBJECT
 private slots:
  /// NORVEX_KILLS=500 for a longer look.
  void aRunThatIsKilledAtAnyMomentEndsAsAnUndisturbedOne() {
    const Tree tree(150);
    bool given = false;
    const int wanted = qEnvironmentVariableIntValue("NORVEX_KILLS", &given);
    const int kills = given ? std::max(1, wanted) : 50;
    QRandomGenerator random(20'26);
    int killed = 0, ended = 0, atWork = 0;
    for (int round = 0; killed < kills && round < 10 * kills; ++round) {
      QProcess run;
      Tree::start(run, tree.arguments("out", "state") << "--json-lines");
      // Most rounds begin to count when the work does.
      const bool works = round % 3 != 0 && waitForResult(run);
      // What had nothing left to do has ended while a result was waited for.
      if (run.state() != QProcess::NotRunning && !run.waitForFinished(random.bounded(1, 1000))) {
        run.kill();
        QVERIFY(run.state() == QProcess::NotRunning || run.waitForFinished());
        ++killed;
        if (works) ++atWork;
        continue;
      }
      ++ended;
      QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
      QVERIFY(QDir(tree.path("out")).removeRecursively());
      QVERIFY(QFile::remove(tree.path("state")));
    }
    QCOMPARE(killed, kills);
    QVERIFY2(atWork > kills / 4, qPrintable(QString::number(atWork)));
    const Ran last = Tree::run(tree.arguments("out", "state"));
    QVERIFY2(last.exitCode == 1, last.err.constData());
    QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
    QVERIFY2(!QFile::exists(tree.path("state-wal")) && !QFile::exists(tree.path("state-shm")), "left behind");
    qInfo("killed %d times, %d of them after new results, %d runs ended in between", killed, atWork, ended);
  }

  void anInterruptedRunGoesOnWhereItWas() {
    const Tree tree(100);
    QProcess run;
    Tree::start(run, tree.arguments("out", "state") << "--json-lines");
    QVERIFY(run.waitForReadyRead(60'000));
    run.terminate();
    QVERIFY(run.waitForFinished(60'000));
    QVERIFY2(run.exitCode() == 130 || run.exitCode() == 1, run.readAllStandardError().constData());
    QCOMPARE(Tree::run(tree.arguments("out", "state")).exitCode, 1);
    QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
  }

  void theStateTellsTheMemoryOfEachPicture() {
    const Tree tree(10);
    const Ran told = kit::norvex({"status", tree.path("undisturbed.state"), "--json"});
    const QJsonObject status = QJsonDocument::fromJson(told.out).object();
    QCOMPARE(status.value("done").toInt(), 10);
    QVERIFY2(status.value("memoryKiB").toInt() > 1024, told.out.constData());
    QVERIFY2(status.value("memoryKiB").toInt() < 1024 * 1024, told.out.constData());
  }

  void aFullDiskLeavesNothingHalfAndTheNextRunEndsAsAnUndisturbedOne() {
    const Tree tree(150);
    SmallDisk disk("200k");
    if (!disk.isMounted()) QSKIP("a small disk cannot be mounted here");
    const auto arguments = [&](const QString& state) {
      QStringList all = tree.arguments("unused", "unused.state");
      all[4] = disk.path("out");
      all[8] = state;
      QDir().mkpath(all[4]);
      return all;
    };
    // The state beside the results, on the full disk as well; and somewhere else.
    for (const QString& state : {disk.path("state"), tree.path("elsewhere.state")}) {
      const Ran full = Tree::run(arguments(state));
      QVERIFY2(full.exitCode == 4, full.err.constData());
      const auto written = contentsOf(disk.path("out"));
      QVERIFY(written.size() < tree.undisturbed.size());
      for (auto it = written.begin(); it != written.end(); ++it)
        QVERIFY2(tree.undisturbed.value(it.key()) == it.value(), qPrintable(it.key()));
      QVERIFY(disk.resize("20m"));
      const Ran again = Tree::run(arguments(state));
      QVERIFY2(again.exitCode == 1, again.err.constData());
      QCOMPARE(differences(contentsOf(disk.path("out")), tree.undisturbed), QString());
      QVERIFY(QDir(disk.path("out")).removeRecursively());
      QFile::remove(disk.path("state"));
      QVERIFY(disk.resize("200k"));
    }
  }

  void aFolderOfResultsThatVanishesEndsTheRunAndNothingTakesItsPlace() {
    const Tree tree(150);
    QProcess run;
    Tree::start(run, tree.arguments("out", "state") << "--json-lines");
    QVERIFY(run.waitForReadyRead(60'000));
    QVERIFY(QFile::rename(tree.path("out"), tree.path("away")));
    QVERIFY(run.waitForFinished(120'000));
    QVERIFY(!QFile::exists(tree.path("out")));
    QVERIFY(QFile::rename(tree.path("away"), tree.path("out")));
    QCOMPARE(Tree::run(tree.arguments("out", "state")).exitCode, 1);
    QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
  }

  void theMemoryOfARunDoesNotGrowWithItsFiles() {
    constexpr int count = 3000;
    const QTemporaryDir folder;
    for (int i = 0; i < 50; ++i) write(folder.filePath(QStringLiteral("in/%1.svg").arg(i)), svg(i));
    QProcess filter;
    filter.start(norvexProgram(), {"info", "--files-from", "-", "--json-lines", "--state",
                                   folder.filePath("state"), "--retry-failed", "--jobs", "2"});
    QVERIFY(filter.waitForStarted());
    qint64 early = 0, late = 0;
    int answered = 0, asked = 0;
    while (answered < count) {
      for (; asked < std::min(count, answered + 100); ++asked) {
        // Names that the state does not know: the same files by other paths.
        const QString detour = QStringLiteral("/./").repeated(1 + asked / 50);
        filter.write((folder.filePath("in") + detour + QStringLiteral("%1.svg\n").arg(asked % 50)).toUtf8());
      }
      QVERIFY(filter.waitForReadyRead(60'000));
      while (filter.canReadLine()) {
        const QJsonObject line = QJsonDocument::fromJson(filter.readLine()).object();
        QCOMPARE(line.value("line").toInt(), ++answered);
        QCOMPARE(line.value("outcome").toString(), "done");
        if (answered == count / 6) early = residentKiB(filter.processId());
      }
    }
    late = residentKiB(filter.processId());
    filter.closeWriteChannel();
    QVERIFY(filter.waitForFinished(60'000));
    QCOMPARE(filter.exitCode(), 0);
    qInfo("resident: %lld KiB after %d files, %lld KiB after %d", early, count / 6, late, count);
    QVERIFY(early > 0);
    QVERIFY2(kKeepsMemory || late - early < 5 * 1024,
             qPrintable(QStringLiteral("%1 to %2 KiB").arg(early).arg(late)));
  }

  /// Every thread has pictures of other sizes, and what they leave must not add up.
  void theMemoryOfARunDoesNotGrowWithTheSizesOfItsPictures() {
    constexpr int count = 300;
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir("out");
    QByteArray list;
    for (int i = 0; i < count; ++i) {
      const QString name = folder.filePath(QStringLiteral("in/%1.svg").arg(i));
      write(name,
            QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'><rect width='90' "
                           "height='%3'/></svg>")
                .arg(100 + i * 37 % 900)
                .arg(100 + i * 61 % 700)
                .arg(i)
                .toUtf8());
      list += name.toUtf8() + '\n';
    }
    QProcess filter;
    filter.start(norvexProgram(), {"convert", "--files-from", "-", "--to", folder.filePath("out"), "--format",
                                   "png", "--json-lines", "--state", folder.filePath("state"), "-q"});
    filter.write(list);
    filter.closeWriteChannel();
    qint64 early = 0, most = 0;
    for (int answered = 0; answered < count;) {
      QVERIFY(filter.canReadLine() || filter.waitForReadyRead(60'000));
      if (filter.readLine().isEmpty()) continue;
      if (++answered == 20) early = residentKiB(filter.processId());
      if (answered % 10 == 0) most = std::max(most, residentKiB(filter.processId()));
    }
    QVERIFY(filter.waitForFinished(60'000));
    QCOMPARE(filter.exitCode(), 0);
    qInfo("resident: %lld KiB after 20 files, %lld KiB at most", early, most);
    QVERIFY2(early > 0 && (kKeepsMemory || most - early < 5 * 1024),
             qPrintable(QString("%1 to %2 KiB").arg(early).arg(most)));
  }

  void aPictureProcessThatIsKilledCostsNoFile() {
    const QTemporaryDir folder;
    QByteArray list;
    for (int i = 0; i < 60; ++i) {
      write(folder.filePath(QStringLiteral("in/%1.eps").arg(i)), eps(i));
      list += folder.filePath(QStringLiteral("in/%1.eps\n").arg(i)).toUtf8();
    }
    QDir(folder.path()).mkdir("out");
    QProcess filter;
    filter.start(norvexProgram(), {"convert", "--files-from", "-", "--to", folder.filePath("out"), "--format",
                                   "png", "--json-lines", "--unordered"});
    filter.write(list);
    filter.closeWriteChannel();
    int deaths = 0;
    while (!filter.waitForFinished(40) && deaths == 0)  // once: what is tried again is not killed again
      for (const qint64 worker : childrenOf(filter.processId()))
        for (const qint64 picture : childrenOf(worker))
          if (::kill(pid_t(picture), SIGKILL) == 0) ++deaths;
    QVERIFY(filter.state() == QProcess::NotRunning || filter.waitForFinished(120'000));
    const QByteArray lines = filter.readAllStandardOutput();
    QCOMPARE(lines.count('\n'), 60);
    QVERIFY2(filter.exitCode() == 0, lines.constData());
  }
};

NORVEX_TEST(ArchiveSystemTest)
#include "archive_test.moc"
