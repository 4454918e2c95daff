// Landlock by itself: what the other layers would stop as well is left to it here.
#include "worker/confinement/landlock.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "base/file_descriptor.h"
#include "kit/forked_check.h"
#include "kit/test_main.h"

using namespace norvex;
using namespace norvex::kit;

namespace {

/// Runs the check under the rules; 255: they were not put on.
int inLandlock(const std::string& scratch, const std::function<int()>& check) {
  return inForkedChild([&] {
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    return enterLandlock(scratch) ? check() : 255;
  });
}

/// 0, or why not.
int opens(const std::string& path, int flags) {
  return FileDescriptor(::open(path.c_str(), flags | O_CLOEXEC, 0600)).valid() ? 0 : errno;
}

int answerOf(int result) {
  return result == 0 ? 0 : errno;
}

int onTcp(int (*call)(int, const sockaddr*, socklen_t), in_port_t port) {
  const FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(port);
  return answerOf(call(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address));
}

/// Of this test, without a name in any folder.
int onAbstractSocket(int (*call)(int, const sockaddr*, socklen_t), const FileDescriptor& socket) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  const QByteArray name = "norvex-landlock-test-" + QByteArray::number(::getppid());
  std::memcpy(address.sun_path + 1, name.constData(), size_t(name.size()));
  const auto size = socklen_t(offsetof(sockaddr_un, sun_path) + 1 + size_t(name.size()));
  return answerOf(call(socket.get(), reinterpret_cast<const sockaddr*>(&address), size));
}

}  // namespace

class LandlockTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    if (!landlockAbilities().files()) QSKIP("the kernel has no Landlock");
    QVERIFY(folder_.isValid());
    QVERIFY(::mkdir(path("scratch").c_str(), 0700) == 0 && ::mkdir(path("other").c_str(), 0700) == 0);
  }

  void init() {
    for (const char* name : {"secret", "scratch/kept", "scratch/spare"}) {
      QFile file(QString::fromStdString(path(name)));
      QVERIFY(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
    }
  }

  void filesOfOthersAreNeitherReadNorWrittenNorListed() {
    for (const std::string& scratch : {std::string(), path("scratch")}) {
      QCOMPARE(inLandlock(scratch, [&] { return opens(path("secret"), O_RDONLY); }), EACCES);
      QCOMPARE(inLandlock(scratch, [&] { return opens(path("secret"), O_WRONLY); }), EACCES);
      QCOMPARE(inLandlock(scratch, [&] { return opens(path("other/new"), O_WRONLY | O_CREAT); }), EACCES);
      QCOMPARE(inLandlock(scratch, [&] { return opens(path("other"), O_RDONLY | O_DIRECTORY); }), EACCES);
      QCOMPARE(inLandlock(scratch, [&] { return answerOf(::unlink(path("secret").c_str())); }), EACCES);
    }
    QCOMPARE(inLandlock({}, [&] { return opens(path("scratch/kept"), O_RDONLY); }), EACCES);
  }

  void fontsAreReadAndListedAndNotWritten() {
    for (const std::string& scratch : {std::string(), path("scratch")}) {
      QCOMPARE(inLandlock(scratch, [] { return opens("/usr/share/fonts", O_RDONLY | O_DIRECTORY); }), 0);
      QCOMPARE(inLandlock(scratch, [] { return opens("/usr/share/fonts/x", O_WRONLY | O_CREAT); }), EACCES);
      QCOMPARE(inLandlock(scratch, [] { return opens("/usr/lib", O_RDONLY | O_DIRECTORY); }), EACCES);
      QCOMPARE(inLandlock(scratch, [] { return opens("/dev/null", O_RDWR); }), 0);
    }
  }

  void noControlOfDevicesAndNoTruncating() {
    if (landlockAbilities().truncating())
      QCOMPARE(inLandlock({}, [&] { return answerOf(::truncate(path("secret").c_str(), 0)); }), EACCES);
    if (!landlockAbilities().devices()) QSKIP("the kernel's Landlock knows no devices");
    const auto control = [] {
      const FileDescriptor device(::open("/dev/null", O_RDWR | O_CLOEXEC));
      termios state = {};
      return answerOf(::ioctl(device.get(), TCGETS, &state));
    };
    QCOMPARE(inForkedChild(control), ENOTTY);
    QCOMPARE(inLandlock({}, control), EACCES);
  }

  void programsAreNotStarted() {
    QCOMPARE(inLandlock({},
                        [] {
                          ::execl("/usr/bin/env", "env", "true", nullptr);
                          return errno;
                        }),
             EACCES);
    QVERIFY(::chmod(path("scratch/kept").c_str(), 0700) == 0);
    QCOMPARE(inLandlock(path("scratch"),
                        [&] {
                          ::execl(path("scratch/kept").c_str(), "kept", nullptr);
                          return errno;
                        }),
             EACCES);
  }

  void plainFilesOfTheScratchFolderAreFree() {
    const std::string scratch = path("scratch");
    QCOMPARE(inLandlock(scratch, [&] { return opens(path("scratch/new"), O_RDWR | O_CREAT | O_EXCL); }), 0);
    QVERIFY(QFile::exists(QString::fromStdString(path("scratch/new"))));
    QCOMPARE(inLandlock(scratch, [&] { return opens(scratch, O_RDONLY | O_DIRECTORY); }), 0);
    QCOMPARE(inLandlock(scratch, [&] { return opens(path("scratch/kept"), O_WRONLY | O_TRUNC); }), 0);
    QCOMPARE(QFile(QString::fromStdString(path("scratch/kept"))).size(), 0);
    QCOMPARE(inLandlock(scratch, [&] { return answerOf(::unlink(path("scratch/spare").c_str())); }), 0);
    QVERIFY(!QFile::exists(QString::fromStdString(path("scratch/spare"))));
  }

  void nothingElseIsMadeThereAndNothingLeavesIt() {
    const std::string scratch = path("scratch"), kept = path("scratch/kept"), made = path("scratch/made");
    QCOMPARE(inLandlock(scratch, [&] { return answerOf(::mkdir(made.c_str(), 0700)); }), EACCES);
    QCOMPARE(inLandlock(scratch, [&] { return answerOf(::symlink("/etc", made.c_str())); }), EACCES);
    QCOMPARE(inLandlock(scratch, [&] { return answerOf(::mkfifo(made.c_str(), 0600)); }), EACCES);
    QCOMPARE(inLandlock(scratch, [&] { return answerOf(::rename(kept.c_str(), path("other/k").c_str())); }),
             EACCES);
    QCOMPARE(inLandlock(scratch, [&] { return answerOf(::rmdir(path("other").c_str())); }), EACCES);
  }

  /// Who waits for a connection here is not told to one that may not make it.
  void noTcp() {
    if (!landlockAbilities().network()) QSKIP("the kernel's Landlock knows no network");
    const FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* where = reinterpret_cast<sockaddr*>(&address);
    QVERIFY(::bind(socket.get(), where, size) == 0 && ::listen(socket.get(), 4) == 0);
    QCOMPARE(::getsockname(socket.get(), where, &size), 0);
    const in_port_t port = ntohs(address.sin_port);
    QCOMPARE(inForkedChild([&] { return onTcp(&::connect, port); }), 0);
    QCOMPARE(inLandlock({}, [&] { return onTcp(&::connect, port); }), EACCES);
    QCOMPARE(inForkedChild([&] { return onTcp(&::bind, 0); }), 0);
    QCOMPARE(inLandlock({}, [&] { return onTcp(&::bind, 0); }), EACCES);
  }

  void noSignalsAndAbstractSocketsToOthers() {
    if (!landlockAbilities().scopes()) QSKIP("the kernel's Landlock knows no scopes");
    QCOMPARE(inForkedChild([] { return answerOf(::kill(::getppid(), 0)); }), 0);
    QCOMPARE(inLandlock({}, [] { return answerOf(::kill(::getppid(), 0)); }), EPERM);
    QCOMPARE(inLandlock({}, [] { return answerOf(::kill(::getpid(), 0)); }), 0);
    QCOMPARE(inForkedChild([] { return reachesAbstractSocket(false); }), 0);
    QCOMPARE(inForkedChild([] { return reachesAbstractSocket(true); }), EPERM);
  }

  /// The rules that are made beforehand are those of processes without a scratch folder.
  void preparedRulesAreTheSameAndSurviveAMove() {
    const auto prepared = [&](const std::string& scratch, const std::function<int()>& check) {
      return inForkedChild([&] {
        prepareLandlock();
        constexpr int number = 40;
        if (movePreparedLandlock(number) != number + 1 || ::fcntl(number, F_GETFD) != FD_CLOEXEC) return 254;
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        return enterLandlock(scratch) ? check() : 255;
      });
    };
    QCOMPARE(prepared({}, [&] { return opens(path("secret"), O_RDONLY); }), EACCES);
    QCOMPARE(prepared({}, [] { return opens("/usr/share/fonts", O_RDONLY | O_DIRECTORY); }), 0);
    QCOMPARE(prepared(path("scratch"), [&] { return opens(path("scratch/kept"), O_RDONLY); }), 0);
    QCOMPARE(inForkedChild([] { return movePreparedLandlock(40) == 40 ? 0 : 1; }), 0);  // nothing to move
  }

  void withoutNewPrivilegesForbiddenNothingIsPutOn() {
    constexpr uid_t nobody = 65534;  // root may do it without
    QCOMPARE(inForkedChild([] {
               if (::geteuid() == 0 && ::setresuid(nobody, nobody, nobody) != 0) return 254;
               if (enterLandlock({})) return 1;
               return opens("/etc/passwd", O_RDONLY);
             }),
             0);
  }

 private:
  /// From a process of its own to one that this test's child makes, under the rules or not.
  static int reachesAbstractSocket(bool confined) {
    const FileDescriptor listening(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (onAbstractSocket(&::bind, listening) != 0 || ::listen(listening.get(), 4) != 0) return 253;
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    if (confined && !enterLandlock({})) return 255;
    const FileDescriptor asking(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return onAbstractSocket(&::connect, asking);
  }
  [[nodiscard]] std::string path(const char* name) const {
    return folder_.filePath(QString::fromLatin1(name)).toStdString();
  }

  QTemporaryDir folder_;
};

NORVEX_TEST(LandlockTest)
#include "landlock_test.moc"
