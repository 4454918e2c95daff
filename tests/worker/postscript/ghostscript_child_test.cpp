// What a started gs has of this process, and how it is told that it went on too long.
#include "worker/postscript/ghostscript.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

#include "kit/process_watch.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

const QList<QByteArray> kQuietly{"-q", "-dNODISPLAY", "-dBATCH", "-"};

QByteArray fileOf(qint64 process, const char* name) {
  QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A gs that waits for its program, and its number.
struct Waiting {
  explicit Waiting(const QString& scratch) {
    const QList<qint64> before = kit::childrenOf(::getpid());
    auto started = GhostscriptChild::start(kQuietly, scratch, 7);
    if (!started) return;
    child = std::move(*started);
    for (const qint64 each : kit::childrenOf(::getpid()))
      if (!before.contains(each)) process = each;
    // Until then it is a copy of this program.
    if (!kit::eventually([this] { return fileOf(process, "cmdline").startsWith(QByteArrayView("gs\0", 3)); }))
      process = 0;
  }
  std::shared_ptr<GhostscriptChild> child;
  qint64 process = 0;
};

}  // namespace

class GhostscriptChildTest : public QObject {
  Q_OBJECT
 private slots:
  void itHasNothingOpenThatIsOurs() {
    constexpr int kLow = 60, kHigh = 900;
    QVERIFY(::dup2(STDIN_FILENO, kLow) == kLow && ::dup2(STDIN_FILENO, kHigh) == kHigh);
    const QTemporaryDir scratch;
    const Waiting gs(scratch.path());
    ::close(kLow);
    ::close(kHigh);
    QVERIFY(gs.process > 0);
    const QString folder = QStringLiteral("/proc/%1/fd/").arg(gs.process);
    for (const int stream : {0, 1, 2})
      QVERIFY(QFile::symLinkTarget(folder + QString::number(stream)).contains("pipe:"));
    for (const int ours : {kLow, kHigh})
      QVERIFY(QFile::symLinkTarget(folder + QString::number(ours)).isEmpty());
  }

  void itsEnvironmentIsEmptyButForTheseThree() {
    const QTemporaryDir scratch;
    const Waiting gs(scratch.path());
    QVERIFY(gs.process > 0);
    QList<QByteArray> variables = fileOf(gs.process, "environ").split('\0');
    variables.removeAll(QByteArray());
    std::sort(variables.begin(), variables.end());
    QCOMPARE(variables, (QList<QByteArray>{"LC_ALL=C", "PATH=/usr/bin:/bin",
                                           "TMPDIR=" + QFile::encodeName(scratch.path())}));
  }

  /// Its processor time is bounded for good: what is granted, and 31 seconds.
  void itIsAGroupOfItsOwnWithItsOwnTime() {
    const QTemporaryDir scratch;
    const Waiting gs(scratch.path());
    QVERIFY(gs.process > 0);
    QCOMPARE(qint64(::getpgid(pid_t(gs.process))), gs.process);
    rlimit time = {};
    QCOMPARE(::prlimit(pid_t(gs.process), RLIMIT_CPU, nullptr, &time), 0);
    QCOMPARE(time.rlim_cur, rlim_t(38));
    QCOMPARE(time.rlim_max, rlim_t(38));
  }

  void itGoesWhenNobodyWantsItAnyMore() {
    const QTemporaryDir scratch;
    qint64 process = 0;
    {
      const Waiting gs(scratch.path());
      process = gs.process;
      QVERIFY(process > 0);
    }
    QVERIFY(!kit::childrenOf(::getpid()).contains(process));
  }

  void howARunEndsIsTold_data() {
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("too long") << QByteArray("{ } loop\n") << "the PostScript did not end within 1 seconds";
    QTest::newRow("called off") << QByteArray() << "the work was cancelled";
    QTest::newRow("too much") << QByteArray("/s 65535 string def 100 { s print } repeat flush quit\n")
                              << "the picture is larger than the memory that it was granted";
  }
  void howARunEndsIsTold() {
    QFETCH(QByteArray, program);
    const QTemporaryDir scratch;
    EngineContext context;
    context.scratchFolder = scratch.path();
    context.limits.seconds = program.contains("loop") ? 1 : 60;
    context.limits.memoryMiB = 1;
    if (program.isEmpty()) context.cancel.cancel();
    const auto child = GhostscriptChild::start(kQuietly, scratch.path());
    QVERIFY(child.ok());
    const auto run = (*child)->run({program}, context);
    QVERIFY(!run.ok());
    QTEST(run.error().message, "sentence");
  }

  void whatItSaysAndHowItEndsArrives() {
    const QTemporaryDir scratch;
    EngineContext context;
    context.scratchFolder = scratch.path();
    const auto child = GhostscriptChild::start(kQuietly, scratch.path());
    QVERIFY(child.ok());
    const auto run = (*child)->run(
        {"(in two ", "pieces) print (%stderr) (w) file dup (beside) writestring flushfile quit\n"}, context);
    QVERIFY2(run.ok(), run ? "" : qPrintable(run.error().message));
    QCOMPARE(run->output, "in two pieces");
    QCOMPARE(run->messages, "beside");
    QCOMPARE(run->exitStatus, 0);
    const auto other = GhostscriptChild::start(kQuietly, scratch.path());
    const auto failed = (*other)->run({"nosuchoperator\n"}, context);
    QVERIFY(failed.ok());
    QCOMPARE(failed->exitStatus, 1);
  }
};

NORVEX_TEST(GhostscriptChildTest)
#include "ghostscript_child_test.moc"
