#include "worker/interpreter_program.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <algorithm>
#include <csignal>

#include "kit/forked_check.h"
#include "kit/process_watch.h"
#include "kit/test_main.h"
#include "protocol/interpreter_request.h"
#include "protocol/limits.h"
#include "worker/confinement/sandbox.h"
#include "worker/interpreter/interpreter_kit.h"
#include "worker/postscript/distill.h"
#include "worker/postscript/distiller.h"
#include "worker/postscript/ghostscript.h"

using namespace norvex;
using namespace norvex::engine;
using kit::errorOf, kit::Interpreters;

namespace {

const QByteArray& kDrawing = kit::interpretedDrawing;
const QRectF& kBox = kit::interpretedBox;

/// An interpreter that is wanted until this ends.
class AskedFor {
 public:
  [[nodiscard]] bool byAnotherProcess(int asking) {
    InterpreterRequest request;
    if (!pipe(request.program, program_) || !pipe(output_, request.output) ||
        !pipe(messages_, request.messages) || !pipe(outcome_, request.outcome))
      return false;
    return kit::inForkedChild([&] { return sendInterpreterRequest(asking, request) ? 0 : 1; }) == 0;
  }

 private:
  static bool pipe(FileDescriptor& reading, FileDescriptor& writing) {
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0) return false;
    reading.reset(ends[0]);
    writing.reset(ends[1]);
    return true;
  }
  FileDescriptor program_, output_, messages_, outcome_;
};

}  // namespace

class InterpreterProgramTest : public QObject {
  Q_OBJECT
 private slots:
  /// The folder that somebody works in may be a stranger's.
  void itsProgramIsNeverLookedForInTheFolderOfWork() {
    QCOMPARE(interpreterBeside("/opt/there/norvex-worker"), "/opt/there/norvex-postscript");
    QCOMPARE(interpreterBeside(""), "");
    QCOMPARE(interpreterBeside("norvex-worker"), "");
    QCOMPARE(interpreterBeside("there/norvex-worker"), "");
  }

  void anExpectedProgramIsStartedOnceSomebodyAsks() {
    const QTemporaryDir root;
    InterpreterProgram program(root.path().toStdString(), {}, NORVEX_BUILD_DIR "/norvex-postscript");
    QCOMPARE(program.asking(), -1);
    program.expect();
    QCOMPARE(program.pid(), 0);
    QVERIFY(program.asking() >= 0 && program.waitingRequests() >= 0);
    pollfd waiting = {program.waitingRequests(), POLLIN, 0};
    QCOMPARE(::poll(&waiting, 1, 0), 0);
    const auto child = GhostscriptChild::fork(program.asking(), {});
    QVERIFY(child.ok());
    QCOMPARE(::poll(&waiting, 1, 0), 1);
    program.start();
    QVERIFY(program.pid() != 0);
    QCOMPARE(program.waitingRequests(), -1);
    const auto run = (*child)->run({"(it runs) = flush quit\n"}, EngineContext());
    QVERIFY(run.ok() && run->messages.contains("it runs\n"));
    const int asking = program.asking();
    program.expect();  // it runs already
    QCOMPARE(program.asking(), asking);
    QCOMPARE(program.waitingRequests(), -1);
  }

  void oneThatEndsBeforeItIsReadyIsStartedOnceMore() {
    const QTemporaryDir root;
    InterpreterProgram program(root.path().toStdString(), {}, "/bin/false");
    for (int starts = 0; starts < 2; ++starts) {
      program.start();
      const int ended = program.pid();
      QVERIFY(ended != 0);
      QVERIFY(kit::eventually([ended] { return kit::stateOf(ended) == 'Z'; }));
    }
    for (int tries = 0; tries < 2; ++tries) {
      program.start();
      QCOMPARE(program.pid(), 0);
      program.expect();
      QCOMPARE(program.asking(), -1);
    }
  }

