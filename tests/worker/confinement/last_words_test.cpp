// What a process tells by its exit code when a document has used it up.
#include "worker/confinement/last_words.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>

#include "kit/forked_check.h"
#include "kit/test_main.h"
#include "protocol/process_end.h"
#include "worker/confinement/resource_limits.h"

using namespace norvex;

namespace {

constexpr PictureLimits kLimits{10, 64, 1};
constexpr int kTrapped = 120;  // an end that nothing is known about
constexpr int kSignalled = -1;

/// How a process ends that does this with 64 MiB.
int endOf(const std::function<void()>& act) {
  return kit::inForkedChild([&] {
    if (!limitFiles(kLimits, true) || !limitAddressSpace(kLimits)) return 100;
    tellWhatEndsUs(kLimits);
    errno = 0;
    act();
    return 0;
  });
}

void take(size_t mebibytes) {
  if (::mmap(nullptr, mebibytes << 20, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) == MAP_FAILED)
    ::_exit(101);
}

/// Calls itself until the stack is gone.
[[gnu::noinline]] int nest(int depth) {
  volatile char frame[4096];
  frame[depth % 4096] = char(depth);
  return depth < 0 ? 0 : nest(depth + 1) + frame[depth % 4096];
}

}  // namespace

class LastWordsTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("sanitizers tell it themselves");
#endif
  }

  void aStackThatIsUsedUpIsTold() {
    QCOMPARE(endOf([] { (void)nest(1); }), kStackUsedUp);
  }

  void memoryThatWasJustRefusedIsTold() {
    QCOMPARE(endOf([] {
               errno = ENOMEM;
               std::abort();
             }),
             kMemoryUsedUp);
  }

  void whoHasLessThanHalfOfItLeftIsShortOfMemory() {
    const auto abortAfter = [](size_t mebibytes) {
      return endOf([=] {
        take(mebibytes);
        errno = 0;
        std::abort();
      });
    };
    QCOMPARE(abortAfter(28), kTrapped);
    QCOMPARE(abortAfter(36), kMemoryUsedUp);
  }

  void otherEndsAreNeither() {
    QCOMPARE(endOf([] { *reinterpret_cast<volatile int*>(16) = 1; }), kSignalled);
    QCOMPARE(endOf([] { ::raise(SIGTRAP); }), kTrapped);
    QCOMPARE(endOf([] { ::kill(::getpid(), SIGSEGV); }), kTrapped);
    QCOMPARE(endOf([] { ::raise(SIGILL); }), kTrapped);
    QCOMPARE(endOf([] { ::raise(SIGBUS); }), kTrapped);
  }
};

NORVEX_TEST(LastWordsTest)
#include "last_words_test.moc"
