// The numbers of the limits that a picture process puts on itself, each in a child that they are put on.
#include "worker/confinement/resource_limits.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/resource.h>

#include <csignal>
#include <functional>

#include "kit/forked_check.h"
#include "kit/test_main.h"
#include "worker/confinement/process_files.h"

using namespace norvex;

namespace {

using Resource = __rlimit_resource;

constexpr rlim_t kMiB = 1 << 20;

rlimit limitOf(Resource resource) {
  rlimit found = {};
  ::getrlimit(resource, &found);
  return found;
}

/// The hard limit of the resource after `change`, in a child of its own; 0 if it failed.
rlim_t limitAfter(Resource resource, const std::function<bool()>& change, bool soft = false) {
  void* shared = ::mmap(nullptr, sizeof(rlim_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto* told = new (shared) rlim_t(0);
  kit::inForkedChild([&] {
    if (change()) *told = soft ? limitOf(resource).rlim_cur : limitOf(resource).rlim_max;
    return 0;
  });
  const rlim_t result = *told;
  ::munmap(shared, sizeof(rlim_t));
  return result;
}

bool set(Resource resource, rlim_t value) {
  const rlimit both = {value, value};
  return ::setrlimit(resource, &both) == 0;
}

/// What is granted for the sake of a process in which `limit` has been called.
PictureLimits grantedTo(const std::function<bool()>& limit, const PictureLimits& wanted) {
  int ends[2] = {-1, -1};
  if (::pipe(ends) != 0) return {};
  const pid_t asker = ::fork();
  if (asker == 0) {
    if (!limit() || ::write(ends[1], "l", 1) != 1) ::_exit(1);
    while (true) ::poll(nullptr, 0, 1000);
  }
  ::close(ends[1]);
  char isLimited = 0;
  const bool good = ::read(ends[0], &isLimited, 1) == 1;
  const PictureLimits granted = good ? grantedFor(asker, wanted) : PictureLimits{-1, -1, -1};
  ::close(ends[0]);
  ::kill(asker, SIGKILL);
  ::waitpid(asker, nullptr, 0);
  return granted;
}

}  // namespace

class ResourceLimitsTest : public QObject {
  Q_OBJECT
 private slots:
  void filesAreAsLargeAsTheMemoryOrAsABitmap() {
    const auto sizeFor = [](PictureLimits limits) {
      return limitAfter(RLIMIT_FSIZE, [&] { return limitFiles(limits, true); });
    };
    QCOMPARE(sizeFor({10, 64, 1}), 64 * kMiB);
    QCOMPARE(sizeFor({10, 64, 100}), rlim_t(400'000'000) + kMiB);
  }

  void descriptorsAreFewAndMoreForWhoSendsThem() {
    QCOMPARE(limitAfter(RLIMIT_NOFILE, [] { return limitFiles({10, 64, 1}, true); }), rlim_t(512));
    QCOMPARE(limitAfter(RLIMIT_NOFILE, [] { return limitFiles({10, 64, 1}, false); }), rlim_t(128));
  }

  void whatIsLowerAlreadyStays() {
    QCOMPARE(limitAfter(RLIMIT_NOFILE,
                        [] {
                          return set(RLIMIT_NOFILE, 100) && limitFiles({10, 64, 1}, true);
                        }),
             rlim_t(100));
    QCOMPARE(limitAfter(RLIMIT_CPU, [] { return set(RLIMIT_CPU, 20) && limitProcessorTime(10, true); }),
             rlim_t(20));
  }

  void theSecondsAreNoted() {
    QCOMPARE(limitAfter(RLIMIT_RTTIME, [] { return limitFiles({10, 64, 1}, true); }), rlim_t(10'000'000));
  }

  void tooLargeAFileIsNoSignal() {
    QCOMPARE(kit::inForkedChild([] {
               if (!limitFiles({10, 1, 0.1}, true)) return 100;
               const int file = ::memfd_create("large", MFD_CLOEXEC);
               return ::ftruncate(file, 0x1000000) == 0 ? 0 : errno;
             }),
             EFBIG);
  }

  void addressesAreThoseInUseAndWhatIsGranted() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    const auto granted = [](quint64 more) {
      return limitAfter(RLIMIT_AS, [&] {
        keepOneArena();
        const rlim_t mapped = mappedBytes();
        return mapped != 0 && limitAddressSpace({10, 64, 1}, more) &&
               set(RLIMIT_AS, limitOf(RLIMIT_AS).rlim_max - mapped);
      });
    };
    QCOMPARE(granted(0), 64 * kMiB);
    QCOMPARE(granted(roomForLibraries), (64 + 192) * kMiB);
  }

  void whereNobodyTellsWhatIsInUseMuchIsTakenForIt() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers need more address space than any limit");
#endif
    const QTemporaryDir empty;
    const rlim_t found = limitAfter(RLIMIT_AS, [&] {
      adoptProcessFiles(::open(QFile::encodeName(empty.path()).constData(), O_PATH | O_DIRECTORY));
      return mappedBytes() == 0 && limitAddressSpace({10, 64, 1});
    });
    QCOMPARE(found, (512 + 64) * kMiB);
  }

