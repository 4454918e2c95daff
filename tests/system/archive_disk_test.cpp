// Archives on disks that lose their power or go away.
#include <QCryptographicHash>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "kit/process_watch.h"
#include "kit/program.h"
#include "kit/test_main.h"
#include "system/archive_tree.h"
#include "system/small_disk.h"

using namespace norvex;
using namespace norvex::kit;
using namespace norvex::archives;

namespace {

/// A disk whose bytes lie in a file: a copy of it is what a machine finds after its power has gone.
class ImageDisk {
 public:
  ImageDisk() {
    QDir(folder_.path()).mkdir("disk");
    QFile file(image());
    isThere_ = ::geteuid() == 0 && file.open(QIODevice::WriteOnly) && file.resize(24 << 20) &&
               run("mkfs.ext4", {"-q", "-F", image()}).exitCode == 0 && mount();
  }
  ~ImageDisk() { (void)unmount(); }
  ImageDisk(const ImageDisk&) = delete;
  ImageDisk& operator=(const ImageDisk&) = delete;

  [[nodiscard]] bool isThere() const { return isThere_; }
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath("disk/" + name); }

  /// What is on the disk at this moment, as little as that may be.
  [[nodiscard]] bool remember() const {
    QFile::remove(remembered());
    return QFile::copy(image(), remembered());
  }
  /// The machine starts again with what was remembered. Nobody may use the disk.
  [[nodiscard]] bool startAgain() {
    return eventually([this] { return unmount(); }) && QFile::remove(image()) &&
           QFile::rename(remembered(), image()) && mount();
  }

 private:
  [[nodiscard]] QString image() const { return folder_.filePath("image"); }
  [[nodiscard]] QString remembered() const { return folder_.filePath("remembered"); }
  [[nodiscard]] bool mount() {
    isMounted_ = run("mount", {"-o", "loop", image(), folder_.filePath("disk")}).exitCode == 0;
    return isMounted_;
  }
  [[nodiscard]] bool unmount() {
    if (isMounted_ && ::umount(QFile::encodeName(folder_.filePath("disk"))) != 0) return false;
    isMounted_ = false;
    return true;
  }

  QTemporaryDir folder_;
  bool isThere_ = false, isMounted_ = false;
};

/// Of the entries of a state that say that a file is done: how many there are, and one whose result is not
/// what it says.
struct Entries {
  int done = 0;
  QString lie;
};

Entries entriesOf(const QString& state, const QString& report) {
  Entries entries;
  QFile::remove(report);
  const Ran ran = kit::norvex({"status", state, "--report", report});
  if (ran.exitCode != 0) entries.lie = QString::fromUtf8(ran.err);
  QFile lines(report);
  if (!lines.open(QIODevice::ReadOnly)) return entries;
  while (!lines.atEnd()) {
    const QJsonObject entry = QJsonDocument::fromJson(lines.readLine()).object();
    if (entry.value("outcome") != QLatin1String("done")) continue;
    ++entries.done;
    QFile output(entry.value("output").toString());
    const QByteArray bytes = output.open(QIODevice::ReadOnly) ? output.readAll() : QByteArray();
    if (QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() !=
        entry.value("outputSha256").toString().toLatin1())
      entries.lie = output.fileName();
  }
  return entries;
}

/// Waits until the run has told so many results; false: it ended before.
bool hasTold(QProcess& run, int results) {
  for (int told = 0; told < results;) {
    if (run.canReadLine()) {
      (void)run.readLine();
      ++told;
    } else if (run.state() == QProcess::NotRunning || !run.waitForReadyRead(60'000)) {
      return false;
    }
  }
  return run.state() != QProcess::NotRunning;
}

/// Lists files for a run that reads their names.
void list(QProcess& run, const QStringList& names) {
  for (const QString& name : names) run.write(QFile::encodeName(name) + '\n');
}

/// The whole run stands still while the disk is looked at, then is gone.
bool losePower(QProcess& run, const ImageDisk& disk) {
  const auto group = pid_t(run.processId());
  ::kill(-group, SIGSTOP);
  const bool remembered = disk.remember();
  ::kill(-group, SIGKILL);
  return run.waitForFinished() && remembered;
}

}  // namespace