  /// Documents have the end that asks, from which they could read what is meant for us.
  void whoAsksCannotHideThatItWasReady() {
    Interpreters interpreters;
    InterpreterProgram& program = interpreters.program();
    for (int starts = 1; starts < 4; ++starts) {
      QCOMPARE(interpreters.saidBy("(ready) ="), QByteArray("ready\n"));
      char taken[16];
      QVERIFY(::recv(program.asking(), taken, sizeof taken, MSG_DONTWAIT) <= 0);
      const int before = program.pid();
      ::kill(before, SIGKILL);
      QVERIFY(kit::eventually([before] { return kit::stateOf(before) == 'Z'; }));
      program.start();
      QVERIFY2(program.pid() != 0, qPrintable(QString::number(starts)));
    }
  }

  void anExpectedProgramThatIsBrokenIsToldToWhoeverAsks() {
    const QTemporaryDir root;
    InterpreterProgram program(root.path().toStdString(), {}, "/bin/false");
    for (int starts = 0; starts < 20; ++starts) {
      program.expect();
      if (program.asking() < 0) break;
      const auto child = GhostscriptChild::fork(program.asking(), {});
      program.start();
      QVERIFY(child.ok());
      const auto run = (*child)->run({"quit\n"}, EngineContext());
      QVERIFY(!run.ok());
      QCOMPARE(run.error().kind, ErrorKind::Unsupported);
      const int ended = program.pid();
      (void)kit::eventually([ended] { return ended == 0 || kit::stateOf(ended) == 'Z'; });
    }
    QCOMPARE(program.asking(), -1);
    QCOMPARE(program.waitingRequests(), -1);
  }

  void whatItRefusesIsWhatGsRefuses_data() {
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("an unknown operator") << QByteArray("nosuchoperator\n");
    QTest::newRow("an open string") << QByteArray("(no end");
    QTest::newRow("a file of the machine") << QByteArray("(/etc/passwd) (r) file\n");
    QTest::newRow("a new file") << QByteArray("(/tmp/norvex-new) (w) file\n");
    QTest::newRow("a pipe") << QByteArray("(%pipe%id) (r) file\n");
    QTest::newRow("another file for the result")
        << QByteArray("<< /OutputFile (/tmp/norvex-new) >> systemdict /setpagedevice get exec\n");
    QTest::newRow("another device") << QByteArray(
        "<< /OutputDevice /png16m /OutputFile (/tmp/norvex-new) >> systemdict /setpagedevice get exec\n");
    QTest::newRow("the environment") << QByteArray("(PATH) getenv { nosuch } if pop nothing\n");
  }
  void whatItRefusesIsWhatGsRefuses() {
    QFETCH(QByteArray, program);
    Interpreters interpreters;
    const Error forked = errorOf(distill(program, kBox, interpreters.context()));
    interpreters.context().interpreters = -1;
    const Error started = errorOf(distill(program, kBox, interpreters.context()));
    QCOMPARE(forked.message, started.message);
    QCOMPARE(forked.kind, started.kind);
    QVERIFY(!QFile::exists("/tmp/norvex-new"));
  }

  void aDocumentSeesNothingOfTheOneBefore() {
    Interpreters interpreters;
    const QByteArray look =
        "userdict /left known = globaldict /left known = /Left /ProcSet resourcestatus { pop pop true } { "
        "false } "
        "ifelse = FontDirectory /Helvetica known = { 1 2 add } exec = ";
    const QByteArray leave =
        "userdict /left 1 put true setglobal globaldict /left 1 put /Left << >> /ProcSet defineresource pop "
        "false setglobal /Helvetica findfont pop userdict /add { mul } put ";
    QVERIFY(interpreters.saidBy(leave + look).contains("true\ntrue\ntrue\ntrue\n2\n"));
    QVERIFY(interpreters.saidBy(look).contains("false\nfalse\nfalse\nfalse\n3\n"));
  }

  void standardOutputOfTheProgramIsNoPartOfThePdf() {
    Interpreters interpreters;
    const auto run = interpreters.run(
        "(spoken1) print flush (%stdout) (w) file dup (spoken2) writestring flushfile (%stderr) (w) file dup "
        "(spoken3) writestring flushfile 0 0 9 9 rectfill showpage (spoken4) = flush quit\n");
    QVERIFY(run.ok());
    QVERIFY(run->output.startsWith("%PDF-"));
    QVERIFY(run->output.trimmed().endsWith("%%EOF"));
    QVERIFY(!run->output.contains("spoken"));
    for (const char* words : {"spoken1", "spoken2", "spoken3", "spoken4"})
      QVERIFY(run->messages.contains(words));
  }