  /// 30 to spare, and one for what has been used of the current second.
  void processorSecondsAreThoseOfTheGrantAndSome() {
    const rlim_t before = limitOf(RLIMIT_CPU).rlim_max;
    QCOMPARE(limitAfter(
                 RLIMIT_CPU, [] { return limitProcessorTime(10); }, true),
             rlim_t(41));
    QCOMPARE(limitAfter(RLIMIT_CPU, [] { return limitProcessorTime(10); }), before);
    QCOMPARE(limitAfter(RLIMIT_CPU, [] { return limitProcessorTime(10, true); }), rlim_t(41));
    // The next request is granted its own, beyond what has been used.
    QCOMPARE(limitAfter(
                 RLIMIT_CPU, [] { return limitProcessorTime(10) && limitProcessorTime(20); }, true),
             rlim_t(51));
    const auto afterASecond = [] {
      rusage used = {};
      while (used.ru_utime.tv_sec < 1) {
        for (volatile int work = 0; work < 10'000'000;) work = work + 1;
        ::getrusage(RUSAGE_SELF, &used);
      }
      return limitProcessorTime(10);
    };
    QVERIFY(limitAfter(RLIMIT_CPU, afterASecond, true) >= 42);
  }

  void nobodyIsGrantedMoreThanTheAskerHas() {
    const auto limited = [] { return limitFiles({10, 64, 1}, true); };
    const PictureLimits most = grantedTo(limited, {5000, 5000, 5000});
    QCOMPARE(most.seconds, 10);
    QCOMPARE(most.memoryMiB, 64);
    QCOMPARE(most.megapixels, 16.777216);  // as many bytes as its files may have
    const PictureLimits less = grantedTo(limited, {3, 32, 2});
    QCOMPARE(less.seconds, 3);
    QCOMPARE(less.memoryMiB, 32);
    QCOMPARE(less.megapixels, 2.0);
    const PictureLimits tiny = grantedTo([] { return set(RLIMIT_FSIZE, 4000); }, {5, 5, 5});
    QCOMPARE(tiny.memoryMiB, 1);
    QCOMPARE(tiny.megapixels, 0.001);
    const PictureLimits usual, unknown = grantedFor(0, {5000, 500'000, 5000});
    QCOMPARE(unknown.seconds, usual.seconds);
    QCOMPARE(unknown.memoryMiB, usual.memoryMiB);
    QCOMPARE(unknown.megapixels, usual.megapixels);
  }

  void whoeverReadsAPictureGoesFirstWhenMemoryRunsOut() {
    QCOMPARE(kit::inForkedChild([] {
               volunteerWhenMemoryRunsOut();
               QFile score(QStringLiteral("/proc/self/oom_score_adj"));
               return score.open(QIODevice::ReadOnly) && score.readAll() == "500\n" ? 1 : 0;
             }),
             1);
  }
};

NORVEX_TEST(ResourceLimitsTest)
#include "resource_limits_test.moc"
