#include "worker/confinement/confinement_status.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <seccomp.h>

#include <cerrno>

#include "kit/forked_check.h"
#include "kit/program.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

const QString kWorker = QStringLiteral(NORVEX_BUILD_DIR "/norvex-worker");

/// Runs the program where the system offers nothing of these calls; gives its exit code.
int statusWithout(const QList<int>& calls) {
  return inForkedChild([&] {
    const scmp_filter_ctx filter = ::seccomp_init(SCMP_ACT_ALLOW);
    for (const int call : calls) ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), call, 0);
    if (::seccomp_load(filter) != 0) return 100;
    ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
    ::execl(kWorker.toLocal8Bit().constData(), "norvex-worker", "--sandbox-status", nullptr);
    return 101;
  });
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
