// The program itself lives on and says so in one sentence where the system gives it no room: no files of any
// size, nobody who listens, a full disk, no descriptors.
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include "kit/test_main.h"
#include "kit/watched_program.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

std::function<void()> limited(int resource, rlim_t value) {
  return [resource, value] {
    const rlimit limit{value, value};
    ::setrlimit(__rlimit_resource_t(resource), &limit);
  };
}

/// Standard output is a pipe whose reader has gone.
void closePipe() {
  int ends[2] = {-1, -1};
  if (::pipe(ends) != 0) return;
  ::close(ends[0]);
  ::dup2(ends[1], STDOUT_FILENO);
  ::close(ends[1]);
}

void fillOutput() {
  const int full = ::open("/dev/full", O_WRONLY);
  ::dup2(full, STDOUT_FILENO);
  ::close(full);
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Empty, or what is wrong with a run that could not do its work.
QString complaintAbout(const Ran& ran, const WatchedProgram& program, const QList<int>& codes) {
  const QString said = QString::fromUtf8(ran.err.left(400));
  if (ran.crashed) return QStringLiteral("it died: ") + said;
  if (!codes.contains(ran.exitCode)) return QStringLiteral("exit code %1: %2").arg(ran.exitCode).arg(said);
  if (!isOneSentence(ran.err)) return QStringLiteral("not one sentence: ") + said;
  if (!entriesOf(program.output()).isEmpty()) return entriesOf(program.output()).join(' ');
  return {};
}

/// Waits for those that end a moment later than the program.
bool leavesNothing(const WatchedProgram& program) {
  return eventually([&] { return program.descendants().isEmpty() && program.litter().isEmpty(); });
}

}  // namespace

class SurvivalTest : public QObject {
  Q_OBJECT
 private slots:
  void filesThatMayNotGrowAreToldInOneSentence_data() {
    QTest::addColumn<qint64>("largest");
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QString>("format");
    for (const qint64 largest : {0, 1000, 60'000, 400'000})
      for (const char* sample : {"lighthouse.svg", "lighthouse.eps", "lighthouse.pdf"})
        for (const char* format : {"pdf", "tiff"})
          QTest::addRow("%lld bytes, %s to %s", static_cast<long long>(largest), sample, format)
              << largest << sample << format;
  }
  void filesThatMayNotGrowAreToldInOneSentence() {
    QFETCH(qint64, largest);
    QFETCH(QString, sample);
    QFETCH(QString, format);
    WatchedProgram program(limited(RLIMIT_FSIZE, rlim_t(largest)));
    const QString to = program.output("out." + format);
    const Ran ran = program.run({"convert", kit::sample(sample), "-o", to});
    if (largest > 1000 && ran.exitCode == 0) {
      WatchedProgram unlimited;
      const QString whole = unlimited.output("out." + format);
      QCOMPARE(unlimited.run({"convert", kit::sample(sample), "-o", whole}).exitCode, 0);
      QVERIFY(bytesOf(to) == bytesOf(whole));
    } else {
      QCOMPARE(complaintAbout(ran, program, largest > 1000 ? QList<int>{4, 5} : QList<int>{5}), QString());
    }
    QVERIFY(leavesNothing(program));
  }

  void aMessageThatMayNotBeWrittenEndsNothing() {
    WatchedProgram program(limited(RLIMIT_FSIZE, 0));
    QTemporaryDir folder;
    program.process().setStandardErrorFile(folder.filePath("messages"));
    const Ran ran = program.run({"info", kit::sample("lighthouse.svg"), folder.filePath("missing.svg")});
    QVERIFY(!ran.crashed);
    QCOMPARE(ran.exitCode, 1);
    QVERIFY(leavesNothing(program));
  }

  void anOutputThatIsFullIsToldAndOneThatNobodyReadsEndsQuietly_data() {
    QTest::addColumn<bool>("full");
    QTest::addColumn<QStringList>("arguments");
    const QString svg = kit::sample("lighthouse.svg");
    for (const bool full : {false, true}) {
      const char* where = full ? "a full device" : "a closed pipe";
      QTest::addRow("info, %s", where) << full << QStringList{"info", svg, kit::sample("lighthouse.pdf")};
      QTest::addRow("info as JSON, %s", where) << full << QStringList{"info", "--json", svg};
      QTest::addRow("source, %s", where) << full << QStringList{"source", svg};
      QTest::addRow("preview, %s", where)
          << full << QStringList{"preview", kit::sample("lighthouse-preview.eps"), "-o", "-"};
      QTest::addRow("convert, %s", where)
          << full << QStringList{"convert", svg, "-o", "-", "--format", "png"};
      QTest::addRow("help, %s", where) << full << QStringList{"--help"};
    }
  }
  void anOutputThatIsFullIsToldAndOneThatNobodyReadsEndsQuietly() {
    QFETCH(bool, full);
    QFETCH(QStringList, arguments);
    WatchedProgram program(full ? fillOutput : closePipe);
    const Ran ran = program.run(arguments);
    if (full) {
      QCOMPARE(complaintAbout(ran, program, {4}), QString());
    } else {
      QVERIFY(!ran.crashed);
      QCOMPARE(ran.exitCode, 141);
      QCOMPARE(ran.err, QByteArray());
    }
    QVERIFY(leavesNothing(program));
  }

