// What a process sees of the files once it has a view of its own.
#include "worker/confinement/file_view.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <string>

#include "kit/forked_check.h"
#include "kit/test_main.h"

using namespace norvex;

namespace {

constexpr int kNoView = 99;

/// The answer of `look` in the view, which has this scratch root.
int inView(const std::string& scratch, const std::function<int()>& look) {
  return kit::inForkedChild([&] { return enterFileView(scratch) ? look() : kNoView; });
}

unsigned long flagsOf(const std::string& path) {
  struct statvfs found = {};
  return ::statvfs(path.c_str(), &found) == 0 ? found.f_flag : 0;
}

int errorOf(long result) {
  return result < 0 ? errno : 0;
}

}  // namespace

class FileViewTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("builds with sanitizers leave layers out");
#endif
    if (inView({}, [] { return 0; }) == kNoView) QSKIP("this system permits no view");
  }

  void itsRootHoldsLittleAndCannotBeWrittenTo() {
    QCOMPARE(inView({},
                    [] {
                      struct statvfs root = {};
                      struct stat status = {};
                      if (::statvfs("/", &root) != 0 || ::stat("/", &status) != 0) return 1;
                      if (root.f_blocks * root.f_frsize != 1 << 20 || root.f_files != 1024) return 2;
                      if ((root.f_flag & ST_RDONLY) == 0 || (root.f_flag & ST_NOSUID) == 0) return 3;
                      return (status.st_mode & 07777) == 0755 ? 0 : 4;
                    }),
             0);
    QCOMPARE(inView({}, [] { return errorOf(::open("/made", O_CREAT | O_WRONLY, 0600)); }), EROFS);
    QCOMPARE(inView({}, [] { return errorOf(::mkdir("/usr/lib/made", 0700)); }), EROFS);
  }

  void whatEnginesNeedIsThereAndNothingElse() {
    for (const char* path : {"/usr/lib", "/etc/fonts", "/dev/null"}) {
      struct stat outside = {};
      if (::stat(path, &outside) != 0) continue;
      QCOMPARE(inView({}, [&] { return errorOf(::access(path, F_OK)); }), 0);
      QVERIFY(inView({}, [&] { return flagsOf(path) & ST_RDONLY ? 1 : 0; }) == 1);
    }
    for (const char* path : {"/proc", "/proc/self", "/tmp", "/home", "/root", "/etc/passwd", "/usr/bin/env"})
      QCOMPARE(inView({}, [&] { return errorOf(::access(path, F_OK)); }), ENOENT);
  }

  void linksAtTheTopStayLinks() {
    for (const char* path : {"/lib", "/lib64", "/bin"}) {
      char target[256] = {};
      if (::readlink(path, target, sizeof target - 1) < 0) continue;
      QCOMPARE(inView({},
                      [&] {
                        char seen[256] = {};
                        if (::readlink(path, seen, sizeof seen - 1) < 0) return errno;
                        return std::string(seen) == target ? 0 : 1;
                      }),
               0);
    }
  }

  void whoWeAreStays() {
    const uid_t user = ::getuid();
    const gid_t group = ::getgid();
    QCOMPARE(inView({}, [=] { return ::getuid() == user && ::getgid() == group ? 0 : 1; }), 0);
    QCOMPARE(inView({}, [] { return errorOf(::setgroups(0, nullptr)); }), EPERM);
    if (user != 0) return;
    QCOMPARE(inView({}, [] { return errorOf(::setuid(1)); }), EINVAL);  // there is no such number inside
  }

  void onlyTheScratchRootTakesFilesAndNoneIsStarted() {
    const QTemporaryDir folder;
    const std::string scratch = folder.filePath("root").toStdString();
    QVERIFY(QDir(folder.path()).mkdir("root"));
    QCOMPARE(inView(scratch,
                    [&] {
                      const unsigned long flags = flagsOf(scratch);
                      if ((flags & ST_RDONLY) != 0) return 1;
                      if ((flags & ST_NOEXEC) == 0 || (flags & ST_NODEV) == 0 || (flags & ST_NOSUID) == 0)
                        return 2;
                      struct stat status = {};
                      if (::stat(scratch.c_str(), &status) != 0 || (status.st_mode & 0777) != 0300) return 3;
                      return errorOf(::open((scratch + "/file").c_str(), O_CREAT | O_WRONLY, 0600));
                    }),
             0);
    QCOMPARE(inView(scratch, [&] { return errorOf(::access(folder.path().toLocal8Bit(), W_OK)); }), EROFS);
    QFile::setPermissions(folder.filePath("root"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  void theScratchRootIsRemovedWithAllThatIsInIt() {
    const QTemporaryDir folder;
    const std::string scratch = folder.filePath("root").toStdString();
    QVERIFY(QDir(folder.path()).mkdir("root"));
    QCOMPARE(inView(scratch,
                    [&] {
                      const std::string sub = scratch + "/sub";
                      if (::mkdir(sub.c_str(), 0700) != 0 ||
                          ::open((sub + "/file").c_str(), O_CREAT | O_WRONLY, 0600) < 0)
                        return 1;
                      removeScratchRootOfView();
                      return 0;
                    }),
             0);
    QCOMPARE(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
             QStringList());
  }

  void whoeverIsInsideKnowsIt() {
    QVERIFY(!isInFileView());
    QCOMPARE(inView({}, [] { return isInFileView() ? 1 : 0; }), 1);
  }
};

NORVEX_TEST(FileViewTest)
#include "file_view_test.moc"