  void severalWorkAtOnce() {
    Interpreters interpreters;
    warmUpGhostscript(interpreters.context());
    const auto waiting = std::exchange(interpreters.context().warmGhostscript, nullptr);
    QVERIFY(waiting != nullptr);
    QVERIFY(interpreters.saidBy("(second) =").contains("second\n"));
    const auto first = waiting->run({"(first) = flush quit\n"}, interpreters.context());
    QVERIFY(first.ok() && first->messages.contains("first\n"));
  }

  void aCancelledProgramIsKilled() {
    Interpreters interpreters;
    EngineContext& context = interpreters.context();
    const int server = interpreters.program().pid();
    std::unique_ptr<QThread> canceller(QThread::create([token = context.cancel, server] {
      (void)kit::eventually([server] { return !kit::childrenOf(server).isEmpty(); });
      token.cancel();
    }));
    canceller->start();
    QCOMPARE(errorOf(distill("{} loop\n", kBox, context)).kind, ErrorKind::Cancelled);
    canceller->wait();
    QVERIFY(kit::eventually([server] { return kit::childrenOf(server).isEmpty(); }));
    QVERIFY(kit::eventually([&] { return interpreters.folders().isEmpty(); }));
    context.cancel = CancelToken();
    QVERIFY(interpreters.stillWork());
  }

  void anEndlessProgramIsStoppedInTime() {
    Interpreters interpreters;
    interpreters.context().limits.seconds = 1;
    QCOMPARE(errorOf(distill("{} loop\n", kBox, interpreters.context())).kind, ErrorKind::TimedOut);
    interpreters.context().limits.seconds = 60;
    QVERIFY(interpreters.stillWork());
  }