class ArchiveDiskTest : public QObject {
  Q_OBJECT
 private slots:
  /// NORVEX_KILLS=50 for a longer look.
  void noEntryLiesAfterThePowerHasGoneAndTheRunGoesOn() {
    ImageDisk disk;
    if (!disk.isThere()) QSKIP("a disk in a file cannot be mounted here");
    const Tree tree(300);
    QStringList arguments = tree.arguments("unused", "unused.state");
    arguments[4] = disk.path("out");
    arguments[8] = disk.path("state");
    QVERIFY(QDir().mkdir(disk.path("out")));
    ::sync();
    QRandomGenerator random(5);
    int done = 0, ended = 0;
    const int wanted = qEnvironmentVariableIntValue("NORVEX_KILLS");
    for (int round = 0; round < (wanted > 0 ? wanted : 6); ++round) {
      QProcess run;
      run.setChildProcessModifier([] { ::setpgid(0, 0); });
      Tree::start(run, arguments + QStringList{"--json-lines"});
      if (!hasTold(run, round % 3 == 0 ? 0 : random.bounded(1, 301))) {
        QVERIFY(run.state() == QProcess::NotRunning || run.waitForFinished());
        ++ended;
        QCOMPARE(differences(contentsOf(disk.path("out")), tree.undisturbed), QString());
        QVERIFY(QDir(disk.path("out")).removeRecursively() && QDir().mkdir(disk.path("out")));
        QVERIFY(QFile::remove(disk.path("state")));
        ::sync();
        continue;
      }
      QVERIFY(losePower(run, disk));
      QVERIFY(disk.startAgain());
      if (!QFile::exists(disk.path("state"))) continue;
      const Entries entries = entriesOf(disk.path("state"), tree.path("entries.jsonl"));
      QVERIFY2(entries.lie.isEmpty(), qPrintable(entries.lie));
      done = std::max(done, entries.done);
    }
    QVERIFY2(done > 0, "the power went before anything was done");
    QCOMPARE(Tree::run(arguments).exitCode, 1);
    QCOMPARE(differences(contentsOf(disk.path("out")), tree.undisturbed), QString());
    qInfo("at most %d of 300 were done when the power went, %d runs ended before", done, ended);
  }

  void aDiskThatIsTakenAwayLeavesNothingInItsPlaceAndTheRunGoesOnWhenItIsBack() {
    const Tree tree(150);
    SmallDisk disk("20m");
    if (!disk.isMounted()) QSKIP("a small disk cannot be mounted here");
    const QTemporaryDir elsewhere;
    const QByteArray place = QFile::encodeName(disk.folder()), kept = QFile::encodeName(elsewhere.path());
    QCOMPARE(::mount(place, kept, nullptr, MS_BIND, nullptr), 0);
    QStringList arguments = tree.arguments("unused", "state"), listed = tree.listArguments("unused", "state");
    arguments[4] = listed[4] = disk.folder();
    const QStringList names = tree.names();
    QProcess run;
    Tree::start(run, listed);
    list(run, names.first(50));
    QVERIFY(hasTold(run, 50));
    QCOMPARE(::umount2(place, MNT_DETACH), 0);
    list(run, names.sliced(50));
    run.closeWriteChannel();
    QVERIFY(run.waitForFinished(120'000));
    QVERIFY2(run.readAllStandardError().contains("the folder to write to has gone"), "nothing is told");
    QCOMPARE(contentsOf(disk.folder()).size(), 0);
    QCOMPARE(::mount(kept, place, nullptr, MS_BIND, nullptr), 0);
    ::umount(kept);
    QCOMPARE(Tree::run(arguments).exitCode, 1);
    QCOMPARE(differences(contentsOf(disk.folder()), tree.undisturbed), QString());
  }

  void inputsThatAreTakenAwayAreLookedForAgain() {
    const Tree tree(150);
    const QStringList names = tree.names();
    QProcess run;
    Tree::start(run, tree.listArguments("out", "state"));
    list(run, names.first(50));
    QVERIFY(hasTold(run, 50));
    QVERIFY(QFile::rename(tree.path("in"), tree.path("away")));
    list(run, names.sliced(50));
    run.closeWriteChannel();
    QVERIFY(run.waitForFinished(120'000));
    QCOMPARE(run.readAllStandardOutput().count("\"outcome\":\"failed\""), names.size() - 50);
    QVERIFY(QFile::rename(tree.path("away"), tree.path("in")));
    QCOMPARE(Tree::run(tree.arguments("out", "state")).exitCode, 1);
    QCOMPARE(differences(contentsOf(tree.path("out")), tree.undisturbed), QString());
  }
};

NORVEX_TEST(ArchiveDiskTest)
#include "archive_disk_test.moc"
