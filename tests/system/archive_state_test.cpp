// The built program and its state where things stand in its way: disks, other runs, endless lists, a stop.
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <sys/stat.h>

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

/// Read only from here on, as a medium that is put away.
bool closeForWriting(const SmallDisk& disk) {
  return ::mount("tmpfs", QFile::encodeName(disk.folder()).constData(), "tmpfs", MS_REMOUNT | MS_RDONLY,
                 nullptr) == 0;
}

/// A run into the folder "out" of the tree with a state elsewhere.
QStringList withState(const Tree& tree, const QString& state) {
  QStringList arguments = tree.arguments("out", "unused");
  arguments[8] = state;
  return arguments;
}

/// Reads so many lines of what it says; false: it ended before.
bool readLines(QProcess& run, int count) {
  for (int lines = 0; lines < count;) {
    if (run.canReadLine()) {
      (void)run.readLine();
      ++lines;
    } else if (!run.waitForReadyRead(60'000)) {
      return false;
    }
  }
  return true;
}

}  // namespace

class ArchiveStateTest : public QObject {
  Q_OBJECT
 private slots:
  void aStateInAFolderThatCannotBeWrittenIsReadAndMergedAndNotUsed() {
    const Tree tree(10);
    SmallDisk disk("5m");
    if (!disk.isMounted()) QSKIP("a small disk cannot be mounted here");
    const QString state = disk.path("a state?%41#");
    QVERIFY(QFile::copy(tree.path("undisturbed.state"), state));
    const Ran before = kit::norvex({"status", state});
    QCOMPARE(before.exitCode, 0);
    QVERIFY(closeForWriting(disk));
    const Ran after = kit::norvex({"status", state});
    QVERIFY2(after.exitCode == 0, after.err.constData());
    QCOMPARE(after.out, before.out);
    QVERIFY(QFile::copy(tree.path("undisturbed.state"), tree.path("sum")));
    const Ran merged = kit::norvex({"status", tree.path("sum"), "--merge", state});
    QVERIFY2(merged.exitCode == 0, merged.err.constData());
    const Ran run = Tree::run(withState(tree, state));
    QCOMPARE(run.exitCode, 4);
    QVERIFY2(run.err.contains("it cannot be opened (Read-only file system)"), run.err.constData());
    QVERIFY(contentsOf(tree.path("out")).isEmpty());
    const Ran fresh = Tree::run(withState(tree, disk.path("new")));
    QCOMPARE(fresh.exitCode, 4);
    QVERIFY(contentsOf(tree.path("out")).isEmpty());
  }

  void aFullDiskOfTheStateAloneEndsTheRunAndTheNextOneEndsAsAnUndisturbedOne() {
    const Tree tree(150);
    SmallDisk disk("96k");
    if (!disk.isMounted()) QSKIP("a small disk cannot be mounted here");
    const Ran full = Tree::run(withState(tree, disk.path("state")));
    QVERIFY2(full.exitCode == 4, full.err.constData());
    QVERIFY2(full.err.contains("/state: there is no space left to write to"), full.err.constData());
    const auto written = contentsOf(tree.path("out"));
    QVERIFY(written.size() < tree.undisturbed.size());
    for (auto it = written.begin(); it != written.end(); ++it)
      QVERIFY2(tree.undisturbed.value(it.key()) == it.value(), qPrintable(it.key()));
    QVERIFY(disk.resize("20m"));
    const Ran again = Tree::run(withState(tree, disk.path("state")));
    QVERIFY2(again.exitCode == 1, again.err.constData());
    QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
  }

  void ofTwoRunsWithOneStateTheSecondIsRefusedAndTheFirstGoesOn() {
    const Tree tree(60);
    QProcess run;
    Tree::start(run, tree.arguments("out", "state") << "--json-lines");
    QVERIFY(readLines(run, 1));
    const Ran second = Tree::run(tree.arguments("out", "state"));
    QCOMPARE(second.exitCode, 4);
    QVERIFY2(second.err.endsWith("/state: another run is using it\n"), second.err.constData());
    QCOMPARE(kit::norvex({"status", tree.path("state")}).exitCode, 0);
    QVERIFY(run.waitForFinished(120'000));
    QCOMPARE(run.exitCode(), 1);
    QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
  }

  void aRunThatIsStoppedGoesOnWhereItStood() {
    const Tree tree(60);
    QProcess run;
    Tree::start(run, tree.arguments("out", "state") << "--json-lines");
    for (int i = 0; i < 3; ++i) {
      QVERIFY(readLines(run, 10));
      ::kill(pid_t(run.processId()), SIGSTOP);
      QVERIFY(eventually([&] { return stateOf(run.processId()) == 'T'; }));
      ::kill(pid_t(run.processId()), SIGCONT);
    }
    QVERIFY(run.waitForFinished(120'000));
    QCOMPARE(run.exitCode(), 1);
    QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
  }

  void aPipeAsAListThatNobodyWritesCanBeInterrupted() {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QProcess run;
    run.start(norvexProgram(), {"info", "--files-from", pipe, "--json-lines"});
    QVERIFY(run.waitForStarted());
    // Once it can be interrupted: whoever sends a signal before ends it by that.
    QVERIFY(eventually([&] {
      const QString open = QStringLiteral("/proc/%1/fd").arg(run.processId());
      for (const QFileInfo& one : QDir(open).entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot))
        if (one.symLinkTarget() == pipe) return true;
      return false;
    }));
    run.terminate();
    QVERIFY(run.waitForFinished(60'000));
    QCOMPARE(run.exitCode(), 130);
  }

  void aListThatNeverEndsTakesNoMoreMemory() {
    const QTemporaryDir folder;
    write(folder.filePath("a.svg"), svg(1));
    QProcess names, run;
    names.setStandardOutputProcess(&run);
    names.start("yes", {folder.filePath("a.svg")});
    run.start(norvexProgram(), {"info", "--files-from", "-", "--json-lines"});
    QVERIFY(names.waitForStarted() && run.waitForStarted());
    QVERIFY(readLines(run, 200));
    const qint64 early = residentKiB(run.processId());
    QVERIFY(readLines(run, 600));
    const qint64 late = residentKiB(run.processId());
    run.terminate();
    while (!run.waitForFinished(10)) (void)run.readAll();
    names.kill();
    QVERIFY(names.waitForFinished());
    QCOMPARE(run.exitCode(), 130);
    QVERIFY2(early > 0 && (kKeepsMemory || late - early < 5 * 1024),
             qPrintable(QString("%1 to %2 KiB").arg(early).arg(late)));
  }
};

NORVEX_TEST(ArchiveStateTest)
#include "archive_state_test.moc"
