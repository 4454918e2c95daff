#include "worker/confinement/sandbox.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <ctime>

#include "kit/forked_check.h"
#include "kit/test_main.h"
#include "worker/confinement/resource_limits.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

SandboxPolicy policyOf(const PictureLimits& limits, const QString& scratch = "/nonexistent/scratch") {
  SandboxPolicy policy;
  policy.limits = limits;
  policy.scratchFolder = scratch;
  return policy;
}

/// Runs the check after the process has been confined with 64 MiB and 1 megapixel; 100: it could not be.
int inSandbox(const std::function<int()>& check) {
  return inForkedChild([&] { return enterSandbox(policyOf({10, 64, 1})) ? check() : 100; });
}

rlim_t limitOf(__rlimit_resource resource) {
  rlimit limit = {};
  ::getrlimit(resource, &limit);
  return limit.rlim_cur == limit.rlim_max ? limit.rlim_max : RLIM_INFINITY;  // both or it is none
}

}  // namespace

class SandboxTest : public QObject {
  Q_OBJECT
 private slots:
  void noNewPrivileges() {
    QCOMPARE(inSandbox([] { return ::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0); }), 1);
  }

  void noCoreFilesAndFewDescriptors() {
    QCOMPARE(inSandbox([] { return int(limitOf(RLIMIT_CORE)); }), 0);
    QCOMPARE(inSandbox([] { return int(limitOf(RLIMIT_NOFILE) == 512); }), 1);
    QCOMPARE(inSandbox([] { return ::fcntl(0, F_DUPFD, 512) < 0 ? errno : 0; }), EINVAL);
  }

  void limitsCannotBeRaisedAgain() {
    QCOMPARE(inSandbox([] {
               const rlimit more = {4096, 4096};
               return ::setrlimit(RLIMIT_NOFILE, &more) == 0 ? 0 : errno;
             }),
             EPERM);
  }

  /// Whoever grants it something looks at its limits, and it cannot raise them.
  void whoAsksForOthersIsGrantedNoMoreThanItHas() {
    const PictureLimits wanted{5000, 5000, 5000};
    QCOMPARE(grantedFor(::getpid(), wanted).seconds, 5000);
    int ends[2] = {-1, -1};
    QCOMPARE(::pipe(ends), 0);
    const pid_t asker = ::fork();
    if (asker == 0) {
      const rlimit more = {RLIM_INFINITY, RLIM_INFINITY};
      const bool isHeld = enterSandbox(policyOf({10, 64, 1})) && ::setrlimit(RLIMIT_RTTIME, &more) != 0;
      if (::write(ends[1], isHeld ? "h" : "n", 1) != 1) ::_exit(1);
      while (true) ::poll(nullptr, 0, 1000);
    }
    char told = 0;
    QCOMPARE(::read(ends[0], &told, 1), ssize_t(1));
    const PictureLimits granted = grantedFor(asker, wanted);
    ::kill(asker, SIGKILL);
    ::waitpid(asker, nullptr, 0);
    QCOMPARE(told, 'h');
    QCOMPARE(granted.seconds, 10);
    QCOMPARE(granted.memoryMiB, 64);
    QVERIFY(granted.megapixels <= 17);
    const PictureLimits usual, unknown = grantedFor(0, wanted);
    QCOMPARE(unknown.seconds, usual.seconds);
    QCOMPARE(unknown.memoryMiB, usual.memoryMiB);
  }

  void aLimitOfRealTimeThatAllHaveIsNotTakenForAGrant_data() {
    QTest::addColumn<int>("ofAll");
    QTest::addColumn<int>("granted");
    QTest::newRow("shorter than the grant") << 2 << PictureLimits().seconds;
    QTest::newRow("longer than the grant") << 1000 << 10;
  }
  void aLimitOfRealTimeThatAllHaveIsNotTakenForAGrant() {
    QFETCH(int, ofAll);
    QFETCH(int, granted);
    const int told = inForkedChild([&] {
      const rlimit time = {rlim_t(ofAll) * 1'000'000, rlim_t(ofAll) * 1'000'000};
      int ends[2] = {-1, -1};
      if (::setrlimit(RLIMIT_RTTIME, &time) != 0 || ::pipe(ends) != 0) return 255;
      const pid_t asker = ::fork();
      if (asker == 0) {
        if (!limitFiles({10, 64, 1}, false) || ::write(ends[1], "h", 1) != 1) ::_exit(1);
        while (true) ::poll(nullptr, 0, 1000);
      }
      ::close(ends[1]);
      char noted = 0;
      const bool isNoted = ::read(ends[0], &noted, 1) == 1;
      const int seconds = isNoted ? grantedFor(asker, {5000, 5000, 5000}).seconds : 254;
      ::kill(asker, SIGKILL);
      ::waitpid(asker, nullptr, 0);
      return std::min(seconds, 253);
    });
    QCOMPARE(told, granted);
  }

  void processorTimeBeyondTheGrantIsTheEnd() {
    const int granted = inSandbox([] {
      rlimit limit = {};
      ::getrlimit(RLIMIT_CPU, &limit);
      return int(limit.rlim_cur);
    });
    QVERIFY2(granted >= 10 && granted <= 60, qPrintable(QString::number(granted)));
  }

  void aFileThatIsTooLargeIsAnErrorNotADeath() {
    QCOMPARE(inSandbox([] { return limitOf(RLIMIT_FSIZE) == 64u << 20 ? 1 : 0; }), 1);
    QCOMPARE(inSandbox([] {
               const int fd = ::memfd_create("large", MFD_CLOEXEC);
               return ::ftruncate(fd, (64 << 20) + 1) == 0 ? 0 : errno;
             }),
             EFBIG);
  }

  void largeBitmapsFitIntoTheFileLimit() {
    const int fits = inForkedChild([] {
      if (!enterSandbox(policyOf({10, 64, 100}))) return 100;
      return limitOf(RLIMIT_FSIZE) >= 400'000'000u ? 1 : 0;
    });
    QCOMPARE(fits, 1);
  }

  void memoryBeyondTheLimitIsRefused() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    const auto map = [](size_t mebibytes) {
      return ::mmap(nullptr, mebibytes << 20, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) !=
             MAP_FAILED;
    };
    QCOMPARE(inSandbox([&] { return map(48) ? 1 : 0; }), 1);
    QCOMPARE(inSandbox([&] { return map(80) ? 1 : 0; }), 0);
  }

  void theMemoryLimitCountsFromWhenItIsSealed() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    const auto mapAfter = [](size_t mebibytes) {
      return inForkedChild([&] {
        SandboxPolicy policy = policyOf({10, 64, 1});
        policy.preparationToCome = true;
        if (!enterSandbox(policy)) return 100;
        const auto map = [](size_t size) {
          return ::mmap(nullptr, size << 20, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) !=
                 MAP_FAILED;
        };
        if (!map(64) || !sealSandbox(policy)) return 101;
        return map(mebibytes) ? 1 : 0;
      });
    };
    QCOMPARE(mapAfter(48), 1);
    QCOMPARE(mapAfter(80), 0);
  }

  void temporaryFilesGoToTheScratchFolder() {
    QCOMPARE(inSandbox([] { return qgetenv("TMPDIR") == "/nonexistent/scratch" ? 1 : 0; }), 1);
  }

  void onlyWhoSaysSoWritesIntoItsScratchFolder() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
    const QTemporaryDir scratch;
    const QByteArray file = QFile::encodeName(scratch.filePath("file"));
    const auto write = [&](bool writes) {
      return inForkedChild([&] {
        SandboxPolicy policy = policyOf({10, 64, 1}, scratch.path());
        policy.writesScratchFiles = writes;
        if (!enterSandbox(policy)) return 100;
        return ::open(file.constData(), O_RDWR | O_CREAT, 0600) < 0 ? errno : 0;
      });
    };
    QCOMPARE(write(false), EPERM);
    QCOMPARE(write(true), 0);
  }

  void librariesMayBeOpenedBeforeItIsSealed() {
    QCOMPARE(inForkedChild([] {
               SandboxPolicy policy = policyOf({10, 64, 1});
               policy.preparationToCome = true;
               if (!enterSandbox(policy)) return 100;
               return ::open("/etc/ld.so.cache", O_RDONLY) < 0 ? errno : 0;
             }),
             0);
  }

  void withoutALayerThatKeepsFilesItIsRefused() {
    const auto refused = [](ConfinementLayers layers) {
      return inForkedChild([&] {
        prepareSandboxes({}, layers);
        SandboxPolicy policy = policyOf({10, 64, 1});
        policy.layers = layers;
        const Result<void> entered = enterSandbox(policy);
        return !entered && entered.error().kind == ErrorKind::NoSandbox ? 1 : 0;
      });
    };
    QCOMPARE(refused({false, false, false}), 1);
    QCOMPARE(refused({false, true, false}), 1);
    QCOMPARE(refused({true, false, false}), 0);
  }
};

NORVEX_TEST(SandboxTest)
#include "sandbox_test.moc"
