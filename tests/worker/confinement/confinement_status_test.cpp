#include "worker/confinement/confinement_status.h"

#include <QFile>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <seccomp.h>

#include <cerrno>

#include "kit/forked_check.h"
#include "kit/program.h"
#include "kit/test_main.h"
#include "worker/confinement/landlock.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kWorker = QStringLiteral(NORVEX_BUILD_DIR "/norvex-worker");

/// Runs the program where the system offers nothing of these calls; gives its exit code and what it says.
int statusWithout(const QList<int>& calls, QByteArray* said = nullptr) {
  const int output = ::memfd_create("said", 0);
  const int code = inForkedChild([&] {
    const scmp_filter_ctx filter = ::seccomp_init(SCMP_ACT_ALLOW);
    for (const int call : calls) ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), call, 0);
    if (::seccomp_load(filter) != 0) return 100;
    ::dup2(output, STDOUT_FILENO);
    ::execl(kWorker.toLocal8Bit().constData(), "norvex-worker", "--sandbox-status", nullptr);
    return 101;
  });
  QFile file;
  ::lseek(output, 0, SEEK_SET);
  if (file.open(output, QIODevice::ReadOnly, QFile::AutoCloseHandle) && said) *said = file.readAll();
  return code;
}

constexpr int kLandlock = 444;

}  // namespace

class ConfinementStatusTest : public QObject {
  Q_OBJECT
 private slots:
  void eachLayerIsTold() {
    const Ran ran = run(kWorker, {"--sandbox-status"});
    QCOMPARE(ran.exitCode, ran.out.contains("refuses to read any") ? 6 : 0);
    for (const char* layer :
         {"Landlock: ", "System calls (seccomp): ", "File view ", "Network and messages ", "Limits: "})
      QCOMPARE(ran.out.count(layer), 1);
    QCOMPARE(ran.err, QByteArray());
  }

  void whereNothingKeepsFilesItFails() {
    QCOMPARE(statusWithout({kLandlock, SCMP_SYS(unshare)}), 6);
    QCOMPARE(statusWithout({kLandlock, SCMP_SYS(seccomp)}), 6);
  }

  void whatIsMissingIsTold() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
    QByteArray said;
    QCOMPARE(statusWithout({kLandlock, SCMP_SYS(seccomp), SCMP_SYS(unshare)}, &said), 6);
    QCOMPARE(said,
             "Landlock: missing. No rules of the kernel about files.\n"
             "System calls (seccomp): missing. Every call can be made.\n"
             "File view (user and mount namespaces): missing. The system does not permit them to this user.\n"
             "Network and messages (namespaces): missing. What else is on keeps pictures from them.\n"
             "Limits: memory, processor time, size and number of files, scratch files; no core files.\n"
             "Nothing keeps a picture from this user's files: norvex refuses to read any.\n");
  }

  void whatIsOnIsTold() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
    const QByteArray said = run(kWorker, {"--sandbox-status"}).out;
    if (said.contains("missing")) QSKIP("this system has not got them all");
    const int version = landlockAbilities().abi;
    if (version >= 6)
      QVERIFY2(said.startsWith(
                   "Landlock: on, version " + QByteArray::number(version) +
                   ". Nothing but what engines need can be read, nothing but scratch files "
                   "written. Nothing is listed, removed or started besides. There is no TCP. There are no "
                   "signals and no abstract sockets to others. Devices cannot be controlled.\n"),
               said.constData());
    for (const char* line :
         {"\nSystem calls (seccomp): on. Only calls on a list: no programs, processes, sockets, tracing, "
          "mounts, keys, changed modes or owners. Engines open nothing for writing.\n",
          "\nFile view (user and mount namespaces): on. Files other than those that engines need do not "
          "exist, "
          "and all but scratch files are read-only.\n",
          "\nNetwork and messages (namespaces): on. No network exists. No shared memory or queues of others "
          "exist. Of a single picture on the command line: off, for they take time.\n",
          "\nEach picture is read in a process of its own that is confined so.\n"})
      QVERIFY2(said.contains(line), said.constData());
  }

  void oneOfTheLayersThatKeepFilesIsEnough() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
    if (run(kWorker, {"--sandbox-status"}).out.contains("missing")) QSKIP("this system has not got them all");
    QCOMPARE(statusWithout({kLandlock}), 0);
    QCOMPARE(statusWithout({SCMP_SYS(unshare), SCMP_SYS(seccomp)}), 0);
  }
};

NORVEX_TEST(ConfinementStatusTest)
#include "confinement_status_test.moc"
