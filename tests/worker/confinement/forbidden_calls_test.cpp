#include "forbidden_calls.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <netinet/in.h>
#include <sys/ipc.h>
#include <sys/msg.h>
#include <sys/socket.h>

#include <thread>

#include "kit/forked_check.h"
#include "kit/test_main.h"
#include "worker/confinement/file_view.h"
#include "worker/confinement/sandbox.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

constexpr ConfinementLayers kAll;
constexpr ConfinementLayers kLandlockAlone{true, false, false};
constexpr ConfinementLayers kWithoutLandlock{false, true, true};

/// What each call said, filled in by the confined process.
struct Answers {
  int error[128] = {};  ///< errno, 0: the call worked
};

void makeAll(const std::vector<ForbiddenCall>& calls, Answers& answers) {
  for (size_t i = 0; i < calls.size(); ++i) {
    errno = 0;
    answers.error[i] = calls[i].make() == -1 ? errno : 0;
  }
}

enum class Thread { First, Second };

/// Makes the calls in a process that is confined by these layers, in that of its threads; nothing:
/// unconfined.
Answers answersIn(const std::vector<ForbiddenCall>& calls, const ConfinementLayers* layers, Thread thread) {
  void* shared = ::mmap(nullptr, sizeof(Answers), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto* answers = new (shared) Answers;
  const int code = inForkedChild([&] {
    if (layers != nullptr) {
      prepareSandboxes({}, *layers);
      SandboxPolicy policy;
      policy.limits.memoryMiB = 256;
      policy.layers = *layers;
      if (!enterSandbox(policy)) return 100;
    }
    if (thread == Thread::First) return makeAll(calls, *answers), 0;
    std::thread([&] { makeAll(calls, *answers); }).join();
    return 0;
  });
  const Answers result = *answers;
  ::munmap(shared, sizeof(Answers));
  if (code != 0) qFatal("the confined process ended with %d", code);
  return result;
}

/// The calls that did something, or failed for another reason than that they are forbidden.
QStringList notRefused(const std::vector<ForbiddenCall>& calls, const Answers& answers,
                       const QList<int>& refusals) {
  QStringList all;
  for (size_t i = 0; i < calls.size(); ++i)
    if (!refusals.contains(answers.error[i]))
      all << QStringLiteral("%1 (%2)").arg(QLatin1String(calls[i].name)).arg(answers.error[i]);
  return all;
}

/// A folder of the user's with a file in it.
struct Home {
  QTemporaryDir folder;
  std::string path = folder.path().toStdString();
  std::string file = path + "/file";
  Home() {
    QFile made(QString::fromStdString(file));
    if (made.open(QIODevice::WriteOnly)) made.write("text");
  }
};

std::vector<ForbiddenCall> joined(std::vector<std::vector<ForbiddenCall>> groups) {
  std::vector<ForbiddenCall> all;
  for (const auto& group : groups) all.insert(all.end(), group.begin(), group.end());
  return all;
}

const QList<Thread> kThreads{Thread::First, Thread::Second};

}  // namespace

class ForbiddenCallsTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
  }

  void anUnconfinedProcessCanUseEveryFile() {
    const Home home;
    const auto calls = callsAboutFiles(home.path, home.file);
    QCOMPARE(notRefused(calls, answersIn(calls, nullptr, Thread::First), {0}), QStringList());
  }

  void noCallAboutFilesWorksWithAnyLayer() {
    for (const ConfinementLayers& layers : {kAll, kLandlockAlone, kWithoutLandlock})
      for (const Thread thread : kThreads) {
        const Home home;
        const auto calls = callsAboutFiles(home.path, home.file);
        QCOMPARE(notRefused(calls, answersIn(calls, &layers, thread), {EPERM, EACCES, ENOENT, EROFS}),
                 QStringList());
        QCOMPARE(QDir(home.folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System),
                 QStringList{"file"});
      }
  }

  void noOtherCallWorksWithTheListOfCalls() {
    for (const ConfinementLayers& layers : {kAll, kWithoutLandlock})
      for (const Thread thread : kThreads) {
        const Home home;
        const auto calls = joined({callsAboutAttributes(home.file), callsAboutProcesses(),
                                   callsAboutConnections(), callsAboutTheSystem()});
        QVERIFY(calls.size() <= std::size(Answers().error));
        QCOMPARE(notRefused(calls, answersIn(calls, &layers, thread), {EPERM, ENOSYS}), QStringList());
      }
  }

  void landlockAloneStartsAndSignalsNothingOutside() {
    const std::vector<ForbiddenCall> calls{
        {"execve", [] { return ::syscall(SYS_execve, "/bin/true", nullptr, nullptr); }},
        {"kill of the parent", [] { return ::syscall(SYS_kill, ::getppid(), 0); }}};
    for (const Thread thread : kThreads)
      QCOMPARE(notRefused(calls, answersIn(calls, &kLandlockAlone, thread), {EPERM, EACCES}), QStringList());
  }

  void forkedPicturesHaveNoNetworkAndNoMessagesOfOthers() {
    // Without the list of calls, which would let nobody look.
    const auto seen = [&](const std::function<int()>& look, const ConfinementLayers& layers) {
      const QTemporaryDir scratch;
      return inForkedChild([&] {
        prepareSandboxes(scratch.path().toStdString(), layers);
        const int answer = isInFileView() == layers.fileView ? look() : 99;
        removeScratchRootOfView();
        return answer;
      });
    };
    const int queue = ::msgget(0x6e6f7276, IPC_CREAT | 0600);
    QVERIFY(queue >= 0);
    const auto connects = [] {
      const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
      const sockaddr_in self{AF_INET, htons(9), {htonl(INADDR_LOOPBACK)}, {}};
      return ::connect(socket, reinterpret_cast<const sockaddr*>(&self), sizeof self) == 0 ? 1 : 0;
    };
    const auto findsQueue = [] { return ::msgget(0x6e6f7276, 0) >= 0 ? 1 : 0; };
    const ConfinementLayers view{false, false, true}, nothing{false, false, false};
    const int outside[] = {seen(connects, nothing), seen(findsQueue, nothing)};
    const int inside[] = {seen(connects, view), seen(findsQueue, view)};
    ::msgctl(queue, IPC_RMID, nullptr);
    QCOMPARE(outside[0], 1);
    QCOMPARE(outside[1], 1);
    if (inside[0] == 99) QSKIP("this system permits no view");
    QCOMPARE(inside[0], 0);
    QCOMPARE(inside[1], 0);
  }

  void callsOfAnotherArchitectureEndTheProcess() {
#if defined(__x86_64__)
    const int code = inForkedChild([] {
      prepareSandboxes({}, kAll);
      if (!enterSandbox(SandboxPolicy())) return 100;
      long result = 20;  // getpid, as a program of 32 bits asks for it
      asm volatile("int $0x80" : "+a"(result) : : "memory");
      return 1;
    });
    QCOMPARE(code, -1);
#else
    QSKIP("no other architecture to call as");
#endif
  }

  void whatWorksGoesOnWorking() {
    const std::vector<ForbiddenCall> calls{
        {"getpid", [] { return ::syscall(SYS_getpid); }},
        {"memfd_create", [] { return ::syscall(SYS_memfd_create, "a", 0u); }},
        {"a library", [] { return long(::open("/etc/ld.so.cache", O_RDONLY)); }},
        {"a device", [] { return long(::open("/dev/urandom", O_RDONLY)); }}};
    for (const ConfinementLayers& layers : {kAll, kLandlockAlone, kWithoutLandlock})
      QCOMPARE(notRefused(calls, answersIn(calls, &layers, Thread::Second), {0}), QStringList());
  }
};

NORVEX_TEST(ForbiddenCallsTest)
#include "forbidden_calls_test.moc"