  void aProgramWithoutBoundsReachesItsLimitOfMemory() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    Interpreters interpreters;
    interpreters.context().limits.memoryMiB = 64;
    const Error error = errorOf(distill("[ { 60000 string } loop\n", kBox, interpreters.context()));
    QCOMPARE(error.kind, ErrorKind::Limit);
    QVERIFY(interpreters.stillWork());
  }

  void nobodyGrantsAnInterpreterMoreThanItHasItself() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    Interpreters interpreters;
    const int told = kit::inForkedChild([&] {
      const rlimit files = {64 << 20, 64 << 20};
      if (::setrlimit(RLIMIT_FSIZE, &files) != 0) return 100;
      interpreters.context().limits.memoryMiB = 1 << 20;
      // Some 170 MiB.
      const auto run = interpreters.run("[ 3000 { 60000 string } repeat (all of it) = flush quit\n");
      return run && run->messages.contains("all of it\n") ? 1 : 0;
    });
    QCOMPARE(told, 0);
    QVERIFY(interpreters.saidBy("[ 3000 { 60000 string } repeat (all of it) =").contains("all of it\n"));
  }

  void tooManyTemporaryFilesAreALimit() {
    Interpreters interpreters;
    interpreters.context().scratchFolder.clear();  // the server watches its own folders
    const QByteArray files = QByteArray::number(limits::maximumScratchFiles + 100);
    const Error error = errorOf(distill(files + " { null (w) .tempfile closefile pop } repeat {} loop\n",
                                        kBox, interpreters.context()));
    QCOMPARE(error.kind, ErrorKind::Limit);
    QCOMPARE(error.message, QString("the picture needs more temporary files than it is allowed"));
    QVERIFY(kit::eventually([&] { return interpreters.folders().isEmpty(); }));
    QVERIFY(interpreters.stillWork());
  }

  void oneThatOpensFileAfterFileIsStopped() {
    Interpreters interpreters;
    const QByteArray files = QByteArray::number(limits::maximumOpenFiles);
    QVERIFY(interpreters.saidBy("10 { null (w) .tempfile } repeat (opened) =").contains("opened\n"));
    QVERIFY(!interpreters.saidBy(files + " { null (w) .tempfile } repeat (opened) =").contains("opened\n"));
    QVERIFY(interpreters.stillWork());
  }

  void moreThanWorkAtOnceAreRefused() {
    Interpreters interpreters;
    std::vector<AskedFor> all(limits::maximumInterpreters);
    for (AskedFor& each : all) QVERIFY(each.byAnotherProcess(interpreters.program().asking()));
    const int server = interpreters.program().pid();
    QVERIFY(kit::eventually(
        [&] { return kit::childrenOf(server).size() == qsizetype(limits::maximumInterpreters); }));
    const auto refused = interpreters.run("(one more) = flush quit\n");
    QVERIFY(!refused.ok());
    all.clear();
    QVERIFY(kit::eventually([&] { return kit::childrenOf(server).isEmpty(); }));
    QVERIFY(interpreters.stillWork());
  }

  void oneProcessGetsNoMoreThanItsShare() {
    Interpreters interpreters;
    std::vector<std::shared_ptr<GhostscriptChild>> all;
    for (size_t i = 0; i < limits::maximumInterpretersOfOneAsker; ++i) {
      auto child = GhostscriptChild::fork(interpreters.program().asking(), interpreters.context().limits);
      QVERIFY(child.ok());
      all.push_back(std::move(*child));
    }
    const auto refused = interpreters.run("(one more) = flush quit\n");
    QVERIFY(!refused.ok());
    QCOMPARE(refused.error().kind, ErrorKind::Unsupported);
    QCOMPARE(kit::inForkedChild([&] {
               const auto run = interpreters.run("(another's) = flush quit\n");
               return run && run->messages.contains("another's\n") ? 1 : 0;
             }),
             1);
    all.pop_back();
    const int server = interpreters.program().pid();
    QVERIFY(kit::eventually([&] {
      return kit::childrenOf(server).size() == qsizetype(limits::maximumInterpretersOfOneAsker) - 1;
    }));
    QVERIFY(interpreters.saidBy("(room again) =").contains("room again\n"));
  }

  void anInterpreterHasNoFileOfTheProgram() {
    Interpreters interpreters;
    const int server = interpreters.program().pid();
    const auto child = GhostscriptChild::fork(interpreters.program().asking(), {});
    QVERIFY(child.ok());
    QVERIFY(kit::eventually([server] { return kit::childrenOf(server).size() == 1; }));
    const QDir files(QStringLiteral("/proc/%1/fd").arg(kit::childrenOf(server).first()));
    const QString own = QFileInfo(interpreters.context().scratchFolder).fileName() + '/';
    QVERIFY(kit::eventually([&] {
      QStringList numbers =
          files.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System, QDir::Name);
      numbers.removeIf([&](const QString& number) {
        return number.toInt() > 2 && QFile::symLinkTarget(files.filePath(number)).contains(own);
      });
      return numbers == QStringList{"0", "1", "2"};
    }));
  }

  void anInterpreterYieldsOnceWhoeverAskedForItDoes() {
    Interpreters interpreters;
    const int server = interpreters.program().pid();
    const int told = kit::inForkedChild([&] {
      const int before = ::getpriority(PRIO_PROCESS, 0), yielding = std::min(19, before + 3);
      const auto first = GhostscriptChild::fork(interpreters.program().asking(), {});
      if (!kit::eventually([&] { return kit::childrenOf(server).size() == 1; })) return 1;
      const auto interpreter = id_t(kit::childrenOf(server).first());
      if (::getpriority(PRIO_PROCESS, interpreter) != before) return 2;
      ::setpriority(PRIO_PROCESS, 0, yielding);
      if (!kit::eventually([&] { return ::getpriority(PRIO_PROCESS, interpreter) == yielding; })) return 3;
      return ::getpriority(PRIO_PROCESS, id_t(server)) == before ? 0 : 4;
    });
    QCOMPARE(told, 0);
  }

  void oneThatCrashesTakesNobodyAlong() {
    Interpreters interpreters;
    const int server = interpreters.program().pid();
    std::unique_ptr<QThread> killer(QThread::create([server] {
      (void)kit::eventually([server] { return !kit::childrenOf(server).isEmpty(); });
      for (const qint64 pid : kit::childrenOf(server)) ::kill(pid_t(pid), SIGSEGV);
    }));
    killer->start();
    QCOMPARE(errorOf(distill("{} loop\n", kBox, interpreters.context())).kind, ErrorKind::NotParsable);
    killer->wait();
    QVERIFY(interpreters.stillWork());
  }

  void rubbishInPlaceOfARequestIsPassedOver() {
    Interpreters interpreters;
    QCOMPARE(::send(interpreters.program().asking(), "rubbish", 7, MSG_NOSIGNAL), 7);
    QVERIFY(interpreters.stillWork());
  }

  void whatADocumentLeftInItsFolderIsRemoved() {
    Interpreters interpreters;
    QVERIFY(interpreters.saidBy("null (w) .tempfile (something) writestring = ")
                .contains(interpreters.context().scratchFolder.toUtf8()));
    QVERIFY(kit::eventually([&] { return interpreters.folders().isEmpty(); }));
  }

  void withoutTheProgramGsIsStarted_data() {
    QTest::addColumn<std::string>("program");
    QTest::newRow("there is none") << std::string("/nowhere/norvex-postscript");
    QTest::newRow("it ends at once") << std::string("/bin/false");
    QTest::newRow("it takes nothing") << std::string("/bin/true");
  }
  void withoutTheProgramGsIsStarted() {
    QFETCH(std::string, program);
    Interpreters interpreters({}, program);
    warmUpGhostscript(interpreters.context());
    const auto distilled = distill(kDrawing, kBox, interpreters.context());
    QVERIFY2(distilled.ok(), qPrintable(errorOf(distilled).message));
    QVERIFY(distilled->pdf.startsWith("%PDF-"));
  }

  void aBrokenProgramIsNotStartedForEver() {
    Interpreters interpreters({}, "/bin/false");
    int starts = 1;
    for (int before = interpreters.program().pid(); starts < 20; ++starts) {
      (void)kit::eventually([before] { return kit::stateOf(before) == 'Z' || kit::stateOf(before) == 0; });
      interpreters.program().start();
      if (interpreters.program().pid() == 0) break;
      before = interpreters.program().pid();
    }
    QVERIFY(starts < 20);
    QCOMPARE(interpreters.program().asking(), -1);
  }

  void oneThatDiesInItsWorkIsStartedAgain() {
    Interpreters interpreters;
    QVERIFY(interpreters.stillWork());
    const int before = interpreters.program().pid();
    ::kill(before, SIGKILL);
    QVERIFY(kit::eventually([before] { return kit::stateOf(before) == 'Z'; }));
    interpreters.program().start();
    QVERIFY(interpreters.program().pid() != before);
    interpreters.context().interpreters = interpreters.program().asking();
    QVERIFY(interpreters.stillWork());
  }

  void thatItDiedIsToldWhereNothingElseMayBeStarted() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
    Interpreters interpreters;
    const int before = interpreters.program().pid();
    ::kill(before, SIGKILL);
    QVERIFY(kit::eventually([before] { return kit::stateOf(before) == 'Z'; }));
    const int told = kit::inForkedChild([&] {
      SandboxPolicy policy;
      policy.limits = interpreters.context().limits;
      if (!enterSandbox(policy)) return 100;
      const auto run = runGhostscript(
          InterpreterDevice::Plates, [](bool) { return QList<QByteArray>{"quit\n"}; },
          interpreters.context());
      return run ? 101 : int(run.error().kind);
    });
    QCOMPARE(told, int(ErrorKind::Died));
  }

  void nobodyIsLeftWhenWhoStartedItDies() {
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    const pid_t parent = ::fork();
    if (parent == 0) {
      Interpreters interpreters;
      auto child = GhostscriptChild::fork(interpreters.program().asking(), {});
      const int server = interpreters.program().pid();
      (void)kit::eventually([server] { return !kit::childrenOf(server).isEmpty(); });
      const qint64 pids[2] = {server, kit::childrenOf(server).value(0)};
      if (::write(ends[1], pids, sizeof pids) < 0) ::_exit(1);
      ::pause();
    }
    qint64 pids[2] = {};
    QCOMPARE(::read(ends[0], pids, sizeof pids), ssize_t(sizeof pids));
    QVERIFY(pids[0] > 0 && pids[1] > 0);
    ::kill(parent, SIGKILL);
    ::waitpid(parent, nullptr, 0);
    for (const qint64 pid : pids)
      QVERIFY(kit::eventually([pid] { return kit::stateOf(pid) == 0 || kit::stateOf(pid) == 'Z'; }));
  }
};

NORVEX_TEST(InterpreterProgramTest)
#include "interpreter_program_test.moc"