  void aDiskThatIsFullWhereTemporaryFilesLieIsToldInOneSentence() {
    WatchedProgram program;
    // The runtime folder of this run is read-only memory of no size: nothing can be made there.
    const QTemporaryDir small;
    if (::mount("tmpfs", QFile::encodeName(small.path()), "tmpfs", 0, "size=4k,nr_inodes=1") != 0)
      QSKIP("no file system can be mounted here");
    QProcessEnvironment variables = program.process().processEnvironment();
    variables.insert("XDG_RUNTIME_DIR", small.path());
    program.process().setProcessEnvironment(variables);
    const Ran ran = program.run({"convert", kit::sample("lighthouse.eps"), kit::sample("lighthouse-8.ai"),
                                 "--to", program.output(), "--format", "pdf"});
    const bool empty = entriesOf(small.path()).isEmpty();
    ::umount(QFile::encodeName(small.path()));
    QVERIFY(!ran.crashed);
    QVERIFY(empty);
    // Another place was found for them.
    QCOMPARE(ran.exitCode, 0);
    QCOMPARE(entriesOf(program.output()).size(), 2);
    QVERIFY(leavesNothing(program));
  }

  void descriptorsThatAreUsedUpAreToldInOneSentence_data() {
    QTest::addColumn<int>("descriptors");
    QTest::addColumn<QString>("sample");
    // With fewer the system cannot load a program at all.
    for (const int descriptors : {6, 7, 8, 9, 10, 11, 12, 14, 18, 24})
      for (const char* sample : {"lighthouse.svg", "lighthouse.eps"})
        QTest::addRow("%d, %s", descriptors, sample) << descriptors << sample;
  }
  void descriptorsThatAreUsedUpAreToldInOneSentence() {
    QFETCH(int, descriptors);
    QFETCH(QString, sample);
    WatchedProgram program(limited(RLIMIT_NOFILE, rlim_t(descriptors)));
    const QString to = program.output("out.pdf");
    const Ran ran = program.run({"convert", kit::sample(sample), "-o", to});
    if (ran.exitCode == 0 && descriptors > 8) {
      QVERIFY(bytesOf(to).endsWith("%%EOF\n"));
    } else {
      QCOMPARE(complaintAbout(ran, program, {3, 4, 5}), QString());
    }
    QVERIFY(leavesNothing(program));
  }

  void aBatchWithFewDescriptorsTellsEachFile() {
    for (const int descriptors : {20, 31, 32, 33, 36, 40, 48, 64}) {
      WatchedProgram program(limited(RLIMIT_NOFILE, rlim_t(descriptors)));
      const Ran ran = program.run({"convert", kit::sample("lighthouse.svg"), kit::sample("lighthouse-8.ai"),
                                   kit::sample("lighthouse-preview.eps"), kit::sample("lighthouse-cs.ai"),
                                   "--to", program.output(), "--format", "eps", "--jobs", "200"});
      QVERIFY2(!ran.crashed, ran.err);
      const QStringList made = entriesOf(program.output());
      for (const QString& name : made) QVERIFY(bytesOf(program.output(name)).contains("%%EOF"));
      QCOMPARE(ran.exitCode == 0, made.size() == 4);
      if (descriptors < 32) {
        QCOMPARE(ran.exitCode, 5);
        QVERIFY2(isOneSentence(ran.err), ran.err);
      } else {
        QVERIFY2(made.size() + ran.err.count('\n') >= 4, ran.err);
      }
      QVERIFY(leavesNothing(program));
    }
  }

  void manyFilesAreLookedAtWithFewDescriptors() {
    WatchedProgram program(limited(RLIMIT_NOFILE, 32));
    QStringList files;
    for (int i = 0; i < 20; ++i) files << kit::sample(i % 2 == 0 ? "lighthouse.svg" : "lighthouse.pdf");
    const Ran ran = program.run(QStringList{"info"} + files);
    QVERIFY2(!ran.crashed, ran.err);
    QVERIFY2(ran.out.count("Kind:") + ran.err.count('\n') >= 20, ran.err);
    QVERIFY(leavesNothing(program));
  }
};

NORVEX_TEST(SurvivalTest)
#include "survival_test.moc"
