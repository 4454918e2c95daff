// A batch of conversions meets a signal at a moment drawn by lot, in each of its processes: whatever is hit,
// no process stays behind, no file is half written, and no temporary folder holds anything.
//
// NORVEX_SIGNAL_ROUNDS: rounds for each process and signal (1); NORVEX_SIGNAL_SEED: where the lots begin.
#include <QRandomGenerator>

#include <csignal>

#include "kit/test_main.h"
#include "kit/watched_program.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

constexpr int kLongestDelay = 900;  // milliseconds; a batch takes longer on every machine of today

enum class Victim { Program, Server, PictureProcess, InterpreterServer, Interpreter };

QString nameOf(Victim victim) {
  switch (victim) {
    case Victim::Program:
      return "the program";
    case Victim::Server:
      return "the server of picture processes";
    case Victim::PictureProcess:
      return "a picture process";
    case Victim::InterpreterServer:
      return "the server of interpreters";
    case Victim::Interpreter:
      return "an interpreter";
  }
  return {};
}

/// What a process of the run is, by its program and its parent's.
bool isA(Victim victim, qint64 pid, qint64 program) {
  const QString name = programOf(pid);
  const qint64 parent = parentOf(pid);
  switch (victim) {
    case Victim::Program:
      return pid == program;
    case Victim::Server:
      return name == "norvex-worker" && parent == program;
    case Victim::PictureProcess:
      return name == "norvex-worker" && programOf(parent) == "norvex-worker";
    case Victim::InterpreterServer:
      return name == "norvex-postscript" && programOf(parent) == "norvex-worker";
    case Victim::Interpreter:
      return name == "norvex-postscript" && programOf(parent) == "norvex-postscript";
  }
  return false;
}

/// A process of that sort, which may have gone by the time that it is hit; 0: there is none now.
qint64 find(const WatchedProgram& program, Victim victim, QRandomGenerator& lots) {
  if (victim == Victim::Program) return program.pid();
  QList<qint64> all;
  for (const qint64 pid : program.descendants())
    if (isA(victim, pid, program.pid())) all << pid;
  return all.isEmpty() ? 0 : all.at(lots.bounded(all.size()));
}

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isWhole(const QString& path) {
  const QByteArray bytes = bytesOf(path);
  return bytes.startsWith("%PDF-") && bytes.trimmed().endsWith("%%EOF");
}

}  // namespace

class SuddenEndsTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    bool given = false;
    seed_ = qEnvironmentVariable("NORVEX_SIGNAL_SEED").toUInt(&given);
    if (!given) seed_ = 20;
    // Many small pictures of every kind.
    int number = 0;
    for (int round = 0; round < 4; ++round)
      for (const char* name :
           {"lighthouse.svg", "lighthouse.eps", "lighthouse-8.ai", "lighthouse-preview.eps"}) {
        const QString copy = folder_.filePath(QStringLiteral("%1-%2").arg(++number).arg(name));
        QVERIFY(QFile::copy(kit::sample(name), copy));
        files_ << copy;
      }
  }

  void aSignalAtAnyMomentLeavesNothingBehind_data() {
    QTest::addColumn<int>("victim");
    QTest::addColumn<int>("signal");
    const std::pair<int, const char*> signals_[] = {{SIGINT, "INT"}, {SIGTERM, "TERM"}, {SIGKILL, "KILL"}};
    for (int victim = 0; victim <= int(Victim::Interpreter); ++victim)
      for (const auto& [signal, name] : signals_)
        QTest::addRow("%s to %s", name, qPrintable(nameOf(Victim(victim)))) << victim << signal;
  }
  void aSignalAtAnyMomentLeavesNothingBehind() {
    QFETCH(int, victim);
    QFETCH(int, signal);
    const int rounds = std::max(1, qEnvironmentVariableIntValue("NORVEX_SIGNAL_ROUNDS"));
    QRandomGenerator lots(seed_ + quint32(victim) * 31 + quint32(signal));
    for (int round = 0; round < rounds; ++round) {
      const int delay = int(lots.bounded(kLongestDelay));
      const QString complaint = hit(Victim(victim), signal, delay, lots);
      QVERIFY2(complaint.isEmpty(), qPrintable(QStringLiteral("after %1 ms: %2").arg(delay).arg(complaint)));
    }
  }

 private:
  /// Empty, or what was left or said.
  QString hit(Victim victim, int signal, int delay, QRandomGenerator& lots) {
    WatchedProgram program;
    program.start(QStringList{"convert", "--to", program.output(), "--format", "pdf"} + files_);
    QTest::qWait(delay);
    qint64 pid = 0;
    const bool found = eventually([&] {
      pid = program.process().state() == QProcess::Running ? find(program, victim, lots) : -1;
      return pid != 0;
    });
    if (found && pid > 0) ::kill(pid_t(pid), signal);
    const Ran ran = program.end();
    const QString said = QString::fromUtf8(ran.err.left(600));
    if (!eventually([&] { return program.descendants().isEmpty(); })) return "processes are left";
    if (!eventually([&] { return program.litter().isEmpty(); }))
      return "folders are left: " + program.litter().join(' ');
    const QStringList made = entriesOf(program.output());
    for (const QString& name : made)
      if (!isWhole(program.output(name))) return name + " is not whole";
    return victim == Victim::Program ? ofTheProgram(ran, signal) : ofTheOthers(ran, made.size(), said);
  }

  /// How the program itself ends: as it was told to, or it had done already.
  static QString ofTheProgram(const Ran& ran, int signal) {
    if (signal == SIGKILL || ran.crashed)
      return {};  // before it listened, the signal ends it as it ends others
    if (ran.exitCode == 130 || ran.exitCode == 0) return {};
    return QStringLiteral("exit code %1").arg(ran.exitCode);
  }

  /// The program outlives the others, and tells of every file that it has not made.
  [[nodiscard]] QString ofTheOthers(const Ran& ran, qsizetype made, const QString& said) const {
    if (ran.crashed) return "the program died: " + said;
    if (made == files_.size())
      return ran.exitCode == 0 ? QString() : QStringLiteral("it says that it failed: ") + said;
    if (ran.exitCode != 1 && ran.exitCode != 3)
      return QStringLiteral("exit code %1: %2").arg(ran.exitCode).arg(said);
    const qsizetype told = ran.err.count('\n');
    return told >= files_.size() - made
               ? QString()
               : QStringLiteral("%1 of %2 made: %3").arg(made).arg(files_.size()).arg(said);
  }

  QTemporaryDir folder_;
  QStringList files_;
  quint32 seed_ = 0;
};

NORVEX_TEST(SuddenEndsTest)
#include "sudden_ends_test.moc"
